#include "Quillmonger/detection/JsonDetector.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "Foundation/Output.h"
#include "Quillmonger/detection/JsonReader.h"
#include "Quillmonger/detection/JsonWriter.h"

namespace quillmonger {

namespace {

std::int32_t breakClass(UChar32 character) { return u_getIntPropertyValue(character, UCHAR_GRAPHEME_CLUSTER_BREAK); }

// A bracket with a mark on it is another character than the bracket.
bool startsWithCharacter(std::string_view text, char bracket) {
  if (!text.starts_with(bracket)) return false;
  if (text.size() == 1) return true;
  std::size_t at = 1;
  UChar32 next = 0;
  U8_NEXT(reinterpret_cast<const std::uint8_t*>(text.data()), at, text.size(), next);
  const std::int32_t type = breakClass(next);
  return type != U_GCB_EXTEND && type != U_GCB_ZWJ && type != U_GCB_SPACING_MARK;
}

// A few signs make one character with what follows them.
bool endsWithCharacter(std::string_view text, char bracket) {
  if (!text.ends_with(bracket)) return false;
  if (text.size() == 1) return true;
  const std::string_view before = text.substr(0, text.size() - 1);
  const std::string_view last = before.substr(before.size() - std::min<std::size_t>(before.size(), U8_MAX_LENGTH));
  auto at = static_cast<std::int32_t>(last.size());
  UChar32 previous = 0;
  U8_PREV(reinterpret_cast<const std::uint8_t*>(last.data()), 0, at, previous);
  return breakClass(previous) != U_GCB_PREPEND;
}

bool isBetween(std::string_view text, char opening, char closing) {
  return startsWithCharacter(text, opening) && endsWithCharacter(text, closing);
}

std::optional<std::string> reformat(std::string_view json, JsonStyle style, std::string_view errorPrefix) {
  JsonWriter writer(style);
  if (const auto error = rewriteJson(json, writer)) {
    foundation::printLine(errorPrefix, *error);
    return std::nullopt;
  }
  return writer.take();
}

}  // namespace

bool JsonDetector::mayDetect(std::string_view start) const {
  return startsWithCharacter(start, '{') || startsWithCharacter(start, '[');
}

std::unique_ptr<const OculetDetectionResult> JsonDetector::detect(std::string_view text) const {
  if (!isBetween(text, '{', '}') && !isBetween(text, '[', ']')) return nullptr;
  if (const auto error = checkJson(text)) {
    foundation::printLine("could not JSON deserialize: ", *error);
    return nullptr;
  }
  return std::make_unique<const JsonResult>(text);
}

std::optional<std::string> JsonDetector::JsonResult::beautified() const {
  return reformat(json, JsonStyle::prettyPrinted, "Error pretty printing JSON: ");
}

std::optional<std::string> JsonDetector::JsonResult::minified() const {
  return reformat(json, JsonStyle::oneLine, "Error compacting JSON to one line: ");
}

}  // namespace quillmonger
