#include "Sauce/Key.h"

#include <algorithm>
#include <array>
#include <string>

namespace sauce {

namespace {

constexpr int none = -1;

struct Member {
  Key key;
  std::string_view rawValue;
  int qwertyKeyCode;
  /// What it types, in lower case; empty where that is nothing, or nothing that names it.
  std::string_view character;

  [[nodiscard]] constexpr bool isOnKeypad() const { return rawValue.starts_with("keypad"); }
};

constexpr auto members = std::to_array<Member>({{Key::a, "a", 0, "a"},
                                                {Key::s, "s", 1, "s"},
                                                {Key::d, "d", 2, "d"},
                                                {Key::f, "f", 3, "f"},
                                                {Key::h, "h", 4, "h"},
                                                {Key::g, "g", 5, "g"},
                                                {Key::z, "z", 6, "z"},
                                                {Key::x, "x", 7, "x"},
                                                {Key::c, "c", 8, "c"},
                                                {Key::v, "v", 9, "v"},
                                                {Key::b, "b", 11, "b"},
                                                {Key::q, "q", 12, "q"},
                                                {Key::w, "w", 13, "w"},
                                                {Key::e, "e", 14, "e"},
                                                {Key::r, "r", 15, "r"},
                                                {Key::y, "y", 16, "y"},
                                                {Key::t, "t", 17, "t"},
                                                {Key::one, "one", 18, "1"},
                                                {Key::two, "two", 19, "2"},
                                                {Key::three, "three", 20, "3"},
                                                {Key::four, "four", 21, "4"},
                                                {Key::six, "six", 22, "6"},
                                                {Key::five, "five", 23, "5"},
                                                {Key::equal, "equal", 24, "="},
                                                {Key::nine, "nine", 25, "9"},
                                                {Key::seven, "seven", 26, "7"},
                                                {Key::minus, "minus", 27, "-"},
                                                {Key::eight, "eight", 28, "8"},
                                                {Key::zero, "zero", 29, "0"},
                                                {Key::rightBracket, "rightBracket", 30, "]"},
                                                {Key::o, "o", 31, "o"},
                                                {Key::u, "u", 32, "u"},
                                                {Key::leftBracket, "leftBracket", 33, "["},
                                                {Key::i, "i", 34, "i"},
                                                {Key::p, "p", 35, "p"},
                                                {Key::l, "l", 37, "l"},
                                                {Key::j, "j", 38, "j"},
                                                {Key::quote, "quote", 39, "'"},
                                                {Key::k, "k", 40, "k"},
                                                {Key::semicolon, "semicolon", 41, ";"},
                                                {Key::backslash, "backslash", 42, "\\"},
                                                {Key::comma, "comma", 43, ","},
                                                {Key::slash, "slash", 44, "/"},
                                                {Key::n, "n", 45, "n"},
                                                {Key::m, "m", 46, "m"},
                                                {Key::period, "period", 47, "."},
                                                {Key::grave, "grave", 50, "`"},
                                                {Key::keypadDecimal, "keypadDecimal", 65, "."},
                                                {Key::keypadMultiply, "keypadMultiply", 67, "*"},
                                                {Key::keypadPlus, "keypadPlus", 69, "+"},
                                                {Key::keypadClear, "keypadClear", 71, ""},
                                                {Key::keypadDivide, "keypadDivide", 75, "/"},
                                                {Key::keypadEnter, "keypadEnter", 76, ""},
                                                {Key::keypadMinus, "keypadMinus", 78, "-"},
                                                {Key::keypadEquals, "keypadEquals", 81, "="},
                                                {Key::keypadZero, "keypadZero", 82, "0"},
                                                {Key::keypadOne, "keypadOne", 83, "1"},
                                                {Key::keypadTwo, "keypadTwo", 84, "2"},
                                                {Key::keypadThree, "keypadThree", 85, "3"},
                                                {Key::keypadFour, "keypadFour", 86, "4"},
                                                {Key::keypadFive, "keypadFive", 87, "5"},
                                                {Key::keypadSix, "keypadSix", 88, "6"},
                                                {Key::keypadSeven, "keypadSeven", 89, "7"},
                                                {Key::keypadEight, "keypadEight", 91, "8"},
                                                {Key::keypadNine, "keypadNine", 92, "9"},
                                                {Key::return_, "return", 36, ""},
                                                {Key::tab, "tab", 48, ""},
                                                {Key::space, "space", 49, " "},
                                                {Key::delete_, "delete", 51, ""},
                                                {Key::escape, "escape", 53, ""},
                                                {Key::f17, "f17", 64, ""},
                                                {Key::f18, "f18", 79, ""},
                                                {Key::f19, "f19", 80, ""},
                                                {Key::f20, "f20", 90, ""},
                                                {Key::f5, "f5", 96, ""},
                                                {Key::f6, "f6", 97, ""},
                                                {Key::f7, "f7", 98, ""},
                                                {Key::f3, "f3", 99, ""},
                                                {Key::f8, "f8", 100, ""},
                                                {Key::f9, "f9", 101, ""},
                                                {Key::f11, "f11", 103, ""},
                                                {Key::f13, "f13", 105, ""},
                                                {Key::f16, "f16", 106, ""},
                                                {Key::f14, "f14", 107, ""},
                                                {Key::f10, "f10", 109, ""},
                                                {Key::f12, "f12", 111, ""},
                                                {Key::f15, "f15", 113, ""},
                                                {Key::help, "help", 114, ""},
                                                {Key::home, "home", 115, ""},
                                                {Key::pageUp, "pageUp", 116, ""},
                                                {Key::forwardDelete, "forwardDelete", 117, ""},
                                                {Key::f4, "f4", 118, ""},
                                                {Key::end, "end", 119, ""},
                                                {Key::f2, "f2", 120, ""},
                                                {Key::pageDown, "pageDown", 121, ""},
                                                {Key::f1, "f1", 122, ""},
                                                {Key::leftArrow, "leftArrow", 123, ""},
                                                {Key::rightArrow, "rightArrow", 124, ""},
                                                {Key::downArrow, "downArrow", 125, ""},
                                                {Key::upArrow, "upArrow", 126, ""},
                                                {Key::yen, "yen", 93, "¥"},
                                                {Key::underscore, "underscore", 94, "_"},
                                                {Key::keypadComma, "keypadComma", 95, ""},
                                                {Key::eisu, "eisu", 102, ""},
                                                {Key::kana, "kana", 104, ""},
                                                {Key::atSign, "atSign", none, "@"},
                                                {Key::caret, "caret", none, "^"},
                                                {Key::colon, "colon", none, ":"},
                                                {Key::section, "section", 10, "§"}});
static_assert(members.size() == keyCount);

constexpr bool isInOrder() {
  for (std::size_t index = 0; index < keyCount; ++index) {
    if (static_cast<std::size_t>(members[index].key) != index) return false;
  }
  return true;
}
static_assert(isInOrder());

const Member& member(Key key) { return members[static_cast<std::size_t>(key)]; }

std::string lowered(std::string_view text) {
  std::string result(text);
  std::ranges::transform(result, result.begin(),
                         [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return result;
}

bool isDigit(std::string_view text) { return text.size() == 1 && text[0] >= '0' && text[0] <= '9'; }

bool isName(const Member& candidate, std::string_view text) {
  if (text == lowered(candidate.rawValue)) return true;
  return candidate.isOnKeypad() && isDigit(candidate.character) && text == "keypad" + std::string(candidate.character);
}

bool isCharacter(const Member& candidate, std::string_view text) {
  if (candidate.key == Key::return_) return text == "\r" || text == "\n";
  if (candidate.key == Key::help) return text == "?\u20DD";
  return !candidate.character.empty() && text == candidate.character;
}

}  // namespace

std::string_view rawValue(Key key) { return member(key).rawValue; }

std::optional<KeyCode> qwertyKeyCode(Key key) {
  const int code = member(key).qwertyKeyCode;
  return code == none ? std::nullopt : std::optional(static_cast<KeyCode>(code));
}

std::optional<Key> keyWithQWERTYKeyCode(std::uint32_t keyCode) {
  const auto found = std::ranges::find_if(members, [keyCode](const Member& candidate) {
    return candidate.qwertyKeyCode != none && static_cast<std::uint32_t>(candidate.qwertyKeyCode) == keyCode;
  });
  return found == members.end() ? std::nullopt : std::optional(found->key);
}

std::optional<Key> keyForCharacter(std::string_view character, std::uint32_t keyCode) {
  constexpr std::size_t longestName = 16;
  if (character.size() > longestName) return std::nullopt;
  const std::string text = lowered(character);
  const auto position = keyWithQWERTYKeyCode(keyCode);
  if (position && member(*position).isOnKeypad() && isCharacter(member(*position), text)) return position;
  const auto found = std::ranges::find_if(members, [&text](const Member& candidate) {
    return isName(candidate, text) || (!candidate.isOnKeypad() && isCharacter(candidate, text));
  });
  return found == members.end() ? std::nullopt : std::optional(found->key);
}

}  // namespace sauce
