#include "Defaults/CodableBridge.h"

#include <cmath>
#include <stdexcept>
#include <utility>

#include "Defaults/JsonDepth.h"

namespace defaults {

namespace {

using Json = nlohmann::json;

void checkEncodable(const Json& json, int depth) {
  // The library would write such a number as null.
  if (json.is_number_float() && !std::isfinite(json.get<double>())) throw std::domain_error("a number is not finite");
  if (!json.is_structured()) return;
  if (depth == 0) throw std::length_error("the value is nested too deeply");
  for (const auto& element : json)
    checkEncodable(element, depth - 1);
}

}  // namespace

std::string encodeJson(Json value) {
  checkEncodable(value, Object::depthLimit);
  Json list = Json::array();
  list.push_back(std::move(value));
  const std::string text = list.dump();
  if (text.size() > jsonSizeLimit + 2) throw std::length_error("the text is too long");
  return text.substr(1, text.size() - 2);
}

std::optional<Json> decodeJson(std::string_view text) {
  if (text.size() > jsonSizeLimit) return std::nullopt;
  const std::string bracketed = std::string("[").append(text).append("]");
  if (!isDepthBounded(bracketed, Object::depthLimit + 1)) return std::nullopt;
  Json list = Json::parse(bracketed, nullptr, false);
  if (!list.is_array() || list.size() != 1) return std::nullopt;
  return std::move(list.front());
}

}  // namespace defaults
