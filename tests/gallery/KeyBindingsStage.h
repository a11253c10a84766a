#pragma once

#include <QQmlEngine>
#include <QQuickView>
#include <memory>
#include <vector>

#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "Quillmonger/resources/Appearance.h"
#include "Quillmonger/settings/view/KeyBindingsSettings.h"
#include "tests/support/FakeAlertSheet.h"
#include "tests/support/FakeHotKeyService.h"
#include "tests/support/FakeInputSourceService.h"
#include "tests/support/FakeRecordedEvents.h"
#include "tests/support/FakeSymbolicHotKeys.h"
#include "tests/support/TestDefaults.h"
#include "tests/support/VirtualRunLoop.h"

namespace testsupport {

/// The settings' real pane "keyBindings", on state that the caller sets. Needs the application object.
class KeyBindingsStage final {
 public:
  KeyBindingsStage();

  defaults::Defaults& defaults() { return m_defaults.defaults; }
  keyboardshortcuts::KeyboardShortcuts& shortcuts() { return m_shortcuts; }
  FakeRecordedEvents& events() { return m_events; }
  FakeAlertSheet& alert() { return m_alert; }
  quillmonger::Appearance& appearance() { return m_appearance; }
  quillmonger::KeyBindingsSettings& settings() { return m_settings; }
  QQmlEngine& engine() { return m_engine; }

  /// As large as it wants to be, with the keyboard. Built once, and laid out at each call.
  QQuickView& pane();

 private:
  TestDefaults m_defaults;
  FakeHotKeyService m_service;
  FakeSymbolicHotKeys m_symbolicHotKeys;
  foundation::NotificationCenter m_notificationCenter;
  keyboardshortcuts::KeyboardShortcuts m_shortcuts{m_service, m_symbolicHotKeys, m_defaults.suite,
                                                   m_notificationCenter};
  FakeInputSourceService m_inputSources;
  FakeRecordedEvents m_events;
  FakeAlertSheet m_alert;
  VirtualRunLoop m_runLoop;
  quillmonger::Appearance m_appearance;
  quillmonger::KeyBindingsSettings m_settings;
  QQmlEngine m_engine;
  std::unique_ptr<QQuickView> m_pane;
};

}  // namespace testsupport
