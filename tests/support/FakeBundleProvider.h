#pragma once

#include <utility>

#include "Quillmonger/capture/BundleProviding.h"

namespace testsupport {

/// Says that the application in front is the one that the test put there; at first none.
class FakeBundleProvider final : public quillmonger::BundleProviding {
 public:
  [[nodiscard]] quillmonger::BundleReference frontmostBundle() const override { return m_frontmost; }
  void setFrontmostBundle(quillmonger::BundleReference bundle) { m_frontmost = std::move(bundle); }

 private:
  quillmonger::BundleReference m_frontmost;
};

}  // namespace testsupport
