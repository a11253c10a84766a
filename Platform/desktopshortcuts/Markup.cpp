#include "Platform/desktopshortcuts/Markup.h"

#include <glib.h>

#include <memory>

namespace platform {

namespace {

void begin(GMarkupParseContext* /*context*/, const char* element, const char** names, const char** values,
           void* handler, GError** /*error*/) {
  const auto attribute = [names, values](std::string_view name) -> std::optional<std::string> {
    for (std::size_t index = 0; names[index] != nullptr; ++index) {
      if (name == names[index]) return values[index];
    }
    return std::nullopt;
  };
  static_cast<const MarkupHandler*>(handler)->begin(element, attribute);
}

void end(GMarkupParseContext* /*context*/, const char* element, void* handler, GError** /*error*/) {
  static_cast<const MarkupHandler*>(handler)->end(element);
}

}  // namespace

MarkupOutcome readMarkup(std::string_view text, const MarkupHandler& handler) {
  const GMarkupParser parser{begin, end, nullptr, nullptr, nullptr};
  auto* const data = const_cast<MarkupHandler*>(&handler);
  const std::unique_ptr<GMarkupParseContext, decltype(&g_markup_parse_context_free)> context(
      g_markup_parse_context_new(&parser, GMarkupParseFlags{}, data, nullptr), &g_markup_parse_context_free);
  const bool isComplete =
      g_markup_parse_context_parse(context.get(), text.data(), static_cast<gssize>(text.size()), nullptr) != 0 &&
      g_markup_parse_context_end_parse(context.get(), nullptr) != 0;
  return isComplete ? MarkupOutcome::complete : MarkupOutcome::damaged;
}

}  // namespace platform
