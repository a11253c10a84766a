#include "tests/support/ChildProcess.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>
#include <string_view>

namespace testsupport {

namespace {

// Files in memory rather than pipes: neither side ever waits for the other.
int makeFile(std::string_view content) {
  const int file = memfd_create("quillmonger-test", MFD_CLOEXEC);
  while (!content.empty()) {
    const ssize_t written = write(file, content.data(), content.size());
    if (written <= 0) throw std::runtime_error("can't write a test's file");
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  lseek(file, 0, SEEK_SET);
  return file;
}

std::vector<char*> pointers(std::vector<std::string>& texts) {
  std::vector<char*> result;
  for (std::string& text : texts)
    result.push_back(text.data());
  result.push_back(nullptr);
  return result;
}

}  // namespace

ChildProcess::ChildProcess(std::vector<std::string> arguments, std::vector<std::string> environment,
                           const std::string& input)
    : m_output(makeFile({})) {
  for (char** entry = environ; *entry != nullptr; ++entry)
    environment.emplace_back(*entry);
  const std::vector<char*> argumentList = pointers(arguments);
  const std::vector<char*> environmentList = pointers(environment);
  const int inputFile = makeFile(input);
  m_process = fork();
  if (m_process == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    dup2(inputFile, STDIN_FILENO);
    dup2(m_output, STDOUT_FILENO);
    execvpe(argumentList.front(), argumentList.data(), environmentList.data());
    _exit(127);
  }
  close(inputFile);
  if (m_process < 0) throw std::runtime_error("can't start a test's process");
}

ChildProcess::~ChildProcess() {
  end(SIGKILL);
  close(m_output);
}

bool ChildProcess::isFinished() {
  int status = 0;
  if (!m_status && waitpid(m_process, &status, WNOHANG) == m_process) m_status = status;
  return m_status.has_value();
}

std::optional<int> ChildProcess::exitCode() const {
  if (!m_status || !WIFEXITED(*m_status)) return std::nullopt;
  return WEXITSTATUS(*m_status);
}

std::string ChildProcess::output() const {
  struct stat information {};
  fstat(m_output, &information);
  std::string text(static_cast<std::size_t>(information.st_size), '\0');
  const ssize_t length = pread(m_output, text.data(), text.size(), 0);
  text.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
  return text;
}

void ChildProcess::signal(int number) const {
  // Once it has been waited for, the number may be another process's.
  if (!m_status) kill(m_process, number);
}

void ChildProcess::end(int signal) {
  if (isFinished()) return;
  kill(m_process, signal);
  int status = 0;
  waitpid(m_process, &status, 0);
  m_status = status;
}

}  // namespace testsupport
