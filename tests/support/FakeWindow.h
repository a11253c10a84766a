#pragma once

#include <string>
#include <utility>
#include <vector>

#include "Quillmonger/shell/windows/Panel.h"

namespace testsupport {

/// A window without a screen. Several can tell one log what was done to them, each under its name.
template <typename Port>
class FakeWindowOf : public Port {
 public:
  using Log = std::vector<std::string>;

  /// `log` outlives this object.
  FakeWindowOf(std::string name, Log& log) : m_name(std::move(name)), m_log(log) {}

  [[nodiscard]] bool isVisible() const override { return m_isVisible; }
  [[nodiscard]] quillmonger::WindowFrame frame() const override { return m_frame; }
  [[nodiscard]] int level() const override { return m_level; }
  void center() override { tell("center"); }
  void makeRoomAtRight(double width) override { m_roomAtRight = width; }
  void makeKeyAndOrderFront() override {
    m_isVisible = true;
    tell("makeKeyAndOrderFront");
  }
  void orderOut() override {
    m_isVisible = false;
    tell("orderOut");
  }

  void place(const quillmonger::WindowFrame& frame, int level) {
    m_frame = frame;
    m_level = level;
  }
  /// What was asked for last.
  [[nodiscard]] double roomAtRight() const { return m_roomAtRight; }

 protected:
  void tell(const std::string& what) { m_log.push_back(m_name + " " + what); }

  bool m_isVisible = false;
  quillmonger::WindowFrame m_frame;
  int m_level = 0;

 private:
  std::string m_name;
  Log& m_log;
  double m_roomAtRight = 0;
};

using FakeWindow = FakeWindowOf<quillmonger::Window>;

/// A panel without a screen.
class FakePanel final : public FakeWindowOf<quillmonger::Panel> {
 public:
  using FakeWindowOf::FakeWindowOf;

  [[nodiscard]] double paneWidth() override { return 332; }
  void setFrame(const quillmonger::WindowFrame& frame) override { m_frame = frame; }
  void setAlpha(double alpha) override { m_alpha = alpha; }
  void setLevel(int level) override { m_level = level; }
  void orderFront() override {
    m_isVisible = true;
    tell("orderFront");
  }

  [[nodiscard]] double alpha() const { return m_alpha; }

 private:
  double m_alpha = 1;
};

}  // namespace testsupport
