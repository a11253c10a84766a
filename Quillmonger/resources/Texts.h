#pragma once

#include <QTranslator>
#include <string>
#include <string_view>

namespace quillmonger {

/// The English texts by their keys. Installed first, so that a translation that is installed later has precedence and
/// what it lacks is still read here.
class Texts final : public QTranslator {
 public:
  QString translate(const char* context, const char* key, const char* disambiguation, int count) const override;
  [[nodiscard]] bool isEmpty() const override { return false; }
};

/// The text of a key in the user's language; the key itself when there is none. Main thread.
[[nodiscard]] std::string localizedText(std::string_view key);

}  // namespace quillmonger
