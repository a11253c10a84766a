#include "Quillmonger/detection/JsonWriter.h"

namespace quillmonger {

namespace {

// What stands after the backslash; 0 for a character that stands for itself or is written by its number.
char shortEscape(char byte) {
  switch (byte) {
    case '"':
    case '\\':
    case '/':
      return byte;
    case '\b':
      return 'b';
    case '\f':
      return 'f';
    case '\n':
      return 'n';
    case '\r':
      return 'r';
    case '\t':
      return 't';
    default:
      return '\0';
  }
}

bool isControl(char byte) { return static_cast<unsigned char>(byte) < 0x20; }

bool needsEscape(char byte) { return isControl(byte) || byte == '"' || byte == '\\' || byte == '/'; }

void appendEscape(std::string& text, char byte) {
  constexpr std::string_view digits = "0123456789abcdef";
  if (const char letter = shortEscape(byte); letter != '\0') {
    text += '\\';
    text += letter;
    return;
  }
  text += "\\u00";
  text += digits[static_cast<unsigned char>(byte) / 16];
  text += digits[static_cast<unsigned char>(byte) % 16];
}

}  // namespace

void JsonWriter::open(char bracket) {
  startValue();
  m_text += bracket;
  ++m_depth;
  m_isFirst = true;
}

void JsonWriter::close(char bracket) {
  --m_depth;
  if (!m_isFirst) startLine();
  m_text += bracket;
  m_isFirst = false;
}

void JsonWriter::addKey(std::string_view text) {
  startValue();
  quote(text);
  m_text += m_style == JsonStyle::prettyPrinted ? " : " : ":";
  m_isAfterKey = true;
}

void JsonWriter::addString(std::string_view text) {
  startValue();
  quote(text);
}

void JsonWriter::addWord(std::string_view text) {
  startValue();
  m_text += text;
}

// What stands before a value: the comma after the value before, and the line's start.
void JsonWriter::startValue() {
  if (!m_isAfterKey) {
    if (!m_isFirst) m_text += ',';
    if (m_depth > 0) startLine();
  }
  m_isAfterKey = false;
  m_isFirst = false;
}

void JsonWriter::startLine() {
  if (m_style == JsonStyle::oneLine) return;
  m_text += '\n';
  m_text.append(2 * m_depth, ' ');
}

void JsonWriter::quote(std::string_view text) {
  m_text += '"';
  std::size_t start = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (!needsEscape(text[at])) continue;
    m_text += text.substr(start, at - start);
    appendEscape(m_text, text[at]);
    start = at + 1;
  }
  m_text += text.substr(start);
  m_text += '"';
}

}  // namespace quillmonger
