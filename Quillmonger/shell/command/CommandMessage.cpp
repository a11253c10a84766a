#include "Quillmonger/shell/command/CommandMessage.h"

#include <nlohmann/json.hpp>

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

}  // namespace

std::string encode(const CommandWords& words) { return dump({{"words", words}}); }

std::string encode(const CommandResult& result) {
  return dump({{"exitCode", result.exitCode}, {"output", result.output}, {"errorOutput", result.errorOutput}});
}

std::optional<CommandWords> decodeWords(std::string_view line) {
  const Json json = parse(line, requestLimit);
  const auto words = json.is_object() ? json.find("words") : json.end();
  if (words == json.end() || !words->is_array() || words->size() > wordLimit) return std::nullopt;
  CommandWords decoded;
  for (const auto& word : *words) {
    if (!word.is_string()) return std::nullopt;
    decoded.push_back(word.get<std::string>());
  }
  return decoded;
}

std::optional<CommandResult> decodeResult(std::string_view line) {
  const Json json = parse(line, resultLimit);
  if (!json.is_object()) return std::nullopt;
  const auto exitCode = json.find("exitCode");
  const auto output = json.find("output");
  const auto errorOutput = json.find("errorOutput");
  if (exitCode == json.end() || output == json.end() || errorOutput == json.end()) return std::nullopt;
  if (!exitCode->is_number_unsigned() || *exitCode > 255 || !output->is_string() || !errorOutput->is_string()) {
    return std::nullopt;
  }
  return CommandResult{exitCode->get<int>(), output->get<std::string>(), errorOutput->get<std::string>()};
}

}  // namespace quillmonger::commandmessage
