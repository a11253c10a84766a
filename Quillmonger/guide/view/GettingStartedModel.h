#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <memory>
#include <string>

#include "Foundation/Subscription.h"
#include "Quillmonger/guide/AccessibilityViewModel.h"
#include "Quillmonger/guide/GettingStartedViewModel.h"
#include "Quillmonger/guide/VideoLooper.h"

namespace quillmonger {

/// What the guide shows, and what its buttons do. Main thread.
class GettingStartedModel final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(QString chord READ chord NOTIFY chordChanged)
  /// The ordinal of the `LaunchScreen`.
  Q_PROPERTY(int currentScreen READ currentScreen NOTIFY currentScreenChanged)
  Q_PROPERTY(bool permissionsGranted READ permissionsGranted NOTIFY permissionsGrantedChanged)

 public:
  struct Collaborators {
    GettingStartedViewModel& guide;
    AccessibilityViewModel& accessibility;
    VideoLooperFactory makeVideoLooper;
  };

  /// The collaborators outlive this object.
  explicit GettingStartedModel(const Collaborators& collaborators);

  /// The keys that show the history, in the platform's words; empty when there are none.
  [[nodiscard]] QString chord() const { return m_chord; }
  void setChord(const QString& chord);
  [[nodiscard]] int currentScreen() const;
  [[nodiscard]] bool permissionsGranted() const;

  Q_INVOKABLE void forward() { m_with.guide.forward(); }
  Q_INVOKABLE void back() { m_with.guide.back(); }
  Q_INVOKABLE void showNext() { m_with.guide.showNext(); }
  Q_INVOKABLE void showPrevious() { m_with.guide.showPrevious(); }
  Q_INVOKABLE void quit() { m_with.guide.quit(); }
  Q_INVOKABLE void accessibilityAppeared() { m_with.accessibility.appear(); }
  Q_INVOKABLE void accessibilityDisappeared() { m_with.accessibility.disappear(); }
  Q_INVOKABLE void requestPermission() { m_with.accessibility.requestPermission(); }

  /// Null where there is no such video, or nothing that plays it.
  [[nodiscard]] std::unique_ptr<VideoLooper> makeVideoLooper(const std::string& name, VideoSize size,
                                                             VideoReceiver receiver) const;

 signals:
  void chordChanged();
  void currentScreenChanged();
  void permissionsGrantedChanged();

 private:
  QString m_chord;
  Collaborators m_with;
  foundation::Subscription m_screenSubscription;
  foundation::Subscription m_permissionSubscription;
};

}  // namespace quillmonger
