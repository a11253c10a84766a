#include "Quillmonger/shell/command/RecordList.h"

#include <time.h>

#include <array>
#include <chrono>
#include <optional>
#include <string_view>

#include "Foundation/Text.h"
#include "Quillmonger/capture/PasteboardTypes.h"

namespace quillmonger::recordlist {

namespace {

constexpr std::size_t bytesPerCharacter = 4;

std::string isoDate(foundation::Date date) {
  const time_t seconds = std::chrono::system_clock::to_time_t(date);
  tm parts{};
  gmtime_r(&seconds, &parts);
  std::array<char, 64> text{};
  const std::size_t length = strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", &parts);
  return {text.data(), length};
}

bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

std::string firstCharacters(std::string text) {
  if (text.size() <= characterLimit) return text;
  std::size_t count = 0;
  for (std::size_t index = 0; index < text.size(); ++index) {
    if (!isContinuation(text[index]) && ++count > characterLimit) return text.substr(0, index);
  }
  return text;
}

std::optional<std::string> textOf(const ClipboardItem& item) {
  const auto data = item.data(pasteboardtype::utf8PlainText);
  if (!data.has_value()) return std::nullopt;
  std::string part = data->part(0, characterLimit * bytesPerCharacter + bytesPerCharacter);
  // A cut through a character would read as one that the user never copied.
  if (part.size() < data->size()) {
    while (!part.empty() && isContinuation(part.back()))
      part.pop_back();
    if (!part.empty()) part.pop_back();
  }
  return firstCharacters(foundation::toValidUtf8(part));
}

// What a terminal would obey: a control character of ASCII, or the first byte of one beyond it.
bool isControl(std::string_view text, std::size_t index) {
  const auto byte = static_cast<unsigned char>(text[index]);
  if (byte < 0x20 || byte == 0x7F) return true;
  return byte == 0xC2 && index + 1 < text.size() && static_cast<unsigned char>(text[index + 1]) < 0xA0;
}

// On one line, with a space for each control character.
void appendLine(std::string& out, std::string_view text) {
  std::size_t written = 0;
  for (std::size_t index = 0; index < text.size(); ++index) {
    if (!isControl(text, index)) continue;
    out.append(text, written, index - written);
    out += ' ';
    if (text[index] == '\xC2') ++index;
    written = index + 1;
  }
  out.append(text, written);
}

// A long list is little else than strings, so they are written straight into it.
void appendString(std::string& out, std::string_view text) {
  constexpr std::string_view digits = "0123456789abcdef";
  out += '"';
  std::size_t written = 0;
  for (std::size_t index = 0; index < text.size(); ++index) {
    const auto byte = static_cast<unsigned char>(text[index]);
    if (byte >= 0x20 && byte != '"' && byte != '\\') continue;
    out.append(text, written, index - written);
    written = index + 1;
    if (byte >= 0x20) {
      out += {'\\', text[index]};
    } else {
      out += {'\\', 'u', '0', '0', digits[byte >> 4U], digits[byte & 0xFU]};
    }
  }
  out.append(text, written);
  out += '"';
}

// `text` is valid UTF-8.
void appendOptional(std::string& out, const std::optional<std::string>& text) {
  if (text) {
    appendString(out, *text);
  } else {
    out += "null";
  }
}

void appendObject(std::string& out, const NumberedRecord& numbered, const std::optional<std::string>& text) {
  const auto& record = *numbered.record;
  out += "{\"number\":" + std::to_string(numbered.number) + ",\"id\":\"" + record.id().toString() +
         "\",\"creationDate\":\"" + isoDate(record.creationDate()) + "\",\"sourceAppBundleIdentifier\":";
  const auto& source = record.sourceAppBundleIdentifier();
  appendOptional(out, source ? std::optional(foundation::toValidUtf8(*source)) : std::nullopt);
  out += ",\"types\":[";
  const char* separator = "";
  for (const auto& entry : record.data()) {
    out += separator;
    appendString(out, foundation::toValidUtf8(entry.first));
    separator = ",";
  }
  out += "],\"size\":" + std::to_string(record.dataSize()) +
         ",\"timesPasted\":" + std::to_string(record.timesPasted()) + ",\"text\":";
  appendOptional(out, text);
  out += '}';
}

}  // namespace

std::string lines(const std::vector<NumberedRecord>& records) {
  std::string all;
  for (const auto& [number, record] : records) {
    const auto source = foundation::toValidUtf8(record->sourceAppBundleIdentifier().value_or("-"));
    all += std::to_string(number) + "  " + isoDate(record->creationDate()) + "  " + std::to_string(record->dataSize());
    all += "  ";
    appendLine(all, source);
    all += "  ";
    if (const auto text = textOf(*record)) appendLine(all, *text);
    all += '\n';
  }
  return all;
}

std::string json(const std::vector<NumberedRecord>& records) {
  std::string all = "[";
  const char* separator = "\n";
  for (const auto& each : records) {
    all += separator;
    appendObject(all, each, textOf(*each.record));
    separator = ",\n";
  }
  all += records.empty() ? "]\n" : "\n]\n";
  return all;
}

std::string wholeJson(const NumberedRecord& record) {
  std::string text;
  appendObject(text, record, wholeText(*record.record));
  text += '\n';
  return text;
}

std::optional<std::string> wholeText(const ClipboardItem& record) {
  const auto data = record.data(pasteboardtype::utf8PlainText);
  if (!data || data->size() > wholeLimit) return std::nullopt;
  const auto bytes = data->bytes();
  return bytes ? std::optional(foundation::toValidUtf8(*bytes)) : std::nullopt;
}

}  // namespace quillmonger::recordlist
