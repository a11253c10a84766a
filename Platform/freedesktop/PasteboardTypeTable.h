#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace platform {

/// The one table between the desktop's names of clipboard formats, which are X targets and MIME types, and the uniform
/// type identifiers that the rest of the program speaks. Any thread.
class PasteboardTypeTable final {
 public:
  struct Entry {
    std::string_view type;
    /// The names under which owners offer it, best first.
    std::span<const std::string_view> readingNames;
    /// The names under which it is offered to others.
    std::span<const std::string_view> writingNames;
  };

  static constexpr std::string_view uriList = "text/uri-list";
  static constexpr std::string_view passwordHint = "x-kde-passwordManagerHint";
  /// The value by which the hint marks a secret.
  static constexpr std::string_view passwordHintValue = "secret";
  /// The one text name whose bytes are Latin-1; those of all others are UTF-8.
  static constexpr std::string_view latin1Name = "STRING";

  /// The entry of an identifier; null when it has none and travels under its own name.
  [[nodiscard]] static const Entry* entryForType(std::string_view type);
  /// The entry that reads a name, however its MIME type is spelled; null when there is none.
  [[nodiscard]] static const Entry* entryForName(std::string_view name);
  /// The place of a name in its entry's `readingNames`, for comparing two names of one entry. Only for a name of it.
  [[nodiscard]] static std::size_t preference(const Entry& entry, std::string_view name);

  /// Whether a name stands for a format at all. Names without "/" or "." are targets of the X protocol and of
  /// toolkits, and some with one are a browser's talk with itself.
  [[nodiscard]] static bool isFormat(std::string_view name);
  /// Whether its owner suffers when it is asked for: links and embedded objects of office programs.
  [[nodiscard]] static bool isCostly(std::string_view name);
  /// Whether the owner that offers this name is an office program, whose pictures are renderings of cells or text.
  [[nodiscard]] static bool isOfficeFormat(std::string_view name);
  /// Whether the name is a picture of any encoding.
  [[nodiscard]] static bool isPicture(std::string_view name);
  /// Whether the picture can be more than pixels, so that PNG does not replace it: drawings, and images in layers.
  [[nodiscard]] static bool isDrawing(std::string_view name);
  /// Whether the name is plain text in some encoding.
  [[nodiscard]] static bool isPlainText(std::string_view name);
};

}  // namespace platform
