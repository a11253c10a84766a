#pragma once

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QString>
#include <memory>

#include "Quillmonger/guide/AccessibilityViewModel.h"
#include "Quillmonger/guide/GettingStartedViewModel.h"
#include "Quillmonger/guide/view/GettingStartedModel.h"
#include "Quillmonger/resources/Appearance.h"
#include "Quillmonger/shell/PermissionsManager.h"
#include "tests/support/FakeAlert.h"
#include "tests/support/FakeDesktopPreferences.h"
#include "tests/support/FakePostEventAccess.h"
#include "tests/support/FakeVideos.h"
#include "tests/support/TestDefaults.h"
#include "tests/support/VirtualRunLoop.h"

namespace testsupport {

/// The guide's real views on state that the caller sets. Needs the application object.
class GuideStage final {
 public:
  explicit GuideStage(const QString& chord = QStringLiteral("Shift+Super+V"));
  ~GuideStage();

  quillmonger::GettingStartedViewModel& guide() { return m_guide; }
  quillmonger::GettingStartedModel& model() { return m_model; }
  /// Goes there from the welcome screen, forward.
  void goTo(quillmonger::LaunchScreen screen);
  [[nodiscard]] quillmonger::LaunchScreen screen() { return m_guide.currentScreen().value(); }

  FakePostEventAccess& access() { return m_access; }
  FakeVideos& videos() { return m_videos; }
  FakeDesktopPreferences& desktop() { return m_desktop; }
  defaults::Defaults& defaults() { return m_defaults.defaults; }
  VirtualRunLoop& runLoop() { return m_runLoop; }
  [[nodiscard]] int quitCount() const { return m_quitCount; }
  [[nodiscard]] int finishCount() const { return m_finishCount; }

  /// Builds the view tree, once, and lays it out.
  QQuickView& view();
  /// The first shown item with this accessibility identifier; null when none is.
  QQuickItem* find(const QString& identifier);

 private:
  VirtualRunLoop m_runLoop;
  TestDefaults m_defaults;
  FakeDesktopPreferences m_desktop;
  FakePostEventAccess m_access;
  FakeAlert m_alert;
  FakeVideos m_videos;
  int m_quitCount = 0;
  int m_finishCount = 0;
  quillmonger::PermissionsManager m_permissions;
  quillmonger::GettingStartedViewModel m_guide;
  quillmonger::AccessibilityViewModel m_accessibility;
  quillmonger::Appearance m_appearance;
  quillmonger::GettingStartedModel m_model;
  QQmlEngine m_engine;
  std::unique_ptr<QQuickView> m_view;
};

}  // namespace testsupport
