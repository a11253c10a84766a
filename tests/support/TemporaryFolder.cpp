#include "tests/support/TemporaryFolder.h"

#include <cstdlib>
#include <stdexcept>
#include <string>
#include <system_error>

namespace testsupport {

TemporaryFolder::TemporaryFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "quillmonger-test-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("can't make a temporary folder");
  m_path = pattern;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(m_path, ignored);
}

}  // namespace testsupport
