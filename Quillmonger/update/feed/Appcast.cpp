#include "Quillmonger/update/feed/Appcast.h"

#include <glib.h>

#include <algorithm>
#include <charconv>
#include <memory>
#include <string>
#include <utility>

namespace quillmonger::appcast {

namespace {

struct Reader {
  std::vector<Update> updates;
  std::size_t itemCount = 0;
  bool isInDescription = false;
  std::string notes;
  std::optional<Update> enclosure;
};

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t\r\n";
  const auto begin = text.find_first_not_of(blanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

// At a character's beginning: the text is valid UTF-8.
std::string_view cut(std::string_view text) {
  if (text.size() <= notesLimit) return text;
  std::size_t end = notesLimit;
  while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U)
    --end;
  return text.substr(0, end);
}

std::uint64_t lengthOf(std::string_view text) {
  std::uint64_t length = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), length);
  return failure == std::errc() && end == text.data() + text.size() ? length : 0;
}

// Absent when it lacks something, or names what can't be.
std::optional<Update> enclosureOf(const char** names, const char** values) {
  const auto attribute = [names, values](std::string_view name) -> std::string_view {
    for (std::size_t index = 0; names[index] != nullptr; ++index) {
      if (name == names[index]) return values[index];
    }
    return {};
  };
  auto url = foundation::Url::parse(attribute("url").substr(0, Update::addressLimit + 1));
  if (!url) return std::nullopt;
  Update update{std::string(attribute("quillmonger:version")),
                {},
                *std::move(url),
                lengthOf(attribute("length")),
                std::string(attribute("quillmonger:sha256"))};
  return isUsable(update) ? std::optional(std::move(update)) : std::nullopt;
}

void begin(GMarkupParseContext* /*context*/, const char* element, const char** names, const char** values, void* data,
           GError** /*error*/) {
  auto& reader = *static_cast<Reader*>(data);
  const std::string_view name = element;
  if (name == "item") {
    reader.notes.clear();
    reader.enclosure.reset();
  }
  if (name == "enclosure") reader.enclosure = enclosureOf(names, values);
  reader.isInDescription = name == "description";
}

void end(GMarkupParseContext* /*context*/, const char* element, void* data, GError** /*error*/) {
  auto& reader = *static_cast<Reader*>(data);
  reader.isInDescription = false;
  if (std::string_view(element) != "item" || ++reader.itemCount > itemLimit || !reader.enclosure) return;
  reader.enclosure->notes = trimmed(cut(reader.notes));
  reader.updates.push_back(*std::exchange(reader.enclosure, std::nullopt));
}

void addText(GMarkupParseContext* /*context*/, const char* text, std::size_t length, void* data, GError** /*error*/) {
  auto& reader = *static_cast<Reader*>(data);
  if (reader.isInDescription) reader.notes.append(text, length);
}

}  // namespace

std::optional<std::vector<Update>> parse(std::string_view text) {
  constexpr GMarkupParser parser{begin, end, addText, nullptr, nullptr};
  Reader reader;
  const std::unique_ptr<GMarkupParseContext, decltype(&g_markup_parse_context_free)> context(
      g_markup_parse_context_new(&parser, G_MARKUP_TREAT_CDATA_AS_TEXT, &reader, nullptr),
      &g_markup_parse_context_free);
  const bool isComplete =
      g_markup_parse_context_parse(context.get(), text.data(), static_cast<gssize>(text.size()), nullptr) != 0 &&
      g_markup_parse_context_end_parse(context.get(), nullptr) != 0;
  return isComplete ? std::optional(std::move(reader.updates)) : std::nullopt;
}

std::optional<Update> newest(const std::vector<Update>& updates, const SoftwareVersion& own) {
  const auto versionOf = [](const Update& update) {
    return SoftwareVersion::parse(update.version).value_or(SoftwareVersion());
  };
  const auto update = std::ranges::max_element(updates, {}, versionOf);
  if (update == updates.end() || versionOf(*update) <= own) return std::nullopt;
  return *update;
}

}  // namespace quillmonger::appcast
