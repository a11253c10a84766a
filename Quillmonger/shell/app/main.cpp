#include <QClipboard>
#include <QGuiApplication>
#include <QQuickWindow>
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "Foundation/Output.h"
#include "Platform/freedesktop/SingleInstance.h"
#include "Platform/freedesktop/XdgFolders.h"
#include "Platform/qt/QtTerminationSignals.h"
#include "Quillmonger/resources/Texts.h"
#include "Quillmonger/shell/app/Composition.h"
#include "Quillmonger/shell/client/Connection.h"
#include "Quillmonger/shell/command/CommandMessage.h"
#include "Quillmonger/shell/command/CommandSyntax.h"

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

quillmonger::Composition* running = nullptr;

// The toolkit calls exit when the display is gone. Nothing on the stack ends then, while the services' threads go on.
void saveAtExit() {
  if (running == nullptr) return;
  std::exchange(running, nullptr)->saveChanges();
  foundation::printLine("Quillmonger lost the display. The history is saved.");
  std::_Exit(EXIT_FAILURE);
}

int run(int argc, char** argv, const platform::XdgFolders& folders, const std::vector<std::string>& arguments) {
  prepareToolkit();
  QGuiApplication application(argc, argv);
  // The toolkit's clipboard must never be asked: it waits for the owner in this thread, five seconds if that one hangs.
  // Its text fields ask at each change that they hear of.
  QGuiApplication::clipboard()->blockSignals(true);
  quillmonger::Texts texts;
  QCoreApplication::installTranslator(&texts);
  quillmonger::Composition composition(folders, arguments);
  const platform::QtTerminationSignals termination([&composition] { composition.quit(); });
  QObject::connect(&application, &QCoreApplication::aboutToQuit, [&composition] { composition.saveChanges(); });
  composition.launch(arguments);
  running = &composition;
  std::atexit(&saveAtExit);
  const int exitCode = QGuiApplication::exec();
  running = nullptr;
  return exitCode;
}

// The right to be the one that runs. Null when another one runs, which has got the words then.
std::unique_ptr<platform::SingleInstance> claimOrHandOver(const platform::XdgFolders& folders,
                                                          const std::vector<std::string>& arguments) {
  constexpr auto patience = std::chrono::seconds(5);
  std::vector<std::string> words;
  std::ranges::copy_if(arguments, std::back_inserter(words), quillmonger::isUrlWord);
  if (words.empty()) words.emplace_back("show");
  const auto deadline = std::chrono::steady_clock::now() + patience;
  for (;;) {
    if (auto instance = platform::SingleInstance::claim(folders.runtime)) return instance;
    auto first = quillmonger::Connection::open(folders.runtime / "socket");
    if (first && first->request(quillmonger::commandmessage::encode({words, {}}), patience)) return nullptr;
    // It is about to end, or has just begun.
    if (std::chrono::steady_clock::now() > deadline) return nullptr;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
}

}  // namespace

int main(int argc, char** argv) {
  // Whoever reads the diagnostic lines may go away.
  std::signal(SIGPIPE, SIG_IGN);
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  const auto folders = platform::XdgFolders::present();
  if (std::getenv("DISPLAY") == nullptr) {
    std::cerr << "Quillmonger needs an X11 display: DISPLAY is not set.\n";
    return 1;
  }
  const auto instance = claimOrHandOver(folders, arguments);
  if (!instance) return 0;
  return run(argc, argv, folders, arguments);
}
