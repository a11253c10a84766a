#pragma once

#include <cstddef>
#include <cstdint>

#include "Quillmonger/capture/SqliteDatabase.h"
#include "Quillmonger/capture/StoreFolder.h"

namespace quillmonger::storeschema {

/// Values above `foundation::Data::residentLimit` lie in chunks of this size, the last one holding the rest.
inline constexpr std::size_t chunkSize = std::size_t{256} << 10;
/// A chunk's key is its blob's number and its place: blob * chunksPerBlob + sequence.
inline constexpr std::int64_t chunksPerBlob = 1 << 20;
inline constexpr std::int64_t maximumBlob = (std::int64_t{1} << 42) - 1;
inline constexpr std::size_t maximumBlobSize = chunkSize * static_cast<std::size_t>(chunksPerBlob);

[[nodiscard]] constexpr std::int64_t chunkKey(std::int64_t blob, std::size_t sequence) {
  return blob * chunksPerBlob + static_cast<std::int64_t>(sequence);
}
[[nodiscard]] constexpr std::size_t chunkCount(std::size_t size) { return (size + chunkSize - 1) / chunkSize; }

/// Makes an empty store in the folder; all of it or nothing. Throws `StoreFailure`.
void create(const StoreFolder& folder);

/// Throws `StoreFailure` for a file that by its first bytes is no store of this program and version. Only reads.
void checkHeader(const std::filesystem::path& file);
/// The same by what the database says, its log included. Only reads.
void check(SqliteDatabase& database);

}  // namespace quillmonger::storeschema
