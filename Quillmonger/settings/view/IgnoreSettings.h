#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "Defaults/Defaults.h"

namespace quillmonger {

/// The switches of the pane "ignore". A change is written at once, and one from elsewhere is seen at once. Main thread.
class IgnoreSettings final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(bool ignoreSensitiveData READ ignoreSensitiveData WRITE setIgnoreSensitiveData NOTIFY changed)
  Q_PROPERTY(bool ignoreImages READ ignoreImages WRITE setIgnoreImages NOTIFY changed)

 public:
  /// `defaults` outlives this object.
  explicit IgnoreSettings(defaults::Defaults& defaults);

  [[nodiscard]] bool ignoreSensitiveData() const;
  void setIgnoreSensitiveData(bool isOn);
  [[nodiscard]] bool ignoreImages() const;
  void setIgnoreImages(bool isOn);

 signals:
  void changed();

 private:
  defaults::Defaults& m_defaults;
  foundation::Subscription m_sensitiveSubscription;
  foundation::Subscription m_imagesSubscription;
};

}  // namespace quillmonger
