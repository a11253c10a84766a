#pragma once

#include "Foundation/RunLoop.h"

/// Nothing is ever due: the benchmarks save by themselves.
class IdleRunLoop final : public foundation::RunLoop {
 public:
  void post(Task /*task*/) override {}
  foundation::Subscription after(foundation::Seconds /*delay*/, Task /*task*/) override { return {}; }
  foundation::Subscription every(foundation::Seconds /*interval*/, Task /*task*/) override { return {}; }
  [[nodiscard]] foundation::Date date() const override { return foundation::Date(); }
};
