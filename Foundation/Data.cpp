#include "Foundation/Data.h"

#include <algorithm>
#include <mutex>
#include <utility>

namespace foundation {

struct Data::Shared {
  explicit Shared(std::string content)
      : size(content.size()), memory(std::make_shared<const std::string>(std::move(content))) {
    if (size > residentLimit) fingerprint = sha256(*memory);
  }
  Shared(std::size_t byteCount, const Sha256& digest, std::shared_ptr<const DataSource> place)
      : size(byteCount), fingerprint(digest), source(std::move(place)) {}

  const std::size_t size;
  Sha256 fingerprint{};

  // Guards the two places: a search may read while the store takes the bytes over.
  mutable std::mutex mutex;
  std::shared_ptr<const std::string> memory;
  std::shared_ptr<const DataSource> source;
};

Data::Data() : Data(std::string()) {}
Data::Data(std::string bytes) : m_shared(std::make_shared<Shared>(std::move(bytes))) {}
Data::Data(std::size_t size, const Sha256& fingerprint, std::shared_ptr<const DataSource> source)
    : m_shared(std::make_shared<Shared>(size, fingerprint, std::move(source))) {}

std::size_t Data::size() const { return m_shared->size; }

std::shared_ptr<const std::string> Data::bytes() const {
  std::shared_ptr<const DataSource> source;
  {
    const std::lock_guard lock(m_shared->mutex);
    if (m_shared->memory) return m_shared->memory;
    source = m_shared->source;
  }
  auto read = source->read(0, size());
  if (!read) return nullptr;
  return std::make_shared<const std::string>(*std::move(read));
}

std::string Data::part(std::size_t offset, std::size_t length) const {
  if (offset >= size()) return {};
  length = std::min(length, size() - offset);
  std::shared_ptr<const DataSource> source;
  {
    const std::lock_guard lock(m_shared->mutex);
    if (m_shared->memory) return m_shared->memory->substr(offset, length);
    source = m_shared->source;
  }
  return source->read(offset, length).value_or(std::string());
}

const Sha256& Data::fingerprint() const { return m_shared->fingerprint; }

std::shared_ptr<const DataSource> Data::source() const {
  const std::lock_guard lock(m_shared->mutex);
  return m_shared->memory ? nullptr : m_shared->source;
}

void Data::moveTo(std::shared_ptr<const DataSource> source) const {
  if (size() <= residentLimit) return;
  std::shared_ptr<const std::string> released;
  const std::lock_guard lock(m_shared->mutex);
  m_shared->source = std::move(source);
  released = std::exchange(m_shared->memory, nullptr);
}

bool Data::operator==(const Data& other) const {
  if (m_shared == other.m_shared) return true;
  if (size() != other.size()) return false;
  if (size() > residentLimit) return fingerprint() == other.fingerprint();
  return *m_shared->memory == *other.m_shared->memory;
}

}  // namespace foundation
