#include "Quillmonger/shell/app/OutsidePages.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace quillmonger {

namespace {

foundation::Url fileUrl(const QString& path) { return foundation::Url::fromFilePath(path.toStdString()); }

// Beside the program, as it is built, or where an installed program has its documentation.
foundation::Url acknowledgements() {
  const QFileInfo built(QCoreApplication::applicationDirPath() + QStringLiteral("/acknowledgements.html"));
  if (built.isFile()) return fileUrl(built.canonicalFilePath());
  const QFileInfo installed(QCoreApplication::applicationDirPath() +
                            QStringLiteral("/../../share/doc/quillmonger/acknowledgements.html"));
  return fileUrl(QDir::cleanPath(installed.filePath()));
}

}  // namespace

foundation::Url outsidePage(AboutModel::Page page) {
  switch (page) {
    case AboutModel::Page::acknowledgements:
      return acknowledgements();
    case AboutModel::Page::privacy:
      return *foundation::Url::parse("https://quillmonger.example/privacy");
    case AboutModel::Page::website:
      break;
  }
  return *foundation::Url::parse("https://quillmonger.example/");
}

}  // namespace quillmonger
