#pragma once

#include <QProcess>
#include <string>

#include "Foundation/Result.h"
#include "Quillmonger/shell/AudioPlayer.h"

namespace platform {

/// A sound that a small program of its own plays (player/main.cpp): no sound library stays in this process, none can
/// hang it, and ending that program ends the sound. Main thread, after the application object.
class SoundProcess final : public quillmonger::AudioPlayer {
 public:
  /// Makes players that run the program at `playerPath`. They take a file or resource of Qt's as a place.
  [[nodiscard]] static quillmonger::AudioPlayerFactory factory(const std::string& playerPath);

  SoundProcess(const std::string& playerPath, int rate, int channels, std::string samples);
  SoundProcess(const SoundProcess&) = delete;
  SoundProcess& operator=(const SoundProcess&) = delete;
  ~SoundProcess() override;

  void setVolume(float volume) override { m_volume = volume; }
  void play() override;

 private:
  std::string m_samples;
  float m_volume = 1;
  QProcess m_process;
};

}  // namespace platform
