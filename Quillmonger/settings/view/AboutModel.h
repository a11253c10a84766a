#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <functional>
#include <utility>

namespace quillmonger {

/// What the program says of itself, and where there is more to read. Main thread.
class AboutModel final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  Q_PROPERTY(QString version READ version CONSTANT)

 public:
  enum class Page { privacy, acknowledgements, website };
  Q_ENUM(Page)

  /// `open` shows a page outside the program.
  AboutModel(QString version, std::function<void(Page)> open)
      : m_version(std::move(version)), m_open(std::move(open)) {}

  [[nodiscard]] QString version() const { return m_version; }

  Q_INVOKABLE void open(Page page) { m_open(page); }

 private:
  QString m_version;
  std::function<void(Page)> m_open;
};

}  // namespace quillmonger
