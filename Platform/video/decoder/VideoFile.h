#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswscale/swscale.h>
}

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace decoder {

struct Size {
  int width = 0;
  int height = 0;
};

/// The pictures of a video file one after another, and from the first one again after the last. One thread.
class VideoFile final {
 public:
  /// Pictures are scaled to `size`, in pixels. Null for what is no video, or has a picture of more than 4096 pixels a
  /// side.
  [[nodiscard]] static std::unique_ptr<VideoFile> open(const std::string& path, Size size);

  /// Goes to the next picture. False when the file has none that can be read.
  [[nodiscard]] bool advance();

  /// The picture: rows of four bytes a pixel, blue, green, red and 255.
  [[nodiscard]] const std::vector<std::uint8_t>& pixels() const { return m_pixels; }
  /// How long each picture stands.
  [[nodiscard]] std::chrono::microseconds interval() const { return m_interval; }

 private:
  struct Ending {
    void operator()(AVFormatContext* format) const { avformat_close_input(&format); }
    void operator()(AVCodecContext* codec) const { avcodec_free_context(&codec); }
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    void operator()(SwsContext* scaler) const { sws_freeContext(scaler); }
  };
  template <typename T>
  using Owned = std::unique_ptr<T, Ending>;

  VideoFile(Owned<AVFormatContext> format, Owned<AVCodecContext> codec, int stream, Size size);

  [[nodiscard]] bool decodeNext();
  [[nodiscard]] bool feedDecoder();
  [[nodiscard]] bool rewind();
  [[nodiscard]] bool scale();

  Owned<AVFormatContext> m_format;
  Owned<AVCodecContext> m_codec;
  Owned<AVFrame> m_frame{av_frame_alloc()};
  Owned<AVPacket> m_packet{av_packet_alloc()};
  Owned<SwsContext> m_scaler;
  int m_stream;
  Size m_size;
  std::chrono::microseconds m_interval;
  std::vector<std::uint8_t> m_pixels;
};

}  // namespace decoder
