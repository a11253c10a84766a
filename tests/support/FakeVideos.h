#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Quillmonger/guide/VideoLooper.h"

namespace testsupport {

/// The videos of a test: it notes which are there and play, and the test hands out their pictures.
class FakeVideos final {
 public:
  struct Video {
    std::string name;
    quillmonger::VideoSize size;
    quillmonger::VideoReceiver receiver;
    bool isPlaying = false;
    bool isGone = false;
  };

  [[nodiscard]] quillmonger::VideoLooperFactory factory() {
    return [this](const std::string& name, quillmonger::VideoSize size,
                  quillmonger::VideoReceiver receiver) -> std::unique_ptr<quillmonger::VideoLooper> {
      if (!m_areThere) return nullptr;
      m_videos.push_back(std::make_shared<Video>(Video{name, size, std::move(receiver)}));
      return std::make_unique<Looper>(m_videos.back());
    };
  }

  /// From now on there are none.
  void remove() { m_areThere = false; }
  /// Each that was ever made, in order.
  [[nodiscard]] const std::vector<std::shared_ptr<Video>>& all() const { return m_videos; }
  [[nodiscard]] Video& last() const { return *m_videos.back(); }
  /// A picture of the video made last: all its pixels have this colour.
  void showPicture(unsigned char red, unsigned char green, unsigned char blue) const {
    std::string pixels;
    const Video& video = last();
    for (int pixel = 0; pixel < video.size.width * video.size.height; ++pixel)
      for (const int value : {int{blue}, int{green}, int{red}, 255})
        pixels += static_cast<char>(value);
    video.receiver.frame(pixels);
  }

 private:
  class Looper final : public quillmonger::VideoLooper {
   public:
    explicit Looper(std::shared_ptr<Video> video) : m_video(std::move(video)) {}
    ~Looper() override { *m_video = {m_video->name, m_video->size, {}, false, true}; }

    void play() override { m_video->isPlaying = true; }
    void pause() override { m_video->isPlaying = false; }

   private:
    std::shared_ptr<Video> m_video;
  };

  bool m_areThere = true;
  std::vector<std::shared_ptr<Video>> m_videos;
};

}  // namespace testsupport
