#include "Quillmonger/shell/command/CommandMessage.h"

#include <charconv>
#include <cstddef>
#include <nlohmann/json.hpp>
#include <system_error>
#include <utility>

#include "Defaults/Base64.h"

namespace quillmonger::commandmessage {

namespace {

using Json = nlohmann::json;

constexpr std::size_t wordLimit = 1024;

// The parser keeps no stack, but gives memory for each level; ours have at most two.
Json parse(std::string_view line, std::size_t limit) {
  if (line.size() > limit) return Json::value_t::discarded;
  bool isTooDeep = false;
  const auto notTooDeep = [&isTooDeep](int depth, Json::parse_event_t, const Json&) {
    isTooDeep = isTooDeep || depth > 2;
    return !isTooDeep;
  };
  Json json = Json::parse(line, notTooDeep, false);
  return isTooDeep ? Json(Json::value_t::discarded) : json;
}

std::string dump(const Json& json) { return json.dump(-1, ' ', false, Json::error_handler_t::replace); }

// The decimal number up to `end`, which goes from `text` with it.
std::optional<std::size_t> takeNumber(std::string_view& text, char end) {
  std::size_t number = 0;
  const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || rest == text.data() + text.size() || *rest != end) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(rest - text.data()) + 1);
  return number;
}

std::optional<std::string> decodedInput(const Json& json) {
  const auto* text = json.get_ptr<const std::string*>();
  const auto bytes = text != nullptr ? defaults::decodeBase64(*text) : std::nullopt;
  if (!bytes || bytes->size() > inputLimit) return std::nullopt;
  return std::string(bytes->begin(), bytes->end());
}

}  // namespace

std::string encode(const CommandRequest& request) {
  Json json{{"words", request.words}};
  if (!request.input.empty()) json["input"] = defaults::encodeBase64({request.input.begin(), request.input.end()});
  return dump(json);
}

std::string encode(const CommandResult& result) {
  std::string text = std::to_string(result.exitCode) + " " + std::to_string(result.output.size()) + " " +
                     std::to_string(result.errorOutput.size()) + "\n";
  // And the line end that follows: a long list is copied no more often than it must.
  text.reserve(text.size() + result.output.size() + result.errorOutput.size() + 1);
  text += result.output;
  text += result.errorOutput;
  return text;
}

std::optional<CommandRequest> decodeRequest(std::string_view line) {
  const Json json = parse(line, requestLimit);
  if (!json.is_object()) return std::nullopt;
  const auto words = json.find("words");
  if (words == json.end() || !words->is_array() || words->size() > wordLimit) return std::nullopt;
  CommandRequest request;
  for (const auto& word : *words) {
    if (!word.is_string()) return std::nullopt;
    request.words.push_back(word.get<std::string>());
  }
  if (const auto input = json.find("input"); input != json.end()) {
    auto bytes = decodedInput(*input);
    if (!bytes) return std::nullopt;
    request.input = *std::move(bytes);
  }
  return request;
}

std::optional<CommandResult> decodeResult(std::string_view text) {
  if (text.size() > resultLimit) return std::nullopt;
  const auto exitCode = takeNumber(text, ' ');
  const auto outputSize = takeNumber(text, ' ');
  const auto errorSize = takeNumber(text, '\n');
  if (!exitCode || !outputSize || !errorSize || *exitCode > 255) return std::nullopt;
  if (*outputSize > text.size() || *errorSize != text.size() - *outputSize) return std::nullopt;
  return CommandResult{static_cast<int>(*exitCode), std::string(text.substr(0, *outputSize)),
                       std::string(text.substr(*outputSize))};
}

}  // namespace quillmonger::commandmessage
