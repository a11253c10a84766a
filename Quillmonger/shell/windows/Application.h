#pragma once

namespace quillmonger {

/// The program as the desktop sees it. Main thread.
class Application {
 public:
  Application() = default;
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;
  virtual ~Application() = default;

  enum class ActivationPolicy {
    regular,   ///< has an entry in the task list
    accessory  ///< has none
  };
  virtual void setActivationPolicy(ActivationPolicy policy) = 0;
  /// Brings the program to the front, whatever else is there.
  virtual void activateIgnoringOtherApps() = 0;
  /// Hides all its windows and gives the front back to the application that had it.
  virtual void hide() = 0;
  /// Ends the program in an orderly way; returns before it has ended.
  virtual void terminate() = 0;
};

}  // namespace quillmonger
