#include "Foundation/Uuid.h"

#include <sys/random.h>

#include <array>
#include <cstring>

#include "Foundation/Fatal.h"

namespace foundation {

namespace {

constexpr std::string_view pattern = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";

int digitValue(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
  if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
  return -1;
}

// Asked of the system for many identities at a time: a call costs more than all else that a new row needs.
Uuid::Bytes randomBytes() {
  constexpr std::size_t batchSize = 16;  // 256 bytes, which the system always gives whole
  thread_local std::array<Uuid::Bytes, batchSize> batch;
  thread_local std::size_t used = batchSize;
  if (used == batchSize) {
    if (getrandom(batch.data(), sizeof batch, 0) != static_cast<ssize_t>(sizeof batch)) {
      stopProcess("The system gives no random numbers.");
    }
    used = 0;
  }
  return batch[used++];
}

}  // namespace

Uuid Uuid::random() {
  Bytes bytes = randomBytes();
  bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0F) | 0x40);
  bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3F) | 0x80);
  return Uuid(bytes);
}

std::optional<Uuid> Uuid::parse(std::string_view text) {
  if (text.size() != pattern.size()) return std::nullopt;
  Bytes bytes{};
  std::size_t digits = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (pattern[i] == '-') {
      if (text[i] != '-') return std::nullopt;
      continue;
    }
    const int value = digitValue(text[i]);
    if (value < 0) return std::nullopt;
    auto& byte = bytes[digits / 2];
    byte = static_cast<std::uint8_t>(byte << 4 | value);
    ++digits;
  }
  return Uuid(bytes);
}

std::string Uuid::toString() const {
  constexpr std::string_view hex = "0123456789ABCDEF";
  std::string text;
  text.reserve(pattern.size());
  std::size_t digits = 0;
  for (const char place : pattern) {
    if (place == '-') {
      text += '-';
      continue;
    }
    const unsigned byte = m_bytes[digits / 2];
    text += hex[digits % 2 == 0 ? byte >> 4 : byte & 0x0F];
    ++digits;
  }
  return text;
}

}  // namespace foundation

std::size_t std::hash<foundation::Uuid>::operator()(const foundation::Uuid& uuid) const noexcept {
  std::size_t value = 0;
  std::memcpy(&value, uuid.bytes().data() + 8, sizeof value);
  return value;
}
