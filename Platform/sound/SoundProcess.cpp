#include "Platform/sound/SoundProcess.h"

#include <QFile>
#include <memory>
#include <utility>

#include "Platform/sound/WavFile.h"

namespace platform {

namespace {

foundation::Result<std::unique_ptr<quillmonger::AudioPlayer>> load(const std::string& playerPath,
                                                                   const std::string& place) {
  QFile file(QString::fromStdString(place));
  if (!file.open(QIODevice::ReadOnly)) return foundation::Error{file.errorString().toStdString()};
  constexpr qint64 moreThanAnySound = 8'000'000;
  const QByteArray bytes = file.read(moreThanAnySound);
  const auto sound = WavFile::parse({bytes.constData(), static_cast<std::size_t>(bytes.size())});
  if (!sound) return sound.error();
  const auto& [channels, rate, samples] = sound.value();
  return std::unique_ptr<quillmonger::AudioPlayer>(
      std::make_unique<SoundProcess>(playerPath, static_cast<int>(rate), channels, std::string(samples)));
}

}  // namespace

quillmonger::AudioPlayerFactory SoundProcess::factory(const std::string& playerPath) {
  return [playerPath](const std::string& place) { return load(playerPath, place); };
}

SoundProcess::SoundProcess(const std::string& playerPath, int rate, int channels, std::string samples)
    : m_samples(std::move(samples)) {
  m_process.setProgram(QString::fromStdString(playerPath));
  m_process.setArguments({QString::number(rate), QString::number(channels)});
  m_process.setStandardOutputFile(QProcess::nullDevice());
  m_process.setStandardErrorFile(QProcess::nullDevice());
}

SoundProcess::~SoundProcess() {
  if (m_process.state() == QProcess::NotRunning) return;
  m_process.kill();
  m_process.waitForFinished();
}

void SoundProcess::play() {
  const auto samples = amplified(m_samples, m_volume);
  m_process.start();
  m_process.write(samples.data(), static_cast<qint64>(samples.size()));
  m_process.closeWriteChannel();
}

}  // namespace platform
