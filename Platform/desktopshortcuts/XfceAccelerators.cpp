#include "Platform/desktopshortcuts/XfceAccelerators.h"

#include <map>
#include <utility>

#include "Platform/desktopshortcuts/Markup.h"

namespace platform {

namespace {

// One of "commands" and "xfwm4".
struct Provider {
  // Whether the user's set of chords stands in for the preset one, rather than beside it.
  bool isCustom = false;
  // By the chord's text: whether it does anything.
  std::map<std::string, bool> preset;
  std::map<std::string, bool> custom;
};
using Providers = std::map<std::string, Provider>;

// Properties lie in each other: the provider, the set, the chord, and what belongs to the chord.
class PropertyReader {
 public:
  explicit PropertyReader(Providers& providers) : m_providers(providers) {}

  void begin(std::string_view element, const MarkupHandler::Attribute& attribute) {
    if (element != "property") return;
    const std::string name = attribute("name").value_or("");
    if (++m_depth == 1) m_provider = name;
    if (m_depth == 2) m_set = name;
    if (m_depth == 3) take(name, attribute("type").value_or(""), attribute("value").value_or(""));
  }
  void end(std::string_view element) {
    if (element == "property") --m_depth;
  }

 private:
  void take(const std::string& name, std::string_view type, std::string_view value) {
    Provider& provider = m_providers[m_provider];
    if (m_set == "custom" && name == "override") {
      provider.isCustom = value == "true";
    } else if (type == "string" && (m_set == "custom" || m_set == "default")) {
      (m_set == "custom" ? provider.custom : provider.preset)[name] = !value.empty();
    }
  }

  Providers& m_providers;
  std::string m_provider;
  std::string m_set;
  int m_depth = 0;
};

bool readInto(Providers& providers, const std::string& file) {
  Providers read = providers;
  PropertyReader reader(read);
  const MarkupHandler handler{
      [&reader](std::string_view element, const auto& attribute) { reader.begin(element, attribute); },
      [&reader](std::string_view element) { reader.end(element); }};
  if (readMarkup(file, handler) == MarkupOutcome::damaged) return false;
  providers = std::move(read);
  return true;
}

}  // namespace

std::optional<std::vector<Accelerator>> xfceAccelerators(const std::vector<std::string>& files) {
  Providers providers;
  bool isRead = false;
  for (auto file = files.rbegin(); file != files.rend(); ++file)
    isRead = readInto(providers, *file) || isRead;
  if (!isRead) return std::nullopt;
  std::vector<Accelerator> accelerators;
  for (const auto& [name, provider] : providers) {
    for (const auto& [chord, isOn] : provider.isCustom ? provider.custom : provider.preset) {
      const auto accelerator = isOn ? gtkAccelerator(chord) : std::nullopt;
      if (accelerator) accelerators.push_back(*accelerator);
    }
  }
  return accelerators;
}

}  // namespace platform
