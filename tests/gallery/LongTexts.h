#pragma once

#include <QCoreApplication>
#include <QTranslator>

#include "Quillmonger/resources/Texts.h"

namespace testsupport {

/// A language whose texts are twice as long, spoken as long as this lives.
class LongTexts final : public QTranslator {
 public:
  LongTexts() { QCoreApplication::installTranslator(this); }

  QString translate(const char* context, const char* key, const char* disambiguation, int count) const override {
    const QString text = m_texts.translate(context, key, disambiguation, count);
    return text.isEmpty() || text.contains(u'{') ? text : text + u' ' + text;
  }
  [[nodiscard]] bool isEmpty() const override { return false; }

 private:
  quillmonger::Texts m_texts;
};

}  // namespace testsupport
