#pragma once

#include <cstdint>
#include <memory>

#include "Foundation/Data.h"
#include "Quillmonger/capture/StoreBlobs.h"

namespace quillmonger {

/// A large value that rests in the store. There is one for each blob number, shared by all who hold the value; while it
/// lives its bytes stay in the store, even when no record has them any more. Any thread.
class StoredBlob final : public foundation::DataSource {
 public:
  StoredBlob(std::shared_ptr<StoreBlobs> blobs, std::int64_t number, std::size_t size);
  StoredBlob(const StoredBlob&) = delete;
  StoredBlob& operator=(const StoredBlob&) = delete;
  ~StoredBlob() override;

  [[nodiscard]] std::optional<std::string> read(std::size_t offset, std::size_t length) const override;

  [[nodiscard]] std::int64_t number() const { return m_number; }
  [[nodiscard]] bool isIn(const StoreBlobs& blobs) const { return m_blobs.get() == &blobs; }

 private:
  std::shared_ptr<StoreBlobs> m_blobs;
  std::int64_t m_number;
  std::size_t m_size;
};

}  // namespace quillmonger
