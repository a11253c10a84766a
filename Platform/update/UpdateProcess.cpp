#include "Platform/update/UpdateProcess.h"

#include <QCoreApplication>
#include <QProcess>
#include <memory>
#include <string_view>
#include <system_error>
#include <utility>

#include "Foundation/Output.h"
#include "Platform/freedesktop/XdgFolders.h"
#include "Quillmonger/update/UpdateAnswer.h"

namespace platform {

namespace {

using quillmonger::UpdateFailure;
namespace updateanswer = quillmonger::updateanswer;

int exitCodeOf(const QProcess& process) {
  const bool hasEnded = process.error() != QProcess::FailedToStart && process.exitStatus() == QProcess::NormalExit;
  return hasEnded ? process.exitCode() : -1;
}

// Goes with its process, or with the application object.
QProcess* makeProcess(const std::filesystem::path& program, const QStringList& arguments) {
  auto* process = new QProcess(qApp);
  process->setProgram(QString::fromStdString(program.string()));
  process->setArguments(arguments);
  process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
  return process;
}

foundation::Subscription holdOf(QProcess* process, const std::filesystem::path& unfinished = {}) {
  return foundation::Subscription([process, unfinished] {
    process->disconnect();
    QCoreApplication::removePostedEvents(process, QEvent::MetaCall);
    process->kill();
    // Until then it may go on writing.
    process->waitForFinished();
    process->deleteLater();
    std::error_code none;
    std::filesystem::remove(unfinished, none);
  });
}

// In a later turn, as every answer.
void later(QProcess* process, std::function<void()> task) {
  QMetaObject::invokeMethod(process, std::move(task), Qt::QueuedConnection);
}

void start(QProcess* process, const std::function<void()>& finished) {
  QObject::connect(process, &QProcess::finished, process, finished);
  QObject::connect(process, &QProcess::errorOccurred, process, [process, finished](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) later(process, finished);
  });
  process->start(QIODevice::ReadOnly);
}

bool isPlainName(std::string_view name) {
  constexpr std::string_view plain = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz._-+~";
  constexpr std::size_t lengthLimit = 100;
  return !name.empty() && name.size() <= lengthLimit && name.front() != '.' &&
         name.find_first_not_of(plain) == std::string_view::npos;
}

// Its name says to the desktop what it is.
std::string fileNameOf(const quillmonger::Update& update) {
  const auto& url = update.url.absoluteString();
  const auto path = std::string_view(url).substr(0, url.find_first_of("?#"));
  const auto name = path.substr(path.rfind('/') + 1);
  if (isPlainName(name)) return std::string(name);
  const auto named = "quillmonger-" + update.version;
  return isPlainName(named) ? named : "quillmonger-update";
}

void removeAllBut(const std::filesystem::path& file) {
  std::error_code error;
  std::error_code failure;
  for (std::filesystem::directory_iterator entry(file.parent_path(), error), end; !error && entry != end;
       entry.increment(error)) {
    if (entry->path() != file) std::filesystem::remove(entry->path(), failure);
  }
}

// What lies there has been installed, or is not offered any more.
void clear(const std::filesystem::path& folder) {
  std::error_code error;
  if (std::filesystem::exists(folder, error) && ensurePrivateFolder(folder)) removeAllBut(folder / "");
}

bool isTooLong(const QProcess& process) {
  return static_cast<std::size_t>(process.bytesAvailable()) > updateanswer::sizeLimit;
}

// Of the lines that say how much is there, the last.
std::uint64_t lastNumber(const QByteArray& output) {
  const QByteArray lines = output.trimmed();
  return lines.mid(lines.lastIndexOf('\n') + 1).toULongLong();
}

}  // namespace

foundation::Subscription UpdateProcess::check(std::function<void(const CheckResult&)> finished) {
  auto* process = makeProcess(
      m_with.program, {"check", QString::fromStdString(m_with.feed.address.absoluteString()),
                       QString::fromStdString(m_with.feed.publicKey), QString::fromStdString(m_with.ownVersion)});
  QObject::connect(process, &QProcess::readyReadStandardOutput, process, [process] {
    if (isTooLong(*process)) process->kill();
  });
  start(process, [process, folder = m_with.folder, finished = std::move(finished)] {
    if (isTooLong(*process)) return finished(UpdateFailure::untrusted);
    const int code = exitCodeOf(*process);
    if (code != 0) return finished(updateanswer::failureOf(code));
    const auto answer = updateanswer::decode(process->readAllStandardOutput().toStdString());
    if (answer && !*answer) clear(folder);
    finished(answer ? CheckResult(*answer) : CheckResult(UpdateFailure::untrusted));
  });
  return holdOf(process);
}

foundation::Subscription UpdateProcess::download(const quillmonger::Update& update,
                                                 std::function<void(std::uint64_t received)> progressed,
                                                 std::function<void(const DownloadResult&)> finished) {
  const auto file = m_with.folder / fileNameOf(update);
  auto* process = makeProcess(
      m_with.program, {"download", QString::fromStdString(update.url.absoluteString()), QString::number(update.length),
                       QString::fromStdString(update.sha256), QString::fromStdString(file.string())});
  QObject::connect(process, &QProcess::readyReadStandardOutput, process, [process, progressed = std::move(progressed)] {
    progressed(lastNumber(process->readAllStandardOutput()));
  });
  const auto folder = ensurePrivateFolder(m_with.folder);
  if (!folder) {
    foundation::printLine("Updater: ", folder.error().message);
    later(process, [finished = std::move(finished)] { finished(UpdateFailure::notWritten); });
    return holdOf(process);
  }
  removeAllBut(file);
  start(process, [process, file, finished = std::move(finished)] {
    const int code = exitCodeOf(*process);
    finished(code == 0 ? DownloadResult(file) : DownloadResult(updateanswer::failureOf(code)));
  });
  return holdOf(process, file.string() + std::string(updateanswer::partSuffix));
}

}  // namespace platform
