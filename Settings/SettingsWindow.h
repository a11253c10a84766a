#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "Settings/Frame.h"

namespace settings {

/// The window of the settings, as their controllers need it: titled, closable, kept when it is closed. Main thread.
class SettingsWindow {
 public:
  /// How much of a movement is done, from 0 to 1.
  using Step = std::function<void(double progress)>;

  SettingsWindow() = default;
  SettingsWindow(const SettingsWindow&) = delete;
  SettingsWindow& operator=(const SettingsWindow&) = delete;
  virtual ~SettingsWindow() = default;

  /// The window is wanted on the screen. It appears when `activate` is called, so that it does in its place.
  virtual void showWindow() = 0;
  virtual void center() = 0;
  /// Moves it to where it stood when it was last moved under this name, as far as a screen is there. Nothing happens
  /// the first time.
  virtual void setFrameUsingName(std::string_view name) = 0;
  /// Remembers under this name where it stands, from now on.
  virtual void setFrameAutosaveName(std::string_view name) = 0;
  /// Brings the program to the front, and with it this window.
  virtual void activate() = 0;

  virtual void setTitle(const std::string& title) = 0;
  [[nodiscard]] virtual Frame frame() const = 0;
  /// The size of a window that has room for a pane of this size: no more than its screen has.
  [[nodiscard]] virtual Size frameRectForContentRect(const Size& content) const = 0;
  virtual void setFrame(const Frame& frame) = 0;
  /// Calls `step` again and again with a progress that never falls, and at last with 1; and then `completion`. All of
  /// it before this returns where the user wants no motion. Not before an earlier one has ended.
  virtual void animate(const Step& step, const std::function<void()>& completion) = 0;
  /// Takes the last step of an animation that is under way, and completes it.
  virtual void endAnimation() = 0;
  /// While it is false, no mouse and no key reaches what the window shows.
  virtual void setUserInteractionEnabled(bool isEnabled) = 0;
};

}  // namespace settings
