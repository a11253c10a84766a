#include "Platform/video/VideoProcess.h"

#include <QFileInfo>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <optional>
#include <utility>

namespace platform {

namespace {

constexpr std::size_t bytesOfAPixel = 4;

struct Head {
  std::uint32_t microseconds = 0;
  std::uint32_t byteCount = 0;
};

// Absent until it is there as a whole.
std::optional<Head> headOf(const QByteArray& bytes) {
  Head head;
  if (bytes.size() < static_cast<qsizetype>(sizeof head)) return std::nullopt;
  std::memcpy(&head, bytes.constData(), sizeof head);
  return head;
}

std::size_t bytesBeyondHead(const QByteArray& bytes) { return static_cast<std::size_t>(bytes.size()) - sizeof(Head); }

}  // namespace

quillmonger::VideoLooperFactory VideoProcess::factory(std::string decoderPath, std::string folder,
                                                      foundation::RunLoop& runLoop) {
  return [decoder = std::move(decoderPath), folder = std::move(folder), &runLoop](
             const std::string& name, quillmonger::VideoSize size,
             quillmonger::VideoReceiver receiver) -> std::unique_ptr<quillmonger::VideoLooper> {
    const std::string file = folder + "/" + name + ".mp4";
    const bool isThere = QFileInfo(QString::fromStdString(file)).isFile();
    const bool canBePlayed = QFileInfo(QString::fromStdString(decoder)).isExecutable();
    if (!isThere || !canBePlayed) return nullptr;
    return std::make_unique<VideoProcess>(decoder, file, size, std::move(receiver), runLoop);
  };
}

VideoProcess::VideoProcess(const std::string& decoderPath, const std::string& file, quillmonger::VideoSize size,
                           quillmonger::VideoReceiver receiver, foundation::RunLoop& runLoop)
    : m_receiver(std::move(receiver)),
      m_runLoop(runLoop),
      m_pictureSize(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height) * bytesOfAPixel) {
  // All pictures come into the same place.
  m_bytes.reserve(qsizetype{sizeof(Head)} + static_cast<qsizetype>(m_pictureSize));
  m_process.setProgram(QString::fromStdString(decoderPath));
  m_process.setArguments({QString::fromStdString(file), QString::number(size.width), QString::number(size.height)});
  m_process.setStandardErrorFile(QProcess::nullDevice());
  QObject::connect(&m_process, &QProcess::readyReadStandardOutput, &m_process, [this] { takeBytes(); });
  QObject::connect(&m_process, &QProcess::finished, &m_process, [this] { fail(); });
  QObject::connect(&m_process, &QProcess::errorOccurred, &m_process, [this](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) fail();
  });
}

VideoProcess::~VideoProcess() { stop(); }

void VideoProcess::stop() {
  m_process.disconnect();
  if (m_process.state() == QProcess::NotRunning) return;
  m_process.kill();
  m_process.waitForFinished();
}

void VideoProcess::play() {
  if (m_hasFailed || std::exchange(m_isPlaying, true)) return;
  if (m_process.state() == QProcess::NotRunning) {
    m_process.start();
    askForPicture();
  }
  wait(foundation::Seconds(0));
}

void VideoProcess::pause() {
  // What waits now is the word of it.
  if (m_hasFailed) return;
  m_isPlaying = false;
  m_turn.cancel();
}

void VideoProcess::askForPicture() { m_process.write("\n"); }

void VideoProcess::wait(foundation::Seconds time) {
  m_isDue = false;
  m_turn = m_runLoop.after(time, [this] {
    m_isDue = true;
    showPicture();
  });
}

void VideoProcess::takeBytes() {
  const qsizetype before = m_bytes.size();
  m_bytes.resize(before + m_process.bytesAvailable());
  m_bytes.resize(before + m_process.read(m_bytes.data() + before, m_bytes.size() - before));
  const auto head = headOf(m_bytes);
  if (!head) return;
  const bool isOurSize = head->byteCount == 0 || head->byteCount == m_pictureSize;
  if (!isOurSize || bytesBeyondHead(m_bytes) > head->byteCount) {
    fail();
  } else {
    showPicture();
  }
}

void VideoProcess::showPicture() {
  const auto head = headOf(m_bytes);
  const bool isComplete = head && bytesBeyondHead(m_bytes) == head->byteCount;
  if (!m_isPlaying || !m_isDue || !isComplete) return;
  if (head->byteCount > 0) m_receiver.frame({m_bytes.constData() + sizeof(Head), head->byteCount});
  m_bytes.resize(0);
  // The next one is read while this one is shown.
  askForPicture();
  wait(std::chrono::microseconds(head->microseconds));
}

void VideoProcess::fail() {
  stop();
  m_hasFailed = true;
  m_isPlaying = false;
  m_turn = m_runLoop.after(foundation::Seconds(0), [this] { m_receiver.failure(); });
}

}  // namespace platform
