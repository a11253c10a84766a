#pragma once

#include <exception>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>

#include "Defaults/Object.h"
#include "Foundation/Output.h"

namespace defaults {

/// In bytes.
inline constexpr std::size_t jsonSizeLimit = std::size_t{1} << 20U;

/// The JSON text of a value, without the brackets of the list of one that it is put in. Throws for a value that no JSON
/// text can hold, such as a number that is not finite or a string that is not UTF-8, and for one beyond the limits of
/// `decodeJson`.
[[nodiscard]] std::string encodeJson(nlohmann::json value);

/// The value of such a text. Absent for anything else, for more than `jsonSizeLimit` bytes, and for more than
/// `Object::depthLimit` lists and objects within each other.
[[nodiscard]] std::optional<nlohmann::json> decodeJson(std::string_view text);

/// A type with the JSON library's `to_json` and `from_json`: a JSON string. `from_json` throws for what is no value of
/// the type, a number outside its range included: the library itself cuts such numbers. A value that can't be encoded
/// leaves a line on standard output.
template <typename T>
struct CodableBridge {
  static std::optional<Object> serialize(const T& value) {
    try {
      return Object(encodeJson(nlohmann::json(value)));
    } catch (const std::exception& error) {
      foundation::printLine("Defaults: can't encode a value: ", error.what());
      return std::nullopt;
    }
  }
  static std::optional<T> deserialize(const Object& object) {
    try {
      const auto* text = object.as<std::string>();
      const auto json = text == nullptr ? std::nullopt : decodeJson(*text);
      return json.has_value() ? std::optional<T>(json->get<T>()) : std::nullopt;
    } catch (const std::exception&) {
      return std::nullopt;
    }
  }
};

}  // namespace defaults
