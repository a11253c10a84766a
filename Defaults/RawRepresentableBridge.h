#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include "Defaults/Bridge.h"
#include "Defaults/NativeBridge.h"
#include "Defaults/Object.h"

namespace defaults {

/// The cases of an enumeration beside their raw values, texts or integers. An enumeration that is stored states them:
///
///   template <>
///   inline constexpr auto defaults::rawValues<Size> = std::to_array<std::pair<Size, std::string_view>>(
///       {{Size::small, "small"}, {Size::large, "large"}});
template <typename T>
inline constexpr std::nullptr_t rawValues = nullptr;

template <typename T>
concept RawRepresentable = std::is_enum_v<T> && !std::is_null_pointer_v<std::remove_cv_t<decltype(rawValues<T>)>>;

/// The raw value. One that belongs to no case reads as nothing.
template <typename T>
struct RawRepresentableBridge {
  static std::optional<Object> serialize(T value) {
    const auto* entry = std::ranges::find(rawValues<T>, value, [](const auto& each) { return each.first; });
    return entry == rawValues<T>.end() ? std::nullopt : Bridge<Raw>::serialize(Raw(entry->second));
  }
  static std::optional<T> deserialize(const Object& object) {
    const auto raw = Bridge<Raw>::deserialize(object);
    if (!raw.has_value()) return std::nullopt;
    const auto* entry = std::ranges::find(rawValues<T>, *raw, [](const auto& each) { return Raw(each.second); });
    return entry == rawValues<T>.end() ? std::nullopt : std::optional<T>(entry->first);
  }

 private:
  using Stated = typename std::remove_cv_t<decltype(rawValues<T>)>::value_type::second_type;
  using Raw = std::conditional_t<std::is_same_v<Stated, std::string_view>, std::string, Stated>;
};

template <RawRepresentable T>
struct Bridge<T> : RawRepresentableBridge<T> {};

}  // namespace defaults
