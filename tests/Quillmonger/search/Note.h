#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <utility>

#include "Quillmonger/search/Searchable.h"
#include "tests/support/VirtualRunLoop.h"

namespace testsupport {

/// The least that can be searched: a text, its age at the start of a `VirtualRunLoop`, and an application's name.
class Note final : public quillmonger::Searchable {
 public:
  Note(std::string text, std::chrono::seconds age, std::optional<std::string> appName = {})
      : m_text(std::move(text)), m_appName(std::move(appName)), m_age(age) {}

  [[nodiscard]] quillmonger::SharedText text() const override { return {nullptr, m_text}; }
  [[nodiscard]] std::optional<quillmonger::SharedText> shortText(std::size_t limit) const override {
    return m_text.size() <= limit ? std::optional(text()) : std::nullopt;
  }
  [[nodiscard]] std::string appKey() const override { return m_appName.value_or(std::string()); }
  [[nodiscard]] std::optional<std::string> appName() const override { return m_appName; }
  [[nodiscard]] foundation::Date creationDate() const override { return VirtualRunLoop::startDate() - m_age; }

 private:
  std::string m_text;
  std::optional<std::string> m_appName;
  std::chrono::seconds m_age;
};

}  // namespace testsupport
