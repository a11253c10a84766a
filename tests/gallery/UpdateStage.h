#pragma once

#include <QQmlEngine>
#include <QQuickView>
#include <memory>
#include <vector>

#include "Quillmonger/resources/Appearance.h"
#include "Quillmonger/update/view/UpdateModel.h"
#include "tests/support/TestDefaults.h"

namespace testsupport {

/// The updater's real view, on a status that the caller sets. Needs the application object.
class UpdateStage final {
 public:
  using Answer = quillmonger::UpdateModel::Answer;

  UpdateStage();
  ~UpdateStage();

  defaults::Defaults& defaults() { return m_defaults.defaults; }
  /// Shows it, as large as it wants to be.
  QQuickView& show(const quillmonger::UpdateStatus& status);
  /// What the user answered, in its order.
  [[nodiscard]] const std::vector<Answer>& answers() const { return m_answers; }

 private:
  TestDefaults m_defaults;
  quillmonger::Appearance m_appearance;
  quillmonger::UpdateModel m_model{"1.2.3"};
  std::vector<Answer> m_answers;
  QQmlEngine m_engine;
  std::unique_ptr<QQuickView> m_view;
};

}  // namespace testsupport
