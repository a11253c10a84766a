#include "tests/gallery/KeyBindingsStage.h"

#include <QCoreApplication>
#include <QQuickItem>
#include <QTest>

#include "KeyboardShortcuts/view/QmlModule.h"
#include "Quillmonger/input/ShortcutNames.h"
#include "Quillmonger/resources/QmlModule.h"
#include "Quillmonger/resources/Texts.h"
#include "Quillmonger/settings/view/QmlModule.h"
#include "Settings/view/QmlModule.h"

namespace testsupport {

KeyBindingsStage::KeyBindingsStage()
    : m_appearance(m_defaults.defaults),
      m_settings(m_defaults.defaults,
                 {m_shortcuts, m_inputSources, m_events, m_alert, m_notificationCenter, m_runLoop,
                  quillmonger::localizedText, [] { return std::vector<keyboardshortcuts::MenuItem>(); }, [] {}}) {
  quillmonger::resourcesview::registerTypes(m_engine);
  quillmonger::settingsview::registerTypes();
  keyboardshortcuts::view::registerTypes();
  settings::registerTypes();
  const sauce::InputSource source("us");
  m_inputSources.setTexts(source, {{7, "x"}, {9, "v"}, {14, "e"}, {15, "r"}});
  m_inputSources.setASCIICapable(source);
  m_shortcuts.declare(quillmonger::shortcutname::activate());
  for (const auto& name : quillmonger::shortcutname::quickPaste())
    m_shortcuts.declare(name);
}

QQuickView& KeyBindingsStage::pane() {
  if (!m_pane) {
    m_pane = std::make_unique<QQuickView>(&m_engine, nullptr);
    m_pane->setInitialProperties(
        {{"settings", QVariant::fromValue(&m_settings)}, {"appearance", QVariant::fromValue(&m_appearance)}});
    m_pane->setSource(QUrl("qrc:/qt-project.org/imports/Quillmonger/Settings/KeyBindingsPane.qml"));
    m_pane->setColor(m_appearance.isDark() ? QColor("#22242a") : QColor("#f8f8fa"));
    m_pane->show();
    m_pane->requestActivate();
    static_cast<void>(QTest::qWaitForWindowActive(m_pane.get()));
    m_runLoop.runPosted();
  }
  m_pane->grabWindow();
  QCoreApplication::processEvents();
  return *m_pane;
}

}  // namespace testsupport
