#include "Quillmonger/shell/app/OutsidePages.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

#include "Foundation/Output.h"

namespace quillmonger {

namespace {

// Beside the program, as it is built, or where an installed program has its documentation.
QUrl acknowledgements() {
  const QString folder = QCoreApplication::applicationDirPath();
  for (const char* place : {"/acknowledgements.html", "/../../share/doc/quillmonger/acknowledgements.html"}) {
    const QFileInfo file(folder + QLatin1String(place));
    if (file.isFile()) return QUrl::fromLocalFile(file.canonicalFilePath());
  }
  return {};
}

QUrl address(AboutModel::Page page) {
  switch (page) {
    case AboutModel::Page::privacy:
      return QUrl(QStringLiteral("https://quillmonger.example/privacy"));
    case AboutModel::Page::acknowledgements:
      return acknowledgements();
    case AboutModel::Page::website:
      return QUrl(QStringLiteral("https://quillmonger.example/"));
  }
  return {};
}

}  // namespace

void openOutsidePage(AboutModel::Page page) {
  const QUrl url = address(page);
  if (url.isEmpty() || !QDesktopServices::openUrl(url))
    foundation::printLine("unable to open the page: ", url.toString().toStdString());
}

}  // namespace quillmonger
