#include "Quillmonger/shell/command/ArgumentReader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <utility>

#include "Quillmonger/shell/command/NearestWord.h"

namespace quillmonger {

namespace {

using Kind = Command::Kind;

constexpr std::size_t longestType = 255;
constexpr std::array<std::string_view, 4> incognitoWords{"on", "off", "toggle", "status"};

bool isHelp(std::string_view word) { return word == "--help" || word == "-h"; }

std::optional<std::size_t> countingNumber(std::string_view text) {
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || number == 0) return std::nullopt;
  return number;
}

std::optional<RecordName> recordName(std::string_view text) {
  if (const auto number = countingNumber(text)) return *number;
  if (const auto id = foundation::Uuid::parse(text)) return *id;
  return std::nullopt;
}

bool isMimeType(std::string_view text) {
  const auto isPermitted = [](char letter) { return letter > ' ' && letter < '\x7F'; };
  const auto slash = text.find('/');
  return text.size() <= longestType && slash != std::string_view::npos && slash > 0 && slash + 1 < text.size() &&
         std::ranges::all_of(text, isPermitted);
}

std::string quoted(std::string_view word) {
  std::string text = "\"";
  text += word;
  text += '"';
  return text;
}

bool takesValue(std::string_view option) { return option == "--limit" || option == "--type"; }

}  // namespace

CommandResult misuse(const std::string& why, std::string_view help) {
  return {2,
          {},
          "quillmonger: " + why + "\n" + std::string(help.substr(0, help.find('\n') + 1)) + "\"--help\" tells more.\n"};
}

std::string suggestion(std::string_view word, std::span<const std::string_view> candidates) {
  const auto nearest = nearestWord(word, candidates);
  if (!nearest) return {};
  std::string text = " Did you mean ";
  text += quoted(*nearest) + "?";
  return text;
}

std::variant<Command, CommandResult> ArgumentReader::read(CommandWords words) {
  m_words = std::move(words);
  if (!isAtEnd() && isHelp(m_words.front())) return CommandResult{0, std::string(m_form.help), {}};
  auto complaint = readAll();
  if (m_asksForHelp) return CommandResult{0, std::string(m_form.help), {}};
  if (!complaint) complaint = check();
  if (complaint) return misuse(*complaint, m_form.help);
  return m_command;
}

ArgumentReader::Complaint ArgumentReader::readAll() {
  bool hasOptions = !m_form.options.empty();
  while (!isAtEnd() && !m_asksForHelp) {
    const auto& word = m_words[m_next++];
    if (!hasOptions || !word.starts_with('-') || word == "-") {
      m_command.arguments.push_back(word);
    } else if (word == "--") {
      hasOptions = false;
    } else if (isHelp(word)) {
      m_asksForHelp = true;
    } else if (auto complaint = readOption(word)) {
      return complaint;
    }
  }
  return std::nullopt;
}

ArgumentReader::Complaint ArgumentReader::readOption(std::string_view word) {
  const auto sign = word.find('=');
  const auto name = word.substr(0, sign);
  if (std::ranges::find(m_form.options, name) == m_form.options.end()) return unknownOption(name);
  if (takesValue(name)) {
    if (sign != std::string_view::npos) return readValue(name, std::string(word.substr(sign + 1)));
    if (isAtEnd()) return quoted(name) + " needs a value.";
    return readValue(name, m_words[m_next++]);
  }
  if (sign != std::string_view::npos) return quoted(name) + " takes no value.";
  m_command.isJson = m_command.isJson || name == "--json";
  m_command.isRegularExpression = m_command.isRegularExpression || name == "--regex";
  m_command.isPrinted = m_command.isPrinted || name == "--print";
  m_command.isConfirmed = m_command.isConfirmed || name == "--yes";
  return std::nullopt;
}

ArgumentReader::Complaint ArgumentReader::readValue(std::string_view name, const std::string& value) {
  if (name == "--limit") {
    m_command.limit = countingNumber(value);
    if (!m_command.limit) return "\"--limit\" takes a whole number from 1 on, not \"" + value + "\".";
  } else {
    m_command.type = value;
    if (!isMimeType(value)) return "\"--type\" takes a MIME type such as image/png, not \"" + value + "\".";
  }
  return std::nullopt;
}

ArgumentReader::Complaint ArgumentReader::check() {
  const auto& arguments = m_command.arguments;
  if (arguments.size() < m_form.fewestArguments) return "something is missing.";
  if (arguments.size() > m_form.mostArguments) return "unknown word \"" + arguments[m_form.mostArguments] + "\".";
  if (m_form.kind == Kind::paste && m_command.isJson && !m_command.isPrinted) return "\"--json\" needs \"--print\".";
  if (m_form.kind == Kind::incognito) {
    if (std::ranges::find(incognitoWords, arguments[0]) == incognitoWords.end())
      return "\"incognito\" takes on, off, toggle or status, not \"" + arguments[0] + "\".";
    if (m_command.isJson && arguments[0] != "status") return "\"--json\" is for \"status\" alone.";
  }
  return m_form.kind == Kind::paste || m_form.kind == Kind::remove ? readRecords() : std::nullopt;
}

ArgumentReader::Complaint ArgumentReader::readRecords() {
  for (const auto& argument : m_command.arguments) {
    const auto name = recordName(argument);
    if (!name) return quoted(argument) + " is no record: give its number in \"list\", or its id.";
    m_command.records.push_back(*name);
  }
  if (m_command.records.empty()) m_command.records.emplace_back(std::size_t{1});
  return std::nullopt;
}

ArgumentReader::Complaint ArgumentReader::unknownOption(std::string_view name) const {
  std::string complaint = "unknown option ";
  complaint += quoted(name) + ".";
  const auto guess = suggestion(name, m_form.options);
  if (guess.empty() && m_form.mostArguments > 0) return complaint + " Put \"--\" before a word that begins with \"-\".";
  return complaint + guess;
}

}  // namespace quillmonger
