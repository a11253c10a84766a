#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "Quillmonger/capture/StoreBlobs.h"
#include "Quillmonger/capture/StoreFolder.h"
#include "Quillmonger/capture/StoreLoader.h"
#include "Quillmonger/capture/StoreSchema.h"
#include "tests/fuzz/Check.h"

namespace {

using namespace quillmonger;

/// Reads values of any kind from the input, and nothing but zeros behind its end.
class Input final {
 public:
  explicit Input(std::string_view bytes) : m_bytes(bytes) {}

  [[nodiscard]] bool isAtEnd() const { return m_bytes.empty(); }
  std::uint8_t byte() { return isAtEnd() ? std::uint8_t{0} : static_cast<std::uint8_t>(take(1).front()); }
  std::int64_t number() {
    std::int64_t value = 0;
    for (int count = byte() % 9; count > 0; --count)
      value = static_cast<std::int64_t>(static_cast<std::uint64_t>(value) << 8U) | byte();
    return value;
  }
  std::string_view bytes() { return take(byte()); }

  /// Binds a value of any kind, mostly of the `usual` one.
  enum class Usual { integer, text, blob };
  void bind(SqliteStatement& statement, int parameter, Usual usual) {
    const auto choice = byte();
    if (choice >= 0xF0) {
      statement.bindNull(parameter);
    } else if (usual == Usual::integer ? choice < 0xC0 : choice < 0x20) {
      statement.bind(parameter, number());
    } else if (usual == Usual::text ? choice < 0xD0 : choice < 0x40) {
      statement.bindText(parameter, bytes());
    } else {
      statement.bindBlob(parameter, bytes());
    }
  }

 private:
  std::string_view take(std::size_t count) {
    const auto taken = m_bytes.substr(0, count);
    m_bytes.remove_prefix(taken.size());
    return taken;
  }
  std::string_view m_bytes;
};

class Store final {
 public:
  Store() {
    storeschema::create(m_folder);
    m_database = std::make_unique<SqliteDatabase>(m_folder.file());
    m_blobs = std::make_shared<StoreBlobs>(SqliteDatabase(m_folder.file()));
  }
  Store(const Store&) = delete;
  Store& operator=(const Store&) = delete;
  ~Store() { std::filesystem::remove_all(m_path); }

  void load(Input input) {
    const SqliteTransaction transaction(*m_database);  // never committed
    while (!input.isAtEnd())
      insert(input);
    try {
      for (const auto& entry : loadStore(*m_database, m_blobs).entries) {
        fuzz::check(entry.key > 0 && entry.record->hashedData().size() == 32);
        static_cast<void>(entry.record->dataSize());
        static_cast<void>(entry.record->modifiedChangeCount());
      }
    } catch (const StoreFailure&) {
    }
  }

 private:
  void insert(Input& input) {
    using Usual = Input::Usual;
    try {
      if (input.byte() % 2 == 0) {
        auto item = m_database->prepare("INSERT INTO item VALUES (?, ?, ?, ?, ?, ?, ?)");
        bindAll(item, input,
                {Usual::integer, Usual::blob, Usual::text, Usual::text, Usual::text, Usual::integer, Usual::integer});
      } else {
        auto payload = m_database->prepare("INSERT INTO payload VALUES (?, ?, ?, ?, ?, ?)");
        bindAll(payload, input,
                {Usual::integer, Usual::text, Usual::blob, Usual::integer, Usual::integer, Usual::blob});
      }
    } catch (const StoreFailure&) {
      // The tables themselves refused it.
    }
  }

  static void bindAll(SqliteStatement& statement, Input& input, std::initializer_list<Input::Usual> kinds) {
    int parameter = 0;
    for (const auto kind : kinds)
      input.bind(statement, ++parameter, kind);
    statement.run();
  }

  static std::filesystem::path emptyPath() {
    auto path = std::filesystem::temp_directory_path() / ("quillmonger-store-fuzzer-" + std::to_string(getpid()));
    std::filesystem::remove_all(path);
    return path;
  }

  std::filesystem::path m_path = emptyPath();
  StoreFolder m_folder{m_path};
  std::unique_ptr<SqliteDatabase> m_database;
  std::shared_ptr<StoreBlobs> m_blobs;
};

}  // namespace

// Rows of any content are a store or are refused as damaged.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  static Store store;
  store.load(Input({reinterpret_cast<const char*>(bytes), size}));
  return 0;
}
