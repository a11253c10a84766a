#pragma once

#include <vector>

#include "Quillmonger/capture/PasteStep.h"

namespace testsupport {

/// Notes who asked for the paste step.
class FakePasteStep final : public quillmonger::PasteStep {
 public:
  void pasteIntoFrontmostApplication(const void* sender) override { m_senders.push_back(sender); }
  [[nodiscard]] const std::vector<const void*>& senders() const { return m_senders; }

 private:
  std::vector<const void*> m_senders;
};

}  // namespace testsupport
