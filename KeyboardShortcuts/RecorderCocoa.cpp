#include "KeyboardShortcuts/RecorderCocoa.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace keyboardshortcuts {

namespace {

constexpr std::uint32_t deviceIndependentFlags = 0xFFFF0000;
// Caps Lock, numeric pad and function.
constexpr std::uint32_t flagsOfNoChord = 0xA10000;
constexpr std::uint32_t shiftFlag = 0x20000;

constexpr std::uint16_t tabKey = 48;
constexpr std::uint16_t deleteKey = 51;
constexpr std::uint16_t escapeKey = 53;
constexpr std::uint16_t deleteForwardKey = 117;
// F1 to F20: the others of the 35 have no place on any keyboard here.
constexpr auto functionKeys = std::to_array<std::uint16_t>(
    {122, 120, 99, 118, 96, 97, 98, 100, 101, 109, 103, 111, 105, 107, 113, 106, 64, 79, 80, 90});

// How far beside the field a click still counts as one on it, in points.
constexpr double clickTolerance = 3;

std::uint32_t modifiersOf(const Event& event) { return event.modifierFlags & deviceIndependentFlags & ~flagsOfNoChord; }

bool isFunctionKey(const Event& event) {
  return event.keyCode && std::ranges::find(functionKeys, *event.keyCode) != functionKeys.end();
}

bool isNear(const Event::Location& location, const RecorderView::Bounds& bounds) {
  const auto isWithin = [](double place, double start, double length) {
    return place >= start - clickTolerance && place <= start + length + clickTolerance;
  };
  return isWithin(location.x, bounds.left, bounds.width) && isWithin(location.y, bounds.top, bounds.height);
}

std::string formatted(std::string format, std::string_view title) {
  constexpr std::string_view place = "%1";
  const auto at = format.find(place);
  return at == std::string::npos ? format : format.replace(at, place.size(), title);
}

}  // namespace

RecorderCocoa::RecorderCocoa(Name shortcutName, RecorderView& view, Surroundings surroundings, OnChange onChange)
    : m_view(view),
      m_with(std::move(surroundings)),
      m_onChange(std::move(onChange)),
      m_shortcutText(std::move(shortcutName), m_with.shortcuts, m_with.inputSources, m_with.notificationCenter),
      m_placeholderString(m_with.texts("record_shortcut")),
      m_observer(m_shortcutText.value().follow([this](const auto&) { showCancelButton(); })) {}

RecorderCocoa::~RecorderCocoa() {
  if (m_eventMonitor.isActive()) m_with.shortcuts.setPaused(false);
}

void RecorderCocoa::showCancelButton() { m_showsCancelButton.set(!stringValue().value().empty()); }

void RecorderCocoa::viewDidMoveToWindow() {
  m_with.runLoop.post([this, isAlive = std::weak_ptr(m_isAlive)] {
    if (!isAlive.expired()) m_canBecomeKey.set(true);
  });
}

bool RecorderCocoa::becomeFirstResponder() {
  if (!m_canBecomeKey.value()) return false;
  if (m_eventMonitor.isActive()) return true;
  m_placeholderString.set(m_with.texts("press_shortcut"));
  showCancelButton();
  m_isRecording.set(true);
  m_with.shortcuts.setPaused(true);
  m_eventMonitor = m_with.events.watch([this](const Event& event) { return handle(event); });
  return true;
}

void RecorderCocoa::controlTextDidEndEditing() {
  if (!m_eventMonitor.isActive()) return;
  m_eventMonitor.cancel();
  m_placeholderString.set(m_with.texts("record_shortcut"));
  showCancelButton();
  m_isRecording.set(false);
  m_with.shortcuts.setPaused(false);
}

void RecorderCocoa::performClick() {
  m_with.shortcuts.setShortcut(std::nullopt, shortcutName());
  if (m_onChange) m_onChange(std::nullopt);
}

RecorderCocoa::Disposition RecorderCocoa::handle(const Event& event) {
  switch (event.type) {
    case Event::Type::leftMouseUp:
    case Event::Type::rightMouseUp:
      return handleMouseUp(event.location);
    case Event::Type::keyDown:
      return handleKeyDown(event);
    default:
      return Disposition::pass;
  }
}

RecorderCocoa::Disposition RecorderCocoa::handleMouseUp(const Event::Location& location) {
  if (!isNear(location, m_view.bounds())) m_view.resignFocus();
  return Disposition::pass;
}

RecorderCocoa::Disposition RecorderCocoa::handleKeyDown(const Event& event) {
  const bool isPlain = modifiersOf(event) == 0;
  if (isPlain && event.keyCode == tabKey) {
    m_view.resignFocus();
    return Disposition::pass;
  }
  if (isPlain && event.keyCode == escapeKey) {
    m_view.resignFocus();
  } else if (isPlain && (event.keyCode == deleteKey || event.keyCode == deleteForwardKey)) {
    performClick();
  } else {
    record(event);
  }
  return Disposition::swallow;
}

void RecorderCocoa::record(const Event& event) {
  if ((modifiersOf(event) & ~shiftFlag) == 0 && !isFunctionKey(event)) return m_with.beep();
  const auto shortcut = Shortcut::of(event);
  if (!shortcut) return m_with.beep();
  const auto mainMenu = m_with.mainMenu();
  if (const MenuItem* item = takenByMainMenu(*shortcut, mainMenu, m_with.inputSources)) {
    refuse(formatted(m_with.texts("keyboard_shortcut_used_by_menu_item"), item->title), {});
  } else if (m_with.shortcuts.isTakenBySystem(*shortcut)) {
    refuse(m_with.texts("keyboard_shortcut_used_by_system"), m_with.texts("keyboard_shortcuts_can_be_changed"));
  } else {
    accept(*shortcut);
  }
}

void RecorderCocoa::refuse(std::string message, std::string informativeText) {
  m_view.resignFocus();
  m_with.alert.begin({std::move(message), std::move(informativeText), {{m_with.texts("confirm_string")}}},
                     [this, isAlive = std::weak_ptr(m_isAlive)](std::size_t /*button*/) {
                       if (!isAlive.expired()) m_view.takeFocus();
                     });
}

void RecorderCocoa::accept(const Shortcut& shortcut) {
  m_with.shortcuts.setShortcut(shortcut, shortcutName());
  if (m_onChange) m_onChange(shortcut);
  m_view.resignFocus();
}

}  // namespace keyboardshortcuts
