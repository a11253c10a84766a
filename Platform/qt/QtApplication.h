#pragma once

#include <QObject>
#include <memory>

#include "Foundation/Stream.h"
#include "Quillmonger/shell/windows/Application.h"
#include "Quillmonger/shell/windows/WindowSystem.h"

namespace platform {

/// The program as Qt's application object. Made after that object, and gone before it.
class QtApplication final : public quillmonger::Application {
 public:
  explicit QtApplication(quillmonger::WindowSystem& windowSystem);
  QtApplication(const QtApplication&) = delete;
  QtApplication& operator=(const QtApplication&) = delete;
  ~QtApplication() override;

  void setActivationPolicy(ActivationPolicy policy) override;
  void activateIgnoringOtherApps() override;
  void hide() override;
  void terminate() override;

  /// Runs `receiver` each time that the keyboard goes from this program's windows to another program.
  foundation::Subscription onDidResignActive(std::function<void()> receiver);

 private:
  class FocusFilter;
  void resignUnlessFocused();

  quillmonger::WindowSystem& m_windowSystem;
  foundation::Stream<int> m_didResignActive;
  bool m_isActive = false;
  bool m_isActiveForQt = false;  // which can be behind
  std::unique_ptr<FocusFilter> m_focusFilter;
  QObject m_connections;
};

}  // namespace platform
