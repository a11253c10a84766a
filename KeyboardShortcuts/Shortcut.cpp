#include "KeyboardShortcuts/Shortcut.h"

#include <array>
#include <nlohmann/json.hpp>
#include <utility>

namespace keyboardshortcuts {

namespace {

constexpr auto codeMember = "carbonKeyCode";
constexpr auto modifiersMember = "carbonModifiers";
// Far more than the two members need: a longer text is not worth parsing.
constexpr std::size_t longestText = 256;

// Event flag and service bit of command, shift, option and control.
constexpr std::array<std::pair<std::uint32_t, std::int64_t>, 4> modifierBits{
    {{0x100000, 0x100}, {0x20000, 0x200}, {0x80000, 0x800}, {0x40000, 0x1000}}};

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

std::int64_t carbonModifiers(std::uint32_t eventFlags) {
  std::int64_t modifiers = 0;
  for (const auto& [flag, bit] : modifierBits) {
    if ((eventFlags & flag) != 0) modifiers |= bit;
  }
  return modifiers;
}

}  // namespace keyboardshortcuts
