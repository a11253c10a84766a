#pragma once

#include <vector>

#include "Quillmonger/shell/Alert.h"

namespace testsupport {

/// An alert that answers itself.
class FakeAlert final : public quillmonger::Alert {
 public:
  explicit FakeAlert(int answer) : m_answer(answer) {}

  int runModal(const Content& content) override {
    m_shown.push_back(content);
    return m_answer;
  }
  [[nodiscard]] const std::vector<Content>& shown() const { return m_shown; }

 private:
  int m_answer;
  std::vector<Content> m_shown;
};

}  // namespace testsupport
