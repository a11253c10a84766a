#include "tests/support/CapturedOutput.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <stdexcept>

namespace testsupport {

CapturedOutput::CapturedOutput()
    : m_original(fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0)), m_file(memfd_create("standard output", MFD_CLOEXEC)) {
  if (m_original < 0 || m_file < 0 || dup2(m_file, STDOUT_FILENO) < 0) {
    throw std::runtime_error("can't capture standard output");
  }
}

CapturedOutput::~CapturedOutput() {
  dup2(m_original, STDOUT_FILENO);
  close(m_original);
  close(m_file);
}

std::string CapturedOutput::text() const {
  struct stat facts {};
  if (fstat(m_file, &facts) != 0) return {};
  std::string text(static_cast<std::size_t>(facts.st_size), '\0');
  const ssize_t length = pread(m_file, text.data(), text.size(), 0);
  text.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
  return text;
}

}  // namespace testsupport
