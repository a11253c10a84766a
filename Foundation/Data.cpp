#include "Foundation/Data.h"

#include <algorithm>
#include <memory>
#include <mutex>
#include <utility>

namespace foundation {

// What only large bytes need; small ones are held by the ten thousand.
struct Data::Large {
  Sha256 fingerprint{};
  // Guards the two places: a search may read while the store takes the bytes over.
  mutable std::mutex mutex;
  std::shared_ptr<const std::string> memory;
  std::shared_ptr<const DataSource> source;
};

struct Data::Shared {
  explicit Shared(std::string bytes) : size(bytes.size()) {
    if (size <= residentLimit) {
      small = std::move(bytes);
      small.shrink_to_fit();
      return;
    }
    large = std::make_unique<Large>();
    large->fingerprint = sha256(bytes);
    large->memory = std::make_shared<const std::string>(std::move(bytes));
  }
  Shared(std::size_t byteCount, const Sha256& digest, std::shared_ptr<const DataSource> place)
      : size(byteCount), large(std::make_unique<Large>()) {
    large->fingerprint = digest;
    large->source = std::move(place);
  }

  const std::size_t size;
  std::string small;
  std::unique_ptr<Large> large;
};

Data::Data() : Data(std::string()) {}
Data::Data(std::string bytes) : m_shared(std::make_shared<Shared>(std::move(bytes))) {}
Data::Data(std::size_t size, const Sha256& fingerprint, std::shared_ptr<const DataSource> source)
    : m_shared(std::make_shared<Shared>(size, fingerprint, std::move(source))) {}

std::size_t Data::size() const { return m_shared->size; }

std::shared_ptr<const std::string> Data::bytes() const {
  if (!m_shared->large) return {m_shared, &m_shared->small};
  auto [memory, source] = place();
  if (memory) return memory;
  auto read = source->read(0, size());
  if (!read) return nullptr;
  return std::make_shared<const std::string>(*std::move(read));
}

std::string Data::part(std::size_t offset, std::size_t length) const {
  if (offset >= size()) return {};
  length = std::min(length, size() - offset);
  if (!m_shared->large) return m_shared->small.substr(offset, length);
  const auto [memory, source] = place();
  if (memory) return memory->substr(offset, length);
  return source->read(offset, length).value_or(std::string());
}

const Sha256& Data::fingerprint() const { return m_shared->large->fingerprint; }

std::shared_ptr<const DataSource> Data::source() const { return m_shared->large ? place().source : nullptr; }

void Data::moveTo(std::shared_ptr<const DataSource> source) const {
  if (!m_shared->large) return;
  // Let go of outside the lock: what goes may be large, or tell others of its end.
  std::shared_ptr<const std::string> memory;
  const std::lock_guard lock(m_shared->large->mutex);
  std::swap(m_shared->large->source, source);
  std::swap(m_shared->large->memory, memory);
}

Data::Place Data::place() const {
  const std::lock_guard lock(m_shared->large->mutex);
  return {m_shared->large->memory, m_shared->large->source};
}

bool Data::operator==(const Data& other) const {
  if (m_shared == other.m_shared) return true;
  if (size() != other.size()) return false;
  if (m_shared->large) return fingerprint() == other.fingerprint();
  return m_shared->small == other.m_shared->small;
}

}  // namespace foundation
