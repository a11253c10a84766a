#pragma once

#include <functional>
#include <memory>
#include <string>

#include "Foundation/Result.h"

namespace quillmonger {

/// One sound. It ends with this object, also in its middle. Main thread; nothing blocks, also without a sound service.
class AudioPlayer {
 public:
  AudioPlayer() = default;
  AudioPlayer(const AudioPlayer&) = delete;
  AudioPlayer& operator=(const AudioPlayer&) = delete;
  virtual ~AudioPlayer() = default;

  /// A factor of the samples: 0 is silence, 1 is as recorded, and what more than 1 makes too loud is cut at full scale.
  virtual void setVolume(float volume) = 0;
  /// Starts to play, once.
  virtual void play() = 0;
};

/// Loads the WAV file at a place that a resource lookup gave.
using AudioPlayerFactory = std::function<foundation::Result<std::unique_ptr<AudioPlayer>>(const std::string& place)>;

}  // namespace quillmonger
