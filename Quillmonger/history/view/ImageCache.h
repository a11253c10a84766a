#pragma once

#include <QHash>
#include <QImage>
#include <QQuickImageProvider>
#include <functional>
#include <optional>
#include <string>

namespace quillmonger {

/// The icons of applications by the paths of their desktop entries: "image://appicon/<escaped path>". Each is looked up
/// once and kept in memory. Main thread.
class ImageCache final : public QQuickImageProvider {
 public:
  /// Gives the icon that a desktop entry names: an icon name of the theme, or the path of a picture.
  using IconNaming = std::function<std::optional<std::string>(const std::string& path)>;

  explicit ImageCache(IconNaming iconNaming);

  /// A general picture for an entry without an icon, so that every path has one.
  QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

 private:
  [[nodiscard]] QImage icon(const QString& path, int edge) const;

  IconNaming m_iconNaming;
  QHash<QString, QImage> m_icons;
};

}  // namespace quillmonger
