#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "Quillmonger/settings/panes/SettingRange.h"

namespace quillmonger {

/// A setting with the numbers of a range, as a slider shows it. Main thread.
class RangeModel final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(double from READ from CONSTANT)
  Q_PROPERTY(double to READ to CONSTANT)
  Q_PROPERTY(double step READ step CONSTANT)
  Q_PROPERTY(double value READ value NOTIFY valueChanged)

 public:
  /// `defaults` outlives this object.
  template <typename T>
  RangeModel(defaults::Defaults& defaults, const defaults::Key<T>& key, const SettingRange::Bounds& bounds)
      : m_range(defaults, key, bounds, [this] { emit valueChanged(); }) {}

  [[nodiscard]] double from() const { return m_range.bounds().from; }
  [[nodiscard]] double to() const { return m_range.bounds().to; }
  /// 0 where there are none.
  [[nodiscard]] double step() const { return m_range.bounds().step; }
  [[nodiscard]] double value() const { return m_range.value(); }
  Q_INVOKABLE void set(double value) { m_range.set(value); }

 signals:
  void valueChanged();

 private:
  SettingRange m_range;
};

}  // namespace quillmonger
