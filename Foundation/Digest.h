#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace foundation {

/// MD5 (RFC 1321) over bytes that come in parts. It tells contents apart; it is no protection against forgery.
class Md5 final {
 public:
  Md5();
  Md5(const Md5&) = delete;
  Md5& operator=(const Md5&) = delete;
  ~Md5();

  void append(std::string_view bytes);
  /// The digest of everything appended, as 32 lower-case hexadecimal digits. Ends the use of this object.
  [[nodiscard]] std::string finish();

 private:
  struct State;
  std::unique_ptr<State> m_state;
};

/// A SHA-256 digest (FIPS 180-4): equal digests are taken for equal bytes.
using Sha256 = std::array<std::uint8_t, 32>;
[[nodiscard]] Sha256 sha256(std::string_view bytes);

}  // namespace foundation
