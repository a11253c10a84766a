#pragma once

#include "Defaults/Defaults.h"
#include "Defaults/UserDefaults.h"

namespace testsupport {

/// Settings of a test's own: each reads as its default until the test sets it.
struct TestDefaults {
  defaults::UserDefaults suite;
  defaults::Defaults defaults{suite};
};

}  // namespace testsupport
