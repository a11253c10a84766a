#include "Quillmonger/settings/SettingsText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>

#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

namespace {

using Json = nlohmann::json;

constexpr std::size_t textLimit = std::size_t{1} << 20U;

template <typename Number>
std::string numberText(Number value) {
  std::array<char, 64> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  return {text.data(), end};
}

template <typename Number>
std::optional<Number> parseNumber(std::string_view text) {
  Number value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  if constexpr (std::is_floating_point_v<Number>) {
    if (!std::isfinite(value)) return std::nullopt;
  }
  return value;
}

/// How each value type is written as text, and what an error calls it.
template <typename T>
struct TextForm;

template <>
struct TextForm<bool> {
  static constexpr std::string_view expected = "\"true\" or \"false\"";
  static std::string text(bool value) { return value ? "true" : "false"; }
  static std::optional<bool> parse(std::string_view text) {
    if (text == "true") return true;
    if (text == "false") return false;
    return std::nullopt;
  }
};

template <typename Number>
requires std::same_as<Number, std::int64_t>
struct TextForm<Number> {
  static constexpr std::string_view expected = "a whole number";
  static std::string text(Number value) { return numberText(value); }
  static std::optional<Number> parse(std::string_view text) { return parseNumber<Number>(text); }
};

template <std::floating_point Number>
struct TextForm<Number> {
  static constexpr std::string_view expected = "a number";
  static std::string text(Number value) { return numberText(value); }
  static std::optional<Number> parse(std::string_view text) { return parseNumber<Number>(text); }
};

template <>
struct TextForm<TruncationMode> {
  static constexpr std::string_view expected = "\"head\", \"middle\" or \"tail\"";
  static std::string text(TruncationMode value) {
    return *defaults::Bridge<TruncationMode>::serialize(value)->as<std::string>();
  }
  static std::optional<TruncationMode> parse(std::string_view text) {
    for (const auto mode : {TruncationMode::head, TruncationMode::middle, TruncationMode::tail}) {
      if (text == TextForm::text(mode)) return mode;
    }
    return std::nullopt;
  }
};

template <>
struct TextForm<std::optional<ColorScheme>> {
  static constexpr std::string_view expected = "\"system\", \"light\" or \"dark\"";
  static std::string text(std::optional<ColorScheme> value) {
    if (!value.has_value()) return "system";
    return *value == ColorScheme::light ? "light" : "dark";
  }
  static std::optional<std::optional<ColorScheme>> parse(std::string_view text) {
    for (const auto scheme :
         {std::optional<ColorScheme>(), std::optional(ColorScheme::light), std::optional(ColorScheme::dark)}) {
      if (text == TextForm::text(scheme)) return scheme;
    }
    return std::nullopt;
  }
};

template <>
struct TextForm<std::vector<std::string>> {
  static constexpr std::string_view expected = "a JSON list of strings";
  static std::string text(const std::vector<std::string>& value) {
    return Json(value).dump(-1, ' ', false, Json::error_handler_t::replace);
  }
  static std::optional<std::vector<std::string>> parse(std::string_view text) {
    if (text.size() > textLimit) return std::nullopt;
    const Json list = Json::parse(text, nullptr, false);
    if (!list.is_array()) return std::nullopt;
    std::vector<std::string> strings;
    for (const auto& element : list) {
      if (!element.is_string()) return std::nullopt;
      strings.push_back(element.get<std::string>());
    }
    return strings;
  }
};

foundation::Error unknownKey(std::string_view name) {
  return {"There is no setting \"" + std::string(name) + "\". The settings are named in \"defaults read\"."};
}

/// What `body` makes of the key of this name.
template <typename Value, typename Body>
foundation::Result<Value> withKey(std::string_view name, Body body) {
  std::optional<foundation::Result<Value>> result;
  forEachSettingsKey([&](const auto& key) {
    if (key.name() == name) result.emplace(body(key));
  });
  return result.has_value() ? *std::move(result) : foundation::Result<Value>(unknownKey(name));
}

}  // namespace

std::vector<std::string> SettingsText::names() {
  std::vector<std::string> names;
  forEachSettingsKey([&names](const auto& key) { names.push_back(key.name()); });
  return names;
}

foundation::Result<std::string> SettingsText::read(std::string_view name) const {
  return withKey<std::string>(name, [this](const auto& key) {
    return TextForm<typename std::decay_t<decltype(key)>::Value>::text(m_settings[key]);
  });
}

foundation::Outcome SettingsText::write(std::string_view name, std::string_view text) {
  return withKey<std::monostate>(name, [this, text](const auto& key) -> foundation::Outcome {
    using Form = TextForm<typename std::decay_t<decltype(key)>::Value>;
    const auto value = Form::parse(text);
    if (!value.has_value()) {
      return foundation::Error{"The setting \"" + key.name() + "\" takes " + std::string(Form::expected) + "."};
    }
    m_settings.set(key, *value);
    return foundation::success();
  });
}

foundation::Outcome SettingsText::remove(std::string_view name) {
  return withKey<std::monostate>(name, [this](const auto& key) {
    m_settings.reset(key);
    return foundation::success();
  });
}

}  // namespace quillmonger
