#pragma once

#include "Quillmonger/shell/windows/Panel.h"
#include "Quillmonger/update/UpdateInterface.h"
#include "Quillmonger/update/view/UpdateModel.h"

namespace quillmonger {

/// The updater's window: a panel with the view of an `UpdateModel`. Main thread.
class UpdateWindow final : public UpdateInterface {
 public:
  /// Both outlive this object.
  UpdateWindow(UpdateModel& model, Panel& panel) : m_model(model), m_panel(panel) {}

  void setStatus(const UpdateStatus& status) override { m_model.setStatus(status); }
  void show(Attention attention) override;
  void hide() override { m_panel.orderOut(); }
  [[nodiscard]] bool isVisible() const override { return m_panel.isVisible(); }

 private:
  UpdateModel& m_model;
  Panel& m_panel;
};

}  // namespace quillmonger
