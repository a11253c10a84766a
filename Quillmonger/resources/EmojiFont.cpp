#include "Quillmonger/resources/EmojiFont.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <algorithm>

namespace quillmonger {

QString colourEmojiFamily() {
  const QStringList known{QStringLiteral("Noto Color Emoji"), QStringLiteral("Twemoji"),
                          QStringLiteral("Twitter Color Emoji"), QStringLiteral("OpenMoji Color"),
                          QStringLiteral("JoyPixels")};
  const auto found =
      std::ranges::find_if(known, [](const QString& family) { return QFontDatabase::hasFamily(family); });
  return found == known.end() ? QString() : *found;
}

void preferColourEmoji() {
  const QString emoji = colourEmojiFamily();
  if (emoji.isEmpty()) return;
  QFont font = QGuiApplication::font();
  // The usual font stays the first, since fonts for emoji have digits, too. A name that only stands for it, as "Sans"
  // does, wouldn't do.
  font.setFamilies({QFontInfo(font).family(), emoji});
  QGuiApplication::setFont(font);
}

}  // namespace quillmonger
