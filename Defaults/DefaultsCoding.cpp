#include "Defaults/DefaultsFile.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>
#include <utility>

namespace defaults {

namespace {

using Json = nlohmann::json;

constexpr int version = 1;

// The parser and the destructor of a document must never meet a document that is deeper than ours can be.
bool isDepthBounded(std::string_view text) {
  int depth = 0;
  bool isInString = false;
  for (std::size_t index = 0; index < text.size(); ++index) {
    const char character = text[index];
    if (isInString) {
      if (character == '\\') ++index;
      if (character == '"') isInString = false;
    } else if (character == '"') {
      isInString = true;
    } else if (character == '{' || character == '[') {
      if (++depth > DefaultsFile::depthLimit) return false;
    } else if (character == '}' || character == ']') {
      --depth;
    }
  }
  return true;
}

// JSON has no words for these.
Json encodeNumber(double value) {
  if (std::isnan(value)) return "nan";
  if (std::isinf(value)) return value > 0 ? "inf" : "-inf";
  return value;
}

std::optional<double> decodeNumber(const Json& json) {
  if (json.is_number()) return json.get<double>();
  if (json == "nan") return std::numeric_limits<double>::quiet_NaN();
  if (json == "inf") return std::numeric_limits<double>::infinity();
  if (json == "-inf") return -std::numeric_limits<double>::infinity();
  return std::nullopt;
}

// 0.45 rather than 0.44999998807907104, wherever the short text stands for the very same value.
Json encodeFloat(float value) {
  std::array<char, 64> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  double readable = 0;
  std::from_chars(text.data(), end, readable);
  // The short text of the greatest float lies beyond it.
  const bool isWithin = std::abs(readable) <= static_cast<double>(std::numeric_limits<float>::max());
  const bool isSame = isWithin && static_cast<float>(readable) == value;
  return encodeNumber(isSame ? readable : static_cast<double>(value));
}

std::optional<float> decodeFloat(const Json& json) {
  const auto number = decodeNumber(json);
  if (!number.has_value()) return std::nullopt;
  if (std::isfinite(*number) && std::abs(*number) > static_cast<double>(std::numeric_limits<float>::max())) {
    return std::nullopt;
  }
  return static_cast<float>(*number);
}

struct Encoder {
  Json operator()(bool value) const { return {{"bool", value}}; }
  Json operator()(std::int64_t value) const { return {{"integer", value}}; }
  Json operator()(float value) const { return {{"float", encodeFloat(value)}}; }
  Json operator()(double value) const { return {{"double", encodeNumber(value)}}; }
  Json operator()(const std::string& value) const { return {{"string", value}}; }
  Json operator()(const std::vector<std::string>& value) const { return {{"strings", value}}; }
};

template <typename T>
std::optional<Object> asObject(std::optional<T> value) {
  return value.has_value() ? std::optional<Object>(std::in_place, std::in_place_type<T>, *std::move(value))
                           : std::nullopt;
}

std::optional<std::vector<std::string>> decodeStrings(const Json& json) {
  if (!json.is_array()) return std::nullopt;
  std::vector<std::string> strings;
  for (const auto& element : json) {
    if (!element.is_string()) return std::nullopt;
    strings.push_back(element.get<std::string>());
  }
  return strings;
}

std::optional<std::int64_t> decodeInteger(const Json& json) {
  if (!json.is_number_integer()) return std::nullopt;
  if (json.is_number_unsigned() &&
      json.get<std::uint64_t>() > std::uint64_t{std::numeric_limits<std::int64_t>::max()}) {
    return std::nullopt;
  }
  return json.get<std::int64_t>();
}

std::optional<Object> decodeObject(const Json& json) {
  if (!json.is_object() || json.size() != 1) return std::nullopt;
  const std::string& kind = json.begin().key();
  const Json& value = json.begin().value();
  if (kind == "bool" && value.is_boolean()) return Object(value.get<bool>());
  if (kind == "integer") return asObject(decodeInteger(value));
  if (kind == "float") return asObject(decodeFloat(value));
  if (kind == "double") return asObject(decodeNumber(value));
  if (kind == "string" && value.is_string()) return Object(value.get<std::string>());
  if (kind == "strings") return asObject(decodeStrings(value));
  return std::nullopt;
}

std::string dump(const Json& json, int indent) { return json.dump(indent, ' ', false, Json::error_handler_t::replace); }

}  // namespace

std::optional<DefaultsFile::Content> DefaultsFile::decode(std::string_view text) {
  if (text.size() > sizeLimit || !isDepthBounded(text)) return std::nullopt;
  const Json document = Json::parse(text, nullptr, false);
  if (!document.is_object() || !document.contains("version") || document["version"] != version) return std::nullopt;
  const auto values = document.find("values");
  if (values == document.end() || !values->is_object()) return std::nullopt;
  Content content;
  for (const auto& [name, json] : values->items()) {
    if (auto object = decodeObject(json)) {
      content.values.emplace(name, *std::move(object));
    } else {
      content.unknown.emplace(name, dump(json, -1));
    }
  }
  return content;
}

std::string DefaultsFile::encode(const Content& content) {
  Json values = Json::object();
  for (const auto& [name, text] : content.unknown)
    values[name] = Json::parse(text, nullptr, false);
  for (const auto& [name, object] : content.values)
    values[name] = std::visit(Encoder(), object);
  return dump({{"version", version}, {"values", std::move(values)}}, 2) + "\n";
}

}  // namespace defaults
