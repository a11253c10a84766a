#include "Quillmonger/update/UpdateContent.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quillmonger {

namespace {

using Answer = UpdateContent::Answer;
using Stage = UpdateStatus::Stage;

constexpr double progressUnknown = -1;

std::string filled(std::string text, std::string_view mark, std::string_view value) {
  const auto place = text.find(mark);
  if (place != std::string::npos) text.replace(place, mark.size(), value);
  return text;
}

std::string_view keyOf(UpdateFailure failure) {
  switch (failure) {
    case UpdateFailure::unreachable:
      return "update_failed_unreachable";
    case UpdateFailure::untrusted:
      return "update_failed_untrusted";
    case UpdateFailure::damaged:
      return "update_failed_damaged";
    case UpdateFailure::notWritten:
      return "update_failed_not_written";
    case UpdateFailure::notOpened:
      return "update_failed_not_opened";
  }
  return {};
}

double progressOf(const UpdateStatus& status) {
  return std::min(1.0, static_cast<double>(status.received) / static_cast<double>(status.update->length));
}

// "42 % of 12 MB"; of a small file the size is no 0.
std::string progressMessage(const UpdateStatus& status, const foundation::TextLookup& texts) {
  constexpr std::uint64_t megabyte = 1'000'000;
  const auto percent = std::to_string(static_cast<int>(progressOf(status) * 100));
  const auto size = std::to_string(std::max<std::uint64_t>(1, (status.update->length + megabyte / 2) / megabyte));
  return filled(filled(texts("update_downloading_message"), "%1", percent), "%2", size);
}

}  // namespace

UpdateContent updateContent(const UpdateStatus& status, std::string_view ownVersion,
                            const foundation::TextLookup& texts) {
  const auto button = [&texts](std::string_view key, Answer answer) {
    return UpdateContent::Button{texts(key), answer};
  };
  const auto withVersion = [&](std::string_view key) { return filled(texts(key), "%1", status.update->version); };
  const auto withOwnVersion = [&](std::string_view key) { return filled(texts(key), "%1", ownVersion); };
  switch (status.stage) {
    case Stage::checking:
      return {.heading = texts("update_checking_title"),
              .progress = progressUnknown,
              .buttons = {button("cancel_string", Answer::close)}};
    case Stage::upToDate:
      return {.heading = texts("update_none_title"),
              .message = withOwnVersion("update_none_message"),
              .buttons = {button("ok_string", Answer::close)}};
    case Stage::available:
      return {.heading = withVersion("update_available_title"),
              .message = withOwnVersion(status.update->notes.empty() ? "update_available_message"
                                                                     : "update_available_notes_message"),
              .notes = status.update->notes,
              .buttons = {button("update_download_button", Answer::download),
                          button("update_later_button", Answer::close), button("update_skip_button", Answer::skip)}};
    case Stage::downloading:
      return {.heading = withVersion("update_downloading_title"),
              .message = progressMessage(status, texts),
              .progress = progressOf(status),
              .buttons = {button("cancel_string", Answer::close)}};
    case Stage::ready:
      return {.heading = withVersion("update_ready_title"),
              .message = texts("update_ready_message"),
              .notes = status.update->notes,
              .buttons = {button("update_install_button", Answer::install),
                          button("update_later_button", Answer::close), button("update_skip_button", Answer::skip)}};
    case Stage::failed:
      return {.heading = texts("update_failed_title"),
              .message = texts(keyOf(status.failure)),
              .buttons = {button("ok_string", Answer::close)}};
  }
  return {};
}

}  // namespace quillmonger
