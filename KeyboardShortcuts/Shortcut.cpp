#include "KeyboardShortcuts/Shortcut.h"

#include <nlohmann/json.hpp>

#include "Sauce/ModifierTransformer.h"

namespace keyboardshortcuts {

namespace {

constexpr auto codeMember = "carbonKeyCode";
constexpr auto modifiersMember = "carbonModifiers";
// Far more than the two members need: a longer text is not worth parsing.
constexpr std::size_t longestText = 256;

}  // namespace

std::optional<Shortcut> Shortcut::of(sauce::Key key, std::uint32_t eventFlags) {
  const auto keyCode = sauce::qwertyKeyCode(key);
  if (!keyCode) return std::nullopt;
  return Shortcut{*keyCode, sauce::ModifierTransformer::serviceBits(eventFlags)};
}

std::optional<Shortcut> Shortcut::of(const Event& event) {
  if (event.type != Event::Type::keyDown && event.type != Event::Type::keyUp) return std::nullopt;
  if (!event.keyCode) return std::nullopt;
  return Shortcut{*event.keyCode, sauce::ModifierTransformer::serviceBits(event.modifierFlags)};
}

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

std::size_t std::hash<keyboardshortcuts::Shortcut>::operator()(
    const keyboardshortcuts::Shortcut& shortcut) const noexcept {
  const std::hash<std::int64_t> hashOf;
  return hashOf(shortcut.carbonKeyCode) * 31 + hashOf(shortcut.carbonModifiers);
}
