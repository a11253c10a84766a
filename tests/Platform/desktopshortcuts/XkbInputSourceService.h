#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "Platform/keyboard/XkbInputSources.h"
#include "tests/support/FakeInputSourceService.h"

namespace testsupport {

/// The layouts of a keymap that the system knows by name, as "us,ru".
class XkbInputSourceService final : public FakeInputSourceService {
 public:
  explicit XkbInputSourceService(const std::string& layouts, std::size_t selected = 0)
      : m_sources(platform::XkbKeymap::compile(layouts), {}, selected) {
    setEnabled(m_sources.enabled());
    setSelected(m_sources.selected());
    setASCIICapable(m_sources.asciiCapable());
  }

  [[nodiscard]] std::optional<std::string> translate(const sauce::InputSource& source, sauce::KeyCode keyCode,
                                                     std::uint32_t modifiers) const override {
    return m_sources.translate(source, keyCode, modifiers);
  }

 private:
  platform::XkbInputSources m_sources;
};

}  // namespace testsupport
