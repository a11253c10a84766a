#include "Defaults/DefaultsFile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>
#include <utility>

#include "Defaults/Base64.h"
#include "Defaults/JsonDepth.h"

namespace defaults {

namespace {

using Json = nlohmann::json;

constexpr int version = 1;

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

std::int64_t encodeDate(foundation::Date date) {
  return std::chrono::duration_cast<std::chrono::nanoseconds>(date.time_since_epoch()).count();
}

foundation::Date decodeDate(std::int64_t nanoseconds) {
  return foundation::Date(
      std::chrono::duration_cast<foundation::Date::duration>(std::chrono::nanoseconds(nanoseconds)));
}

Json encodeObject(const Object& object);

struct Encoder {
  Json operator()(bool value) const { return {{"bool", value}}; }
  Json operator()(std::int64_t value) const { return {{"integer", value}}; }
  Json operator()(float value) const { return {{"float", encodeFloat(value)}}; }
  Json operator()(double value) const { return {{"double", encodeNumber(value)}}; }
  Json operator()(const std::string& value) const { return {{"string", value}}; }
  Json operator()(foundation::Date value) const { return {{"date", encodeDate(value)}}; }
  Json operator()(const Bytes& value) const { return {{"data", encodeBase64(value)}}; }
  Json operator()(const Object::List& list) const {
    const bool isStrings = std::ranges::all_of(list, [](const auto& each) { return each.template as<std::string>(); });
    Json elements = Json::array();
    for (const auto& element : list)
      elements.push_back(isStrings ? Json(*element.as<std::string>()) : encodeObject(element));
    return {{isStrings ? "strings" : "list", std::move(elements)}};
  }
  Json operator()(const Object::Map& map) const {
    Json elements = Json::object();
    for (const auto& [name, element] : map)
      elements[name] = encodeObject(element);
    return {{"map", std::move(elements)}};
  }
};

Json encodeObject(const Object& object) { return std::visit(Encoder(), object.value()); }

std::optional<std::int64_t> decodeInteger(const Json& json) {
  if (!json.is_number_integer()) return std::nullopt;
  if (json.is_number_unsigned() &&
      json.get<std::uint64_t>() > std::uint64_t{std::numeric_limits<std::int64_t>::max()}) {
    return std::nullopt;
  }
  return json.get<std::int64_t>();
}

std::optional<Object> decodeObject(const Json& json);

std::optional<Object> decodeString(const Json& json) {
  return json.is_string() ? std::optional<Object>(json.get<std::string>()) : std::nullopt;
}

std::optional<Object> decodeList(const Json& json, std::optional<Object> decodeElement(const Json&)) {
  if (!json.is_array()) return std::nullopt;
  Object::List list;
  for (const auto& element : json) {
    auto object = decodeElement(element);
    if (!object.has_value()) return std::nullopt;
    list.push_back(*std::move(object));
  }
  return Object(std::move(list));
}

std::optional<Object> decodeMap(const Json& json) {
  if (!json.is_object()) return std::nullopt;
  Object::Map map;
  for (const auto& [name, element] : json.items()) {
    auto object = decodeObject(element);
    if (!object.has_value()) return std::nullopt;
    map.emplace(name, *std::move(object));
  }
  return Object(std::move(map));
}

std::optional<Object> decodeData(const Json& json) {
  return json.is_string() ? decodeBase64(json.get_ref<const std::string&>()) : std::nullopt;
}

std::optional<Object> decodeObject(const Json& json) {
  if (!json.is_object() || json.size() != 1) return std::nullopt;
  const std::string& kind = json.begin().key();
  const Json& value = json.begin().value();
  if (kind == "bool" && value.is_boolean()) return Object(value.get<bool>());
  if (kind == "integer") return decodeInteger(value);
  if (kind == "float") return decodeFloat(value);
  if (kind == "double") return decodeNumber(value);
  if (kind == "string") return decodeString(value);
  if (kind == "date") {
    const auto nanoseconds = decodeInteger(value);
    return nanoseconds.has_value() ? std::optional<Object>(decodeDate(*nanoseconds)) : std::nullopt;
  }
  if (kind == "data") return decodeData(value);
  if (kind == "strings") return decodeList(value, decodeString);
  if (kind == "list") return decodeList(value, decodeObject);
  if (kind == "map") return decodeMap(value);
  return std::nullopt;
}

std::string dump(const Json& json, int indent) { return json.dump(indent, ' ', false, Json::error_handler_t::replace); }

}  // namespace

std::optional<DefaultsFile::Content> DefaultsFile::decode(std::string_view text) {
  if (text.size() > sizeLimit || !isDepthBounded(text, depthLimit)) return std::nullopt;
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
    values[name] = encodeObject(object);
  return dump({{"version", version}, {"values", std::move(values)}}, 2) + "\n";
}

}  // namespace defaults
