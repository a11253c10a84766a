#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace sauce {

/// A position on the keyboard: a virtual key code of the ANSI layout, 0 to 127.
using KeyCode = std::uint16_t;

/// A key by what it types or does, wherever the active layout puts it. The order is the one in which characters are
/// compared. `return_` and `delete_` end so because the language has the words.
enum class Key : std::uint8_t {
  a,
  s,
  d,
  f,
  h,
  g,
  z,
  x,
  c,
  v,
  b,
  q,
  w,
  e,
  r,
  y,
  t,
  one,
  two,
  three,
  four,
  six,
  five,
  equal,
  nine,
  seven,
  minus,
  eight,
  zero,
  rightBracket,
  o,
  u,
  leftBracket,
  i,
  p,
  l,
  j,
  quote,
  k,
  semicolon,
  backslash,
  comma,
  slash,
  n,
  m,
  period,
  grave,
  keypadDecimal,
  keypadMultiply,
  keypadPlus,
  keypadClear,
  keypadDivide,
  keypadEnter,
  keypadMinus,
  keypadEquals,
  keypadZero,
  keypadOne,
  keypadTwo,
  keypadThree,
  keypadFour,
  keypadFive,
  keypadSix,
  keypadSeven,
  keypadEight,
  keypadNine,
  return_,
  tab,
  space,
  delete_,
  escape,
  f17,
  f18,
  f19,
  f20,
  f5,
  f6,
  f7,
  f3,
  f8,
  f9,
  f11,
  f13,
  f16,
  f14,
  f10,
  f12,
  f15,
  help,
  home,
  pageUp,
  forwardDelete,
  f4,
  end,
  f2,
  pageDown,
  f1,
  leftArrow,
  rightArrow,
  downArrow,
  upArrow,
  yen,
  underscore,
  keypadComma,
  eisu,
  kana,
  atSign,
  caret,
  colon,
  section,
};

inline constexpr std::size_t keyCount = 109;

/// The member's name: "rightBracket", "return".
[[nodiscard]] std::string_view rawValue(Key key);
/// Where the key is on the ANSI keyboard; absent for `atSign`, `caret` and `colon`, which arise only from a character.
[[nodiscard]] std::optional<KeyCode> qwertyKeyCode(Key key);

/// The key at this position of the ANSI keyboard; absent for a position without one.
[[nodiscard]] std::optional<Key> keyWithQWERTYKeyCode(std::uint32_t keyCode);
/// The key that a character or a key's name stands for, in either case; absent for any other text. `keyCode` is where
/// the text comes from: it parts the keypad's digits and signs from those of the main block.
[[nodiscard]] std::optional<Key> keyForCharacter(std::string_view character, std::uint32_t keyCode);

}  // namespace sauce
