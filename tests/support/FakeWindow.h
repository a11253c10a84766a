#pragma once

#include <string>
#include <utility>
#include <vector>

#include "Quillmonger/shell/windows/Window.h"

namespace testsupport {

/// A window without a screen. Several can tell one log what was done to them, each under its name.
class FakeWindow final : public quillmonger::Window {
 public:
  using Log = std::vector<std::string>;

  /// `log` outlives this object.
  FakeWindow(std::string name, Log& log) : m_name(std::move(name)), m_log(log) {}

  [[nodiscard]] bool isVisible() const override { return m_isVisible; }
  void center() override { m_log.push_back(m_name + " center"); }
  void makeKeyAndOrderFront() override {
    m_isVisible = true;
    m_log.push_back(m_name + " makeKeyAndOrderFront");
  }
  void orderOut() override {
    m_isVisible = false;
    m_log.push_back(m_name + " orderOut");
  }

 private:
  std::string m_name;
  Log& m_log;
  bool m_isVisible = false;
};

}  // namespace testsupport
