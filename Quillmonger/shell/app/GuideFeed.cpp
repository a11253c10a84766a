#include "Quillmonger/shell/app/GuideFeed.h"

#include <QCoreApplication>
#include <QDir>
#include <utility>

#include "Platform/video/VideoProcess.h"

namespace quillmonger {

namespace {

std::string decoder() {
  return QCoreApplication::applicationDirPath().append(QStringLiteral("/quillmonger-video")).toStdString();
}

// Beside the program, as it is built, or where an installed program has its data.
std::string videoFolder() {
  const QString folder = QCoreApplication::applicationDirPath();
  const QString built = folder + QStringLiteral("/videos");
  return (QDir(built).exists() ? built : folder + QStringLiteral("/../../share/quillmonger/videos")).toStdString();
}

}  // namespace

GuideFeed::GuideFeed(Quillmonger& root, foundation::RunLoop& runLoop, std::function<void()> close)
    : m_guide({[&root] { root.quitApp(); },
               [&root, close = std::move(close)] {
                 root.finishGettingStarted();
                 close();
               }}),
      m_accessibility(root.permissionsManager(), runLoop),
      m_model({m_guide, m_accessibility, platform::VideoProcess::factory(decoder(), videoFolder(), runLoop)}) {}

}  // namespace quillmonger
