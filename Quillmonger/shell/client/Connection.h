#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>

namespace quillmonger {

/// One call of the running program. Blocks, within the given times.
class Connection final {
 public:
  /// Absent when no program listens at `socket`.
  [[nodiscard]] static std::optional<Connection> open(const std::filesystem::path& socket);

  Connection(Connection&& other) noexcept;
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;
  ~Connection();

  /// Sends one line and waits for the text that answers it, up to the connection's end. Absent when the program gives
  /// none in time.
  [[nodiscard]] std::optional<std::string> request(std::string line, std::chrono::milliseconds patience);

 private:
  explicit Connection(int descriptor) : m_descriptor(descriptor) {}

  int m_descriptor;
};

}  // namespace quillmonger
