#pragma once

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

#include "Foundation/Stream.h"
#include "Sauce/InputSourceService.h"

namespace testsupport {

/// Input sources without a desktop: the test says which there are, what they type and which is selected.
class FakeInputSourceService : public sauce::InputSourceService {
 public:
  using Texts = std::map<sauce::KeyCode, std::string>;

  [[nodiscard]] std::vector<sauce::InputSource> enabledInputSources() const override { return m_enabled; }
  [[nodiscard]] std::optional<sauce::InputSource> currentKeyboardLayoutInputSource() const override {
    return m_selected;
  }
  [[nodiscard]] std::optional<sauce::InputSource> currentASCIICapableInputSource() const override {
    return m_asciiCapable;
  }
  [[nodiscard]] bool hasLayoutData(const sauce::InputSource& source) const override { return m_texts.contains(source); }
  [[nodiscard]] std::optional<std::string> translate(const sauce::InputSource& source, sauce::KeyCode keyCode,
                                                     std::uint32_t modifiers) const override {
    m_translated.push_back(keyCode);
    const auto texts = m_texts.find(source);
    if (texts == m_texts.end() || modifiers != 0) return std::nullopt;
    const auto text = texts->second.find(keyCode);
    return text == texts->second.end() ? std::nullopt : std::optional(text->second);
  }
  foundation::Subscription observeSelectedInputSource(Observer observer) override {
    return m_selectedChanged.subscribe([observer = std::move(observer)](std::monostate) { observer(); });
  }
  foundation::Subscription observeEnabledInputSources(Observer observer) override {
    return m_enabledChanged.subscribe([observer = std::move(observer)](std::monostate) { observer(); });
  }

  /// Takes effect without a word, as what follows does; then `tell…`.
  void setTexts(const sauce::InputSource& source, Texts texts) { m_texts[source] = std::move(texts); }
  void setEnabled(std::vector<sauce::InputSource> sources) { m_enabled = std::move(sources); }
  void setSelected(std::optional<sauce::InputSource> source) { m_selected = std::move(source); }
  void setASCIICapable(std::optional<sauce::InputSource> source) { m_asciiCapable = std::move(source); }

  void tellSelectedChanged() { m_selectedChanged.send({}); }
  void tellEnabledChanged() { m_enabledChanged.send({}); }

  /// The positions that were asked about, in order.
  [[nodiscard]] const std::vector<sauce::KeyCode>& translated() const { return m_translated; }

 private:
  std::vector<sauce::InputSource> m_enabled;
  std::optional<sauce::InputSource> m_selected;
  std::optional<sauce::InputSource> m_asciiCapable;
  std::unordered_map<sauce::InputSource, Texts> m_texts;
  mutable std::vector<sauce::KeyCode> m_translated;
  foundation::Stream<std::monostate> m_selectedChanged;
  foundation::Stream<std::monostate> m_enabledChanged;
};

/// A desktop with one layout, which types "v" at its usual place.
class LatinInputSource final : public FakeInputSourceService {
 public:
  LatinInputSource() {
    const sauce::InputSource source("us");
    setTexts(source, {{9, "v"}});
    setEnabled({source});
    setSelected(source);
    setASCIICapable(source);
  }
};

}  // namespace testsupport
