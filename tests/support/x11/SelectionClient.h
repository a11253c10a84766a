#pragma once

#include <xcb/xcb.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Platform/x11/X11Atoms.h"
#include "Platform/x11/X11Property.h"

namespace testsupport {

/// Another program on the display that asks for a selection. It waits for each answer, within a bound, on the test's
/// thread; the answers come from other threads and processes.
class SelectionClient final {
 public:
  explicit SelectionClient(const std::string& display);
  SelectionClient(const SelectionClient&) = delete;
  SelectionClient& operator=(const SelectionClient&) = delete;
  ~SelectionClient();

  /// The answer, also one that comes in pieces; absent when the owner refuses or is silent.
  [[nodiscard]] std::optional<platform::X11Property> ask(std::string_view selection, std::string_view target);
  /// The names behind the TARGETS answer.
  [[nodiscard]] std::vector<std::string> targets(std::string_view selection);
  /// Several targets in one question; absent for those that the owner refused.
  [[nodiscard]] std::vector<std::optional<platform::X11Property>> askMultiple(const std::vector<std::string>& targets);
  /// Asks for a value that comes in pieces, takes the first of them, and leaves the rest.
  [[nodiscard]] bool takeFirstPieceOnly(std::string_view target);
  [[nodiscard]] xcb_window_t owner(std::string_view selection);
  /// Plays the window manager: this client's window is in front, with this class.
  void bringToFront(std::string_view instanceName, std::string_view className);
  [[nodiscard]] xcb_window_t window() const { return m_window; }

 private:
  [[nodiscard]] bool convert(std::string_view selection, std::string_view target, xcb_atom_t property);
  [[nodiscard]] std::optional<platform::X11Property> take(xcb_atom_t property);
  [[nodiscard]] bool awaitNewValue(xcb_atom_t property);
  [[nodiscard]] std::unique_ptr<xcb_generic_event_t, void (*)(void*)> nextEvent();

  xcb_connection_t* m_connection;
  xcb_window_t m_root;
  xcb_window_t m_window;
  platform::X11Atoms m_atoms;
};

}  // namespace testsupport
