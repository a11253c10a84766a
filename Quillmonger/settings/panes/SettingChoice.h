#pragma once

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Defaults/Defaults.h"

namespace quillmonger {

/// A setting that takes one of a few values. Main thread.
class SettingChoice final {
 public:
  template <typename T>
  struct Option {
    T value;
    std::string textKey;
  };

  /// `changed` is called after each change of the setting, whoever made it. `defaults` outlives this object.
  template <typename T>
  SettingChoice(defaults::Defaults& defaults, const defaults::Key<T>& key, std::vector<Option<T>> options,
                std::function<void()> changed)
      : m_selected([&defaults, key, options] { return placeOf(defaults[key], options); }),
        m_select([&defaults, key, options](std::size_t place) { defaults.set(key, options.at(place).value); }),
        m_otherText([&defaults, key] { return textOf(defaults[key]); }),
        m_updates(defaults.updates<T>(key, defaults::Defaults::Initial::no,
                                      [changed = std::move(changed)](const T&) { changed(); })) {
    for (const auto& option : options)
      m_textKeys.push_back(option.textKey);
  }

  /// Of the options, in their order.
  [[nodiscard]] const std::vector<std::string>& textKeys() const { return m_textKeys; }
  /// Absent for a value that no option has.
  [[nodiscard]] std::optional<std::size_t> selected() const { return m_selected(); }
  /// Such a value as text.
  [[nodiscard]] std::string otherText() const { return m_otherText(); }
  /// Nothing happens for an option that isn't there.
  void select(std::size_t place) {
    if (place < m_textKeys.size()) m_select(place);
  }

 private:
  template <typename T>
  static std::optional<std::size_t> placeOf(const T& value, const std::vector<Option<T>>& options) {
    const auto found = std::ranges::find(options, value, &Option<T>::value);
    return found == options.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - options.begin()));
  }
  template <typename T>
  static std::string textOf(const T& value) {
    if constexpr (std::integral<T>) {
      return std::to_string(value);
    } else {
      return {};
    }
  }

  std::vector<std::string> m_textKeys;
  std::function<std::optional<std::size_t>()> m_selected;
  std::function<void(std::size_t)> m_select;
  std::function<std::string()> m_otherText;
  foundation::Subscription m_updates;
};

}  // namespace quillmonger
