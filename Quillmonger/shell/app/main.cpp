#include <QGuiApplication>
#include <QQuickWindow>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "Platform/freedesktop/SingleInstance.h"
#include "Platform/freedesktop/XdgFolders.h"
#include "Platform/qt/QtTerminationSignals.h"
#include "Quillmonger/resources/Texts.h"
#include "Quillmonger/shell/app/Composition.h"

namespace {

// What the toolkit has to know before it is there.
void prepareToolkit() {
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
  QCoreApplication::setApplicationName(QStringLiteral("quillmonger"));
  QCoreApplication::setApplicationVersion(QStringLiteral(QUILLMONGER_VERSION));
  QGuiApplication::setApplicationDisplayName(QStringLiteral("Quillmonger"));
  QGuiApplication::setDesktopFileName(QStringLiteral("quillmonger"));
  QGuiApplication::setQuitOnLastWindowClosed(false);
}

int run(int argc, char** argv, const platform::XdgFolders& folders, const std::vector<std::string>& arguments) {
  // Before any thread is started, so that every one of them leaves the signals to it.
  platform::QtTerminationSignals termination;
  prepareToolkit();
  QGuiApplication application(argc, argv);
  quillmonger::Texts texts;
  QCoreApplication::installTranslator(&texts);
  quillmonger::Composition composition(folders, arguments);
  termination.onTermination([&composition] { composition.quit(); });
  QObject::connect(&application, &QCoreApplication::aboutToQuit, [&composition] { composition.saveChanges(); });
  composition.launch(arguments);
  return QGuiApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  const auto folders = platform::XdgFolders::present();
  if (std::getenv("DISPLAY") == nullptr) {
    std::cerr << "Quillmonger needs an X11 display: DISPLAY is not set.\n";
    return 1;
  }
  const auto instance = platform::SingleInstance::claim(folders.runtime);
  if (!instance) {
    std::cerr << "Quillmonger is running already; `quillmonger show` shows its history.\n";
    return 1;
  }
  return run(argc, argv, folders, arguments);
}
