#pragma once

#include "Quillmonger/shell/windows/MotionPreference.h"

namespace testsupport {

/// What the test says about motion; none is unwanted at first.
class FakeMotionPreference final : public quillmonger::MotionPreference {
 public:
  [[nodiscard]] bool reducesMotion() const override { return m_reducesMotion; }
  void setReducesMotion(bool reducesMotion) { m_reducesMotion = reducesMotion; }

 private:
  bool m_reducesMotion = false;
};

}  // namespace testsupport
