#pragma once

#include <QObject>
#include <QPointer>
#include <QVariantAnimation>
#include <functional>
#include <string>

#include "Foundation/Published.h"
#include "Settings/FrameAutosave.h"
#include "Settings/SettingsWindow.h"
#include "Settings/view/UserInteractionPausableWindow.h"

class QQuickItem;
class QQuickView;

namespace settings {

/// The settings' window as a Qt Quick window whose tree is a `SettingsView`. Frames are those of what is inside the
/// desktop's own title bar and border.
class QtSettingsWindow final : public QObject, public SettingsWindow {
 public:
  struct Surroundings {
    /// The window, loaded by then.
    std::function<QQuickView&()> window;
    std::function<void()> center;
    /// Shows the window with the keyboard.
    std::function<void()> activate;
    std::function<bool()> reducesMotion;
    defaults::UserDefaults& store;
  };

  /// All that is named here outlives this object. The window is not asked for before it is needed.
  explicit QtSettingsWindow(Surroundings surroundings);

  /// What the window is to have: it follows what its tree wants.
  [[nodiscard]] foundation::Published<Size>& size() { return m_size; }

  void showWindow() override { static_cast<void>(view()); }
  /// On the screen it stays where the user has it.
  void center() override;
  void setFrameUsingName(std::string_view name) override;
  void setFrameAutosaveName(std::string_view name) override;
  void activate() override { m_surroundings.activate(); }
  void setTitle(const std::string& title) override;
  [[nodiscard]] Frame frame() const override;
  [[nodiscard]] Size frameRectForContentRect(const Size& content) const override;
  void setFrame(const Frame& frame) override;
  void animate(const Step& step, const std::function<void()>& completion) override;
  void endAnimation() override;
  void setUserInteractionEnabled(bool isEnabled) override;

  /// The item of the loaded window that holds the panes.
  [[nodiscard]] QQuickItem& paneArea() const;

 private:
  [[nodiscard]] QQuickView& view() const { return m_surroundings.window(); }
  void saveFrame();

  Surroundings m_surroundings;
  foundation::Published<Size> m_size;
  FrameAutosave m_frameAutosave;
  std::string m_autosaveName;
  QVariantAnimation m_animation;
  QPointer<UserInteractionPausableWindow> m_pausableWindow;
};

}  // namespace settings
