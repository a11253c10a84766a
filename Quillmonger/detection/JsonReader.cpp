#include "Quillmonger/detection/JsonReader.h"

#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <limits>

namespace quillmonger {

namespace {

// The reader takes the escape of a low surrogate alone for a character, whose bytes are no UTF-8.
bool hasLoneSurrogate(std::string_view text) {
  constexpr char lead = '\xED';
  for (std::size_t at = text.find(lead); at < text.size(); at = text.find(lead, at + 1)) {
    if (static_cast<unsigned char>(text[at + 1]) >= 0xA0) return true;
  }
  return false;
}

// Takes the reader's events, whose names are not ours: looks for what the reader lets pass, and passes the rest on.
class Events final {
 public:
  /// `writer` may be null.
  explicit Events(JsonWriter* writer) : m_writer(writer) {}

  /// Why it told the reader to stop; empty if it didn't.
  [[nodiscard]] std::string_view refusal() const { return m_refusal; }

  bool Null() { return word("null"); }
  bool Bool(bool value) { return word(value ? "true" : "false"); }
  bool RawNumber(const char* digits, rapidjson::SizeType size, bool /*copy*/) { return word({digits, size}); }
  bool String(const char* bytes, rapidjson::SizeType size, bool /*copy*/) {
    const std::string_view text(bytes, size);
    return isSound(text) && isWritten([text](JsonWriter& writer) { writer.addString(text); });
  }
  bool Key(const char* bytes, rapidjson::SizeType size, bool /*copy*/) {
    const std::string_view text(bytes, size);
    return isSound(text) && isWritten([text](JsonWriter& writer) { writer.addKey(text); });
  }
  bool StartObject() { return start('{'); }
  bool EndObject(rapidjson::SizeType /*count*/) { return end('}'); }
  bool StartArray() { return start('['); }
  bool EndArray(rapidjson::SizeType /*count*/) { return end(']'); }
  // The reader hands numbers over as they are written.
  bool Int(int /*number*/) { return false; }
  bool Uint(unsigned /*number*/) { return false; }
  bool Int64(std::int64_t /*number*/) { return false; }
  bool Uint64(std::uint64_t /*number*/) { return false; }
  bool Double(double /*number*/) { return false; }

 private:
  bool refuse(std::string_view reason) {
    m_refusal = reason;
    return false;
  }

  bool isSound(std::string_view text) { return !hasLoneSurrogate(text) || refuse("A string has a lone surrogate."); }

  template <typename Step>
  bool isWritten(Step step) {
    if (m_writer == nullptr) return true;
    step(*m_writer);
    return !m_writer->isTooLong() || refuse("The result would be too long.");
  }

  bool word(std::string_view text) {
    return isWritten([text](JsonWriter& writer) { writer.addWord(text); });
  }

  bool start(char bracket) {
    if (++m_depth > deepestJson) return refuse("The values are nested too deeply.");
    return isWritten([bracket](JsonWriter& writer) { writer.open(bracket); });
  }

  bool end(char bracket) {
    --m_depth;
    return isWritten([bracket](JsonWriter& writer) { writer.close(bracket); });
  }

  JsonWriter* m_writer;
  std::size_t m_depth = 0;
  std::string_view m_refusal;
};

std::string atByte(std::string_view message, std::size_t offset) {
  return std::string(message) + " At byte " + std::to_string(offset) + ".";
}

std::optional<std::string> read(std::string_view text, JsonWriter* writer) {
  // The reader counts in 32 bits.
  if (text.size() > std::numeric_limits<rapidjson::SizeType>::max()) return "The document is too long.";
  constexpr unsigned flags = rapidjson::kParseValidateEncodingFlag | rapidjson::kParseNumbersAsStringsFlag;
  rapidjson::MemoryStream stream(text.data(), text.size());
  rapidjson::Reader reader;
  Events events(writer);
  // It calls itself for a nested value, but never below the deepest one: `Events` ends it before.
  const rapidjson::ParseResult result = reader.Parse<flags>(stream, events);
  if (!events.refusal().empty()) return atByte(events.refusal(), result.Offset());
  if (result.IsError()) return atByte(rapidjson::GetParseError_En(result.Code()), result.Offset());
  // A NUL looks to it like the end.
  if (stream.Tell() != text.size()) return atByte("The document is followed by something else.", stream.Tell());
  return std::nullopt;
}

}  // namespace

std::optional<std::string> checkJson(std::string_view text) { return read(text, nullptr); }

std::optional<std::string> rewriteJson(std::string_view text, JsonWriter& writer) { return read(text, &writer); }

}  // namespace quillmonger
