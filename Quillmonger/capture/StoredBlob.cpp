#include "Quillmonger/capture/StoredBlob.h"

#include <utility>

namespace quillmonger {

StoredBlob::StoredBlob(std::shared_ptr<StoreBlobs> blobs, std::int64_t number, std::size_t size)
    : m_blobs(std::move(blobs)), m_number(number), m_size(size) {
  m_blobs->hold(m_number);
}

StoredBlob::~StoredBlob() { m_blobs->release(m_number); }

std::optional<std::string> StoredBlob::read(std::size_t offset, std::size_t length) const {
  return m_blobs->read(m_number, m_size, offset, length);
}

}  // namespace quillmonger
