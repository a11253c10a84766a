#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "Foundation/Digest.h"

namespace foundation {

/// Where bytes lie that are not in memory. Any thread.
class DataSource {
 public:
  DataSource() = default;
  DataSource(const DataSource&) = delete;
  DataSource& operator=(const DataSource&) = delete;
  virtual ~DataSource() = default;

  /// `length` bytes from `offset` on; both lie within the data. Absent when they can't be read.
  [[nodiscard]] virtual std::optional<std::string> read(std::size_t offset, std::size_t length) const = 0;
};

/// Immutable bytes, shared by every copy of this value, that may rest in memory or wherever a `DataSource` reads them
/// from. So a record with a payload of any size can be held, listed and compared without its payload being in memory.
/// Any thread; a `moveTo` is safe while others read.
class Data final {
 public:
  /// Bytes up to this size always stay in memory and are compared as they are; larger ones have a fingerprint.
  static constexpr std::size_t residentLimit = 4096;

  /// Empty, in memory.
  Data();
  /// In memory. Reads all bytes once when they exceed `residentLimit`.
  explicit Data(std::string bytes);
  /// Elsewhere. `fingerprint` is the SHA-256 of all bytes; `size` exceeds `residentLimit`.
  Data(std::size_t size, const Sha256& fingerprint, std::shared_ptr<const DataSource> source);

  [[nodiscard]] std::size_t size() const;
  [[nodiscard]] bool isEmpty() const { return size() == 0; }

  /// All bytes: those in memory, or read anew at each call. Null only when the source can't be read.
  [[nodiscard]] std::shared_ptr<const std::string> bytes() const;
  /// At most `length` bytes from `offset` on, without reading the rest. Empty when the source can't be read.
  [[nodiscard]] std::string part(std::size_t offset, std::size_t length) const;

  /// Only for more than `residentLimit` bytes.
  [[nodiscard]] const Sha256& fingerprint() const;

  /// The source, if the bytes rest there.
  [[nodiscard]] std::shared_ptr<const DataSource> source() const;
  /// Lets go of the memory, for this value and all its copies. Nothing happens up to `residentLimit` bytes.
  void moveTo(std::shared_ptr<const DataSource> source) const;

  /// By content; never reads a source.
  bool operator==(const Data& other) const;

 private:
  struct Large;
  struct Shared;
  /// One of the two is null.
  struct Place {
    std::shared_ptr<const std::string> memory;
    std::shared_ptr<const DataSource> source;
  };
  [[nodiscard]] Place place() const;

  std::shared_ptr<Shared> m_shared;
};

}  // namespace foundation
