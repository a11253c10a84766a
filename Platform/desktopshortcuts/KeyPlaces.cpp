#include "Platform/desktopshortcuts/KeyPlaces.h"

#include <xkbcommon/xkbcommon-keysyms.h>
#include <xkbcommon/xkbcommon.h>

#include <algorithm>
#include <array>

#include "Platform/desktopshortcuts/Accelerator.h"
#include "Platform/keyboard/DeadKeys.h"

namespace platform {

namespace {

constexpr std::uint32_t shiftBit = 0x200;
constexpr std::uint32_t lastKeyCode = 127;
constexpr std::uint32_t tab = 48;
constexpr std::uint32_t aboveTab = 50;

struct NamedKey {
  std::uint32_t keysym;
  std::uint32_t code;
};

// The keys that stand for themselves, and those of the keypad, whose digits are others than the main block's.
constexpr auto namedKeys = std::to_array<NamedKey>(
    {{XKB_KEY_Escape, 53},       {XKB_KEY_Return, 36},       {XKB_KEY_BackSpace, 51},  {XKB_KEY_Tab, tab},
     {XKB_KEY_Caps_Lock, 57},    {XKB_KEY_Num_Lock, 71},     {XKB_KEY_Menu, 110},      {XKB_KEY_Insert, 114},
     {XKB_KEY_Help, 114},        {XKB_KEY_Delete, 117},      {XKB_KEY_Home, 115},      {XKB_KEY_End, 119},
     {XKB_KEY_Page_Up, 116},     {XKB_KEY_Page_Down, 121},   {XKB_KEY_Left, 123},      {XKB_KEY_Right, 124},
     {XKB_KEY_Down, 125},        {XKB_KEY_Up, 126},          {XKB_KEY_F1, 122},        {XKB_KEY_F2, 120},
     {XKB_KEY_F3, 99},           {XKB_KEY_F4, 118},          {XKB_KEY_F5, 96},         {XKB_KEY_F6, 97},
     {XKB_KEY_F7, 98},           {XKB_KEY_F8, 100},          {XKB_KEY_F9, 101},        {XKB_KEY_F10, 109},
     {XKB_KEY_F11, 103},         {XKB_KEY_F12, 111},         {XKB_KEY_F13, 105},       {XKB_KEY_F14, 107},
     {XKB_KEY_F15, 113},         {XKB_KEY_F16, 106},         {XKB_KEY_F17, 64},        {XKB_KEY_F18, 79},
     {XKB_KEY_F19, 80},          {XKB_KEY_F20, 90},          {XKB_KEY_KP_Enter, 76},   {XKB_KEY_KP_0, 82},
     {XKB_KEY_KP_1, 83},         {XKB_KEY_KP_2, 84},         {XKB_KEY_KP_3, 85},       {XKB_KEY_KP_4, 86},
     {XKB_KEY_KP_5, 87},         {XKB_KEY_KP_6, 88},         {XKB_KEY_KP_7, 89},       {XKB_KEY_KP_8, 91},
     {XKB_KEY_KP_9, 92},         {XKB_KEY_KP_Insert, 82},    {XKB_KEY_KP_End, 83},     {XKB_KEY_KP_Down, 84},
     {XKB_KEY_KP_Page_Down, 85}, {XKB_KEY_KP_Left, 86},      {XKB_KEY_KP_Begin, 87},   {XKB_KEY_KP_Right, 88},
     {XKB_KEY_KP_Home, 89},      {XKB_KEY_KP_Up, 91},        {XKB_KEY_KP_Page_Up, 92}, {XKB_KEY_KP_Delete, 65},
     {XKB_KEY_KP_Decimal, 65},   {XKB_KEY_KP_Separator, 65}, {XKB_KEY_KP_Add, 69},     {XKB_KEY_KP_Subtract, 78},
     {XKB_KEY_KP_Multiply, 67},  {XKB_KEY_KP_Divide, 75},    {XKB_KEY_KP_Equal, 81}});

bool isNamed(std::uint32_t code) { return std::ranges::find(namedKeys, code, &NamedKey::code) != namedKeys.end(); }

std::string textOf(std::uint32_t keysym) {
  const auto accent = spacingCharacter(keysym);
  std::array<char, 8> utf8{};
  const int size = xkb_keysym_to_utf8(accent ? xkb_utf32_to_keysym(*accent) : keysym, utf8.data(), utf8.size());
  return size <= 1 ? std::string() : std::string(utf8.data(), static_cast<std::size_t>(size - 1));
}

}  // namespace

KeyPlaces::KeyPlaces(const sauce::InputSourceService& inputSources) {
  for (const auto& source :
       {inputSources.currentKeyboardLayoutInputSource(), inputSources.currentASCIICapableInputSource()}) {
    if (source) add(inputSources, *source);
  }
  for (const auto& source : inputSources.enabledInputSources())
    add(inputSources, source);
}

// What was added before stays, and so does what a key types without Shift.
void KeyPlaces::add(const sauce::InputSourceService& inputSources, const sauce::InputSource& source) {
  for (const std::uint32_t modifiers : {std::uint32_t{0}, shiftBit}) {
    for (std::uint32_t code = 0; code <= lastKeyCode; ++code) {
      if (isNamed(code)) continue;
      const auto text = inputSources.translate(source, static_cast<sauce::KeyCode>(code), modifiers);
      if (text) m_typed.try_emplace(*text, Place{code, modifiers});
    }
  }
}

std::optional<KeyPlaces::Place> KeyPlaces::placeOf(std::uint32_t keysym) const {
  if (keysym == keysymAboveTab) return Place{aboveTab, 0};
  if (keysym == XKB_KEY_ISO_Left_Tab) return Place{tab, shiftBit};
  const auto named = std::ranges::find(namedKeys, keysym, &NamedKey::keysym);
  if (named != namedKeys.end()) return Place{named->code, 0};
  const auto typed = m_typed.find(textOf(keysym));
  return typed == m_typed.end() ? std::nullopt : std::optional(typed->second);
}

}  // namespace platform
