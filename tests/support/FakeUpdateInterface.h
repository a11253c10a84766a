#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Quillmonger/update/UpdateInterface.h"

namespace testsupport {

/// A window that only remembers what it would show.
class FakeUpdateInterface final : public quillmonger::UpdateInterface {
 public:
  void setStatus(const quillmonger::UpdateStatus& status) override { m_status = status; }
  void show(Attention attention) override {
    m_isVisible = true;
    shows.emplace_back(attention == Attention::front ? "front" : "aside");
  }
  void hide() override { m_isVisible = false; }
  [[nodiscard]] bool isVisible() const override { return m_isVisible; }

  [[nodiscard]] const quillmonger::UpdateStatus& status() const { return m_status; }
  /// Goes with the other windows.
  void leaveScreen() { m_isVisible = false; }

  /// How it was shown, each time.
  std::vector<std::string> shows;

 private:
  quillmonger::UpdateStatus m_status;
  bool m_isVisible = false;
};

}  // namespace testsupport
