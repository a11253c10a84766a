#include "Platform/freedesktop/PasteboardTypeTable.h"

#include <algorithm>
#include <array>
#include <string>

#include "Quillmonger/capture/PasteboardTypes.h"

namespace platform {

namespace {

namespace pasteboardtype = quillmonger::pasteboardtype;
using Names = std::span<const std::string_view>;

constexpr std::array<std::string_view, 4> textReading = {"UTF8_STRING", "text/plain;charset=utf-8", "text/plain",
                                                         PasteboardTypeTable::latin1Name};
constexpr std::array<std::string_view, 5> textWriting = {"UTF8_STRING", "text/plain;charset=utf-8", "text/plain",
                                                         "TEXT", PasteboardTypeTable::latin1Name};
constexpr std::array<std::string_view, 2> htmlReading = {"text/html", "text/html;charset=utf-8"};
constexpr std::array<std::string_view, 1> htmlWriting = {"text/html"};
// One office program calls it text/richtext.
constexpr std::array<std::string_view, 3> rtfReading = {"text/rtf", "application/rtf", "text/richtext"};
constexpr std::array<std::string_view, 2> rtfWriting = {"text/rtf", "application/rtf"};
constexpr std::array<std::string_view, 1> png = {"image/png"};
constexpr std::array<std::string_view, 1> jpeg = {"image/jpeg"};
constexpr std::array<std::string_view, 1> tiff = {"image/tiff"};
constexpr std::array<std::string_view, 1> secret = {PasteboardTypeTable::passwordHint};
constexpr std::array<std::string_view, 1> uriListNames = {PasteboardTypeTable::uriList};

// A URL is read out of the list that holds it, never by a name of its own.
constexpr std::array<PasteboardTypeTable::Entry, 9> entries = {{
    {pasteboardtype::utf8PlainText, textReading, textWriting},
    {pasteboardtype::NSPasteboardTypeHTML, htmlReading, htmlWriting},
    {pasteboardtype::NSPasteboardTypeRTF, rtfReading, rtfWriting},
    {pasteboardtype::NSPasteboardTypePNG, png, png},
    {pasteboardtype::jpeg, jpeg, jpeg},
    {pasteboardtype::NSPasteboardTypeTIFF, tiff, tiff},
    {pasteboardtype::concealed, secret, secret},
    {pasteboardtype::NSPasteboardTypeFileURL, Names(), uriListNames},
    {pasteboardtype::NSPasteboardTypeURL, Names(), uriListNames},
}};

constexpr std::size_t longestName = 512;

// MIME names differ in case, and in blanks and quotes of their parameters, without differing in meaning.
std::string canonical(std::string_view name) {
  if (name.find('/') == std::string_view::npos) return std::string(name);
  std::string result;
  for (const char character : name) {
    if (character == ' ' || character == '"') continue;
    const bool isUpper = character >= 'A' && character <= 'Z';
    result.push_back(isUpper ? static_cast<char>(character - 'A' + 'a') : character);
  }
  return result;
}

}  // namespace

const PasteboardTypeTable::Entry* PasteboardTypeTable::entryForType(std::string_view type) {
  const auto* const found = std::ranges::find(entries, type, &Entry::type);
  return found != entries.end() ? found : nullptr;
}

const PasteboardTypeTable::Entry* PasteboardTypeTable::entryForName(std::string_view name) {
  const std::string plain = canonical(name);
  const auto* const found = std::ranges::find_if(
      entries, [&plain](const Entry& entry) { return std::ranges::count(entry.readingNames, plain) > 0; });
  return found != entries.end() ? found : nullptr;
}

std::size_t PasteboardTypeTable::preference(const Entry& entry, std::string_view name) {
  const auto found = std::ranges::find(entry.readingNames, canonical(name));
  return static_cast<std::size_t>(found - entry.readingNames.begin());
}

bool PasteboardTypeTable::isFormat(std::string_view name) {
  if (name == passwordHint || entryForName(name) != nullptr) return true;
  const bool isPrintable = std::ranges::all_of(name, [](char c) { return c >= ' ' && c <= '~'; });
  if (!isPrintable || name.size() > longestName || name.find_first_of("/.") == std::string_view::npos) return false;
  // An identifier of the table is translated from its names; under its own it would only double them.
  return entryForType(name) == nullptr && !canonical(name).starts_with("chromium/x-internal-");
}

bool PasteboardTypeTable::isCostly(std::string_view name) {
  const std::string plain = canonical(name);
  return plain.starts_with("application/x-openoffice") || plain.find("windows_formatname=link") != std::string::npos;
}

bool PasteboardTypeTable::isOfficeFormat(std::string_view name) {
  static constexpr std::array<std::string_view, 6> prefixes = {
      "application/x-openoffice",       "application/x-libreoffice", "application/vnd.oasis.opendocument",
      "application/vnd.openxmlformats", "application/vnd.ms-",       "application/x-gnumeric"};
  const std::string plain = canonical(name);
  return std::ranges::any_of(prefixes, [&plain](std::string_view prefix) { return plain.starts_with(prefix); });
}

bool PasteboardTypeTable::isPicture(std::string_view name) { return canonical(name).starts_with("image/"); }

bool PasteboardTypeTable::isDrawing(std::string_view name) {
  const std::string plain = canonical(name);
  return plain.find("svg") != std::string::npos || plain == "image/x-xcf";
}

bool PasteboardTypeTable::isPlainText(std::string_view name) {
  const Entry* entry = entryForName(name);
  if (entry != nullptr) return entry->type == pasteboardtype::utf8PlainText;
  return canonical(name).starts_with("text/plain;");
}

}  // namespace platform
