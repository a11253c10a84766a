#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Settings/SettingsWindow.h"

namespace testsupport {

/// A window without a screen. It tells what is done to it, and moves when the test lets it.
class FakeSettingsWindow final : public settings::SettingsWindow {
 public:
  static constexpr double toolbarHeight = 60;
  static constexpr settings::Frame centered{400, 200, 0, 0};

  void showWindow() override { m_log.emplace_back("showWindow"); }
  void center() override {
    m_log.emplace_back("center");
    m_frame.left = centered.left;
    m_frame.top = centered.top;
  }
  void setFrameUsingName(std::string_view name) override {
    m_log.push_back("setFrameUsingName " + std::string(name));
    if (!stored) return;
    m_frame.left = stored->left;
    m_frame.top = stored->top;
  }
  void setFrameAutosaveName(std::string_view name) override {
    m_log.push_back("setFrameAutosaveName " + std::string(name));
  }
  void activate() override { m_log.emplace_back("activate"); }
  void setTitle(const std::string& title) override { m_title = title; }
  [[nodiscard]] settings::Frame frame() const override { return m_frame; }
  [[nodiscard]] settings::Size frameRectForContentRect(const settings::Size& content) const override {
    return {content.width, content.height + toolbarHeight};
  }
  void setFrame(const settings::Frame& frame) override { m_frame = frame; }
  void animate(const Step& step, const std::function<void()>& completion) override {
    m_step = step;
    m_completion = completion;
  }
  void endAnimation() override {
    if (!m_step) return;
    std::exchange(m_step, nullptr)(1);
    std::exchange(m_completion, nullptr)();
  }
  void setUserInteractionEnabled(bool isEnabled) override { m_isUserInteractionEnabled = isEnabled; }

  /// Lets the animation get this far.
  void advance(double progress) { m_step(progress); }
  [[nodiscard]] bool isAnimating() const { return m_step != nullptr; }
  [[nodiscard]] const std::vector<std::string>& log() const { return m_log; }
  [[nodiscard]] const std::string& title() const { return m_title; }
  [[nodiscard]] bool isUserInteractionEnabled() const { return m_isUserInteractionEnabled; }

  /// Where it stood when it was last moved.
  std::optional<settings::Frame> stored;

 private:
  std::vector<std::string> m_log;
  std::string m_title;
  settings::Frame m_frame = centered;
  bool m_isUserInteractionEnabled = true;
  Step m_step;
  std::function<void()> m_completion;
};

}  // namespace testsupport
