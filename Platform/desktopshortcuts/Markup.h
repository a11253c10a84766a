#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// Told of each element of an XML text, in its order.
struct MarkupHandler {
  /// An attribute of the element that begins; absent when it has none of that name.
  using Attribute = std::function<std::optional<std::string>(std::string_view name)>;

  std::function<void(std::string_view element, const Attribute& attribute)> begin;
  std::function<void(std::string_view element)> end;
};

enum class MarkupOutcome { complete, damaged };

/// `text`: what another program wrote, of a bounded size. Damaged when it isn't well-formed to its end. Any thread.
[[nodiscard]] MarkupOutcome readMarkup(std::string_view text, const MarkupHandler& handler);

}  // namespace platform
