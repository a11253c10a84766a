#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Foundation/AlertSheet.h"
#include "Foundation/NotificationCenter.h"
#include "Foundation/Published.h"
#include "Foundation/RunLoop.h"
#include "Foundation/Subscription.h"
#include "Foundation/TextLookup.h"
#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "KeyboardShortcuts/MenuItem.h"
#include "KeyboardShortcuts/RecordedEvents.h"
#include "KeyboardShortcuts/RecorderView.h"
#include "KeyboardShortcuts/ShortcutText.h"
#include "Sauce/InputSourceService.h"

namespace keyboardshortcuts {

/// A field in which the user sets the chord of a name: it shows the present one, and records the next one that is valid
/// while it has the focus. No global chord works meanwhile. Main thread.
class RecorderCocoa final {
 public:
  /// In points; the field may be wider.
  static constexpr double minimumWidth = 130;

  struct Surroundings {
    KeyboardShortcuts& shortcuts;
    const sauce::InputSourceService& inputSources;
    RecordedEvents& events;
    foundation::AlertSheet& alert;
    foundation::NotificationCenter& notificationCenter;
    foundation::RunLoop& runLoop;
    /// Its keys are "record_shortcut", "press_shortcut", "keyboard_shortcut_used_by_menu_item",
    /// "keyboard_shortcut_used_by_system", "keyboard_shortcuts_can_be_changed" and "confirm_string". In the third, "%1"
    /// stands for the item's title.
    foundation::TextLookup texts;
    /// The program's own menu, whose chords no name can have.
    std::function<std::vector<MenuItem>()> mainMenu;
    /// Says that a key is none for a chord.
    std::function<void()> beep;
  };
  using OnChange = std::function<void(const std::optional<Shortcut>&)>;

  /// `onChange`, which may be empty, is told of each change made here. `view` and all that `surroundings` names outlive
  /// this object.
  RecorderCocoa(Name shortcutName, RecorderView& view, Surroundings surroundings, OnChange onChange);
  RecorderCocoa(const RecorderCocoa&) = delete;
  RecorderCocoa& operator=(const RecorderCocoa&) = delete;
  ~RecorderCocoa();

  [[nodiscard]] const Name& shortcutName() const { return m_shortcutText.name(); }
  void setShortcutName(Name name) { m_shortcutText.setName(std::move(name)); }

  /// The chord as the user reads it; empty without one.
  [[nodiscard]] foundation::Published<std::string>& stringValue() { return m_shortcutText.value(); }
  /// What stands in place of an empty text.
  [[nodiscard]] foundation::Published<std::string>& placeholderString() { return m_placeholderString; }
  [[nodiscard]] foundation::Published<bool>& showsCancelButton() { return m_showsCancelButton; }
  [[nodiscard]] foundation::Published<bool>& isRecording() { return m_isRecording; }
  /// Whether the field may take the focus. Not before the window has found its first one, which is not to be this.
  [[nodiscard]] foundation::Published<bool>& canBecomeKey() { return m_canBecomeKey; }

  /// The field has come into a window.
  void viewDidMoveToWindow();
  /// The field has the focus: starts to record. False when it may not have it.
  bool becomeFirstResponder();
  /// The field has lost the focus: ends the recording.
  void controlTextDidEndEditing();
  /// The clear button was pressed: the name has no chord from now on. The focus stays where it is.
  void performClick();

 private:
  using Disposition = RecordedEvents::Disposition;

  void showCancelButton();
  Disposition handle(const Event& event);
  Disposition handleMouseUp(const Event::Location& location);
  Disposition handleKeyDown(const Event& event);
  void record(const Event& event);
  void refuse(std::string message, std::string informativeText);
  void accept(const Shortcut& shortcut);

  RecorderView& m_view;
  Surroundings m_with;
  OnChange m_onChange;
  ShortcutText m_shortcutText;
  foundation::Published<std::string> m_placeholderString;
  foundation::Published<bool> m_showsCancelButton{false};
  foundation::Published<bool> m_isRecording{false};
  foundation::Published<bool> m_canBecomeKey{false};
  std::shared_ptr<const bool> m_isAlive = std::make_shared<const bool>(true);
  /// While recording.
  foundation::Subscription m_eventMonitor;
  foundation::Subscription m_observer;
};

}  // namespace keyboardshortcuts
