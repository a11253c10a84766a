#include "Platform/video/decoder/VideoFile.h"

#include <algorithm>
#include <array>
#include <utility>

namespace decoder {

namespace {

constexpr int longestSide = 4096;
constexpr int bytesOfAPixel = 4;

bool isSupported(int width, int height) {
  return width > 0 && width <= longestSide && height > 0 && height <= longestSide;
}

// Of damaged files the rate may be anything.
std::chrono::microseconds intervalOf(AVFormatContext* format, AVStream* stream) {
  constexpr double slowest = 1;
  constexpr double fastest = 60;
  const double rate = av_q2d(av_guess_frame_rate(format, stream, nullptr));
  return std::chrono::microseconds(static_cast<std::int64_t>(1'000'000 / std::clamp(rate, slowest, fastest)));
}

}  // namespace

std::unique_ptr<VideoFile> VideoFile::open(const std::string& path, Size size) {
  if (!isSupported(size.width, size.height)) return nullptr;
  AVFormatContext* opened = nullptr;
  // Nothing that the file could name is opened besides it.
  AVDictionary* options = nullptr;
  av_dict_set(&options, "protocol_whitelist", "file", 0);
  const bool isOpen = avformat_open_input(&opened, path.c_str(), nullptr, &options) == 0;
  av_dict_free(&options);
  if (!isOpen) return nullptr;
  Owned<AVFormatContext> format(opened);
  if (avformat_find_stream_info(format.get(), nullptr) < 0) return nullptr;
  const AVCodec* kind = nullptr;
  const int stream = av_find_best_stream(format.get(), AVMEDIA_TYPE_VIDEO, -1, -1, &kind, 0);
  if (stream < 0 || kind == nullptr) return nullptr;
  Owned<AVCodecContext> codec(avcodec_alloc_context3(kind));
  if (!codec || avcodec_parameters_to_context(codec.get(), format->streams[stream]->codecpar) < 0) return nullptr;
  // One picture at a time is all that is asked for; each thread would hold pictures of its own.
  codec->thread_count = 1;
  // Its pictures may be larger than the file says at its beginning.
  codec->max_pixels = std::int64_t{longestSide} * longestSide;
  if (!isSupported(codec->width, codec->height) || avcodec_open2(codec.get(), kind, nullptr) < 0) return nullptr;
  return std::unique_ptr<VideoFile>(new VideoFile(std::move(format), std::move(codec), stream, size));
}

VideoFile::VideoFile(Owned<AVFormatContext> format, Owned<AVCodecContext> codec, int stream, Size size)
    : m_format(std::move(format)),
      m_codec(std::move(codec)),
      m_stream(stream),
      m_size(size),
      m_interval(intervalOf(m_format.get(), m_format->streams[stream])),
      m_pixels(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height) * bytesOfAPixel) {}

bool VideoFile::advance() {
  const bool isThere = decodeNext() || (rewind() && decodeNext());
  return isThere && scale();
}

bool VideoFile::decodeNext() {
  for (;;) {
    const int outcome = avcodec_receive_frame(m_codec.get(), m_frame.get());
    if (outcome == 0) return true;
    if (outcome != AVERROR(EAGAIN) || !feedDecoder()) return false;
  }
}

// At the end of the file the decoder is told so, and gives what it still holds.
bool VideoFile::feedDecoder() {
  while (av_read_frame(m_format.get(), m_packet.get()) == 0) {
    const bool isOurs = m_packet->stream_index == m_stream;
    const bool isTaken = isOurs && avcodec_send_packet(m_codec.get(), m_packet.get()) == 0;
    av_packet_unref(m_packet.get());
    if (isOurs) return isTaken;
  }
  return avcodec_send_packet(m_codec.get(), nullptr) == 0;
}

bool VideoFile::rewind() {
  avcodec_flush_buffers(m_codec.get());
  return av_seek_frame(m_format.get(), m_stream, 0, AVSEEK_FLAG_BACKWARD) >= 0;
}

bool VideoFile::scale() {
  if (!isSupported(m_frame->width, m_frame->height)) return false;
  m_scaler.reset(sws_getCachedContext(m_scaler.release(), m_frame->width, m_frame->height,
                                      static_cast<AVPixelFormat>(m_frame->format), m_size.width, m_size.height,
                                      AV_PIX_FMT_BGRA, SWS_AREA | SWS_ACCURATE_RND, nullptr, nullptr, nullptr));
  if (!m_scaler) return false;
  const std::array<std::uint8_t*, 4> planes{m_pixels.data(), nullptr, nullptr, nullptr};
  const std::array<int, 4> strides{m_size.width * bytesOfAPixel, 0, 0, 0};
  return sws_scale(m_scaler.get(), m_frame->data, m_frame->linesize, 0, m_frame->height, planes.data(),
                   strides.data()) == m_size.height;
}

}  // namespace decoder
