#include "tests/support/qt/QtEnvironment.h"

namespace {

[[maybe_unused]] const auto* const environment = testing::AddGlobalTestEnvironment(new testsupport::QtEnvironment);

}  // namespace
