#pragma once

#include <QByteArray>
#include <QProcess>
#include <memory>
#include <string>

#include "Foundation/RunLoop.h"
#include "Foundation/Subscription.h"
#include "Quillmonger/guide/VideoLooper.h"

namespace platform {

/// A video whose pictures a small program of its own reads (decoder/main.cpp): no video library enters this process, a
/// damaged file harms nothing here, and what it took of memory is free again at its end. It hands out a picture when it
/// is asked for one, so that nothing piles up. Main thread, after the application object.
class VideoProcess final : public quillmonger::VideoLooper {
 public:
  /// Makes loopers of the MP4 files in `folder`, read by the program at `decoderPath`. `runLoop` outlives them.
  [[nodiscard]] static quillmonger::VideoLooperFactory factory(std::string decoderPath, std::string folder,
                                                               foundation::RunLoop& runLoop);

  VideoProcess(const std::string& decoderPath, const std::string& file, quillmonger::VideoSize size,
               quillmonger::VideoReceiver receiver, foundation::RunLoop& runLoop);
  VideoProcess(const VideoProcess&) = delete;
  VideoProcess& operator=(const VideoProcess&) = delete;
  ~VideoProcess() override;

  void play() override;
  void pause() override;

 private:
  void askForPicture();
  void takeBytes();
  /// The present picture stands for that long, from now on.
  void wait(foundation::Seconds time);
  void showPicture();
  void fail();
  void stop();

  quillmonger::VideoReceiver m_receiver;
  foundation::RunLoop& m_runLoop;
  std::size_t m_pictureSize;
  QProcess m_process;
  QByteArray m_bytes;  // of the next picture, as far as it is there
  bool m_isPlaying = false;
  bool m_hasFailed = false;
  bool m_isDue = false;  // the present picture has stood as long as it should
  foundation::Subscription m_turn;
};

}  // namespace platform
