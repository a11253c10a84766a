#pragma once

#include <QQuickImageProvider>

namespace quillmonger {

/// Draws the program's symbols in any colour and size: "image://symbol/<name>?<colour>". A name that no symbol has
/// gives nothing.
class SymbolProvider final : public QQuickImageProvider {
 public:
  SymbolProvider();

  QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

}  // namespace quillmonger
