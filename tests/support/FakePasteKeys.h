#pragma once

#include "Quillmonger/input/PasteKeyPosting.h"

namespace testsupport {

/// Counts the paste keys that would have gone out.
class FakePasteKeys final : public quillmonger::PasteKeyPosting {
 public:
  void postPasteKeyEvents(std::uint16_t /*keyCode*/) override { ++m_postedCount; }
  [[nodiscard]] int postedCount() const { return m_postedCount; }

 private:
  int m_postedCount = 0;
};

}  // namespace testsupport
