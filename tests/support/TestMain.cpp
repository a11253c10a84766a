#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace {

// A test must never touch the home folder or the display of whoever runs it: script/test gives it its own home.
bool isOwnHome() {
  const char* home = std::getenv("HOME");
  const char* own = std::getenv("QUILLMONGER_TEST_HOME");
  return home != nullptr && own != nullptr && std::string_view(home) == own;
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!testing::GTEST_FLAG(list_tests) && !isOwnHome()) {
    std::cerr << "Refusing to run in your own home folder: start the tests with script/test.\n";
    return 2;
  }
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  return RUN_ALL_TESTS();
}
