#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace quillmonger {

/// One video, shown in silence and from the beginning again at its end. It stands still until it is told to play. Its
/// end is this object's destruction. Main thread.
class VideoLooper {
 public:
  VideoLooper() = default;
  VideoLooper(const VideoLooper&) = delete;
  VideoLooper& operator=(const VideoLooper&) = delete;
  virtual ~VideoLooper() = default;

  /// Goes on where it was paused.
  virtual void play() = 0;
  virtual void pause() = 0;
};

struct VideoSize {
  int width = 0;   ///< pixels
  int height = 0;  ///< pixels
};

/// Who shows it. Called from the main queue, never from within a call of the looper's.
struct VideoReceiver {
  /// The next picture: rows of four bytes a pixel, blue, green, red and 255. Its bytes are valid during
  /// the call alone.
  std::function<void(std::string_view pixels)> frame;
  /// No picture comes any more: it can't be played on this system.
  std::function<void()> failure;
};

/// A looper of the video with that name, in pictures of that size; null where there is no such video, or nothing that
/// plays it.
using VideoLooperFactory =
    std::function<std::unique_ptr<VideoLooper>(const std::string& name, VideoSize size, VideoReceiver receiver)>;

}  // namespace quillmonger
