#include "tests/gallery/TileIcon.h"

#include <QColor>
#include <QFile>
#include <QString>
#include <functional>

namespace testsupport {

void drawTileIcon(const std::filesystem::path& file, const std::string& name) {
  QFile icon(QString::fromStdString(file.string()));
  if (!icon.open(QIODevice::WriteOnly)) return;
  const auto hue = static_cast<int>(std::hash<std::string>{}(name) % 360);
  icon.write(QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 32 32' width='32' height='32'>"
                            "<rect x='3' y='3' width='26' height='26' rx='7' fill='%1'/><text x='16' y='22' "
                            "font-size='16' fill='white' text-anchor='middle'>%2</text></svg>")
                 .arg(QColor::fromHsv(hue, 150, 200).name(), QString::fromStdString(name).left(1))
                 .toUtf8());
}

}  // namespace testsupport
