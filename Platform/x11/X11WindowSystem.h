#pragma once

#include <xcb/xcb.h>

#include <memory>
#include <optional>
#include <string>

#include "Quillmonger/shell/windows/MotionPreference.h"
#include "Quillmonger/shell/windows/WindowSystem.h"

namespace platform {

/// The X server and its window manager, on a connection of its own. Main thread; waits for the server alone.
class X11WindowSystem final : public quillmonger::WindowSystem, public quillmonger::MotionPreference {
 public:
  /// Null when there is no X server.
  [[nodiscard]] static std::unique_ptr<X11WindowSystem> connect(const std::string& display = {});
  X11WindowSystem(const X11WindowSystem&) = delete;
  X11WindowSystem& operator=(const X11WindowSystem&) = delete;
  ~X11WindowSystem() override;

  [[nodiscard]] bool blendsTransparency() const override;
  [[nodiscard]] std::optional<Pixel> focusedWindowCentre() const override;
  void keepOutOfTaskList(WindowId window) override;
  void bringToFront(WindowId window) override;
  /// Sounds the bell, as the user has set it.
  void beep();
  /// As the desktop's settings service tells every program of the display.
  [[nodiscard]] bool reducesMotion() const override;

 private:
  X11WindowSystem(xcb_connection_t* connection, const xcb_screen_t& screen, int screenIndex);
  [[nodiscard]] xcb_window_t owner(xcb_atom_t selection) const;
  [[nodiscard]] xcb_timestamp_t serverTime() const;

  xcb_connection_t* m_connection;
  xcb_window_t m_root;
  xcb_window_t m_clock;  // never shown: its property changes tell the server's time
  xcb_atom_t m_compositor;
  xcb_atom_t m_state;
  xcb_atom_t m_skipTaskbar;
  xcb_atom_t m_skipPager;
  xcb_atom_t m_activeWindow;
  xcb_atom_t m_windowType;
  xcb_atom_t m_desktopType;
  xcb_atom_t m_settingsOwner;
  xcb_atom_t m_settings;
};

}  // namespace platform
