#include "KeyboardShortcuts/Shortcut.h"

#include <nlohmann/json.hpp>

namespace keyboardshortcuts {

namespace {

constexpr auto codeMember = "carbonKeyCode";
constexpr auto modifiersMember = "carbonModifiers";
// Far more than the two members need: a longer text is not worth parsing.
constexpr std::size_t longestText = 256;

}  // namespace

std::string Shortcut::toJson() const {
  return nlohmann::json{{codeMember, carbonKeyCode}, {modifiersMember, carbonModifiers}}.dump();
}

std::optional<Shortcut> Shortcut::fromJson(std::string_view text) {
  if (text.size() > longestText) return std::nullopt;
  const auto object = nlohmann::json::parse(text, nullptr, false);
  if (!object.is_object()) return std::nullopt;
  const auto code = object.find(codeMember);
  const auto modifiers = object.find(modifiersMember);
  if (code == object.end() || modifiers == object.end()) return std::nullopt;
  if (!code->is_number_integer() || !modifiers->is_number_integer()) return std::nullopt;
  return Shortcut{code->get<std::int64_t>(), modifiers->get<std::int64_t>()};
}

}  // namespace keyboardshortcuts
