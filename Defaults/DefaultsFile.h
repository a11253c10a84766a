#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "Defaults/UserDefaults.h"
#include "Foundation/Result.h"
#include "Foundation/RunLoop.h"

namespace defaults {

/// Settings as one JSON file, each value beside its kind, so that none loses its width:
///
///   {"version": 1, "values": {"historySize": {"integer": 10}, "soundVolume": {"float": 0.45}}}
///
/// | Kind | Value |
/// |---|---|
/// | "bool", "integer", "float", "double", "string" | itself; a number that is not finite is "nan", "inf" or "-inf" |
/// | "date" | nanoseconds since the start of 1970 in UTC |
/// | "data" | Base64 |
/// | "strings" | a list that holds nothing but strings |
/// | "list" | any other list, each element beside its kind |
/// | "map" | an object, each element beside its kind |
///
/// One thread at a time.
class DefaultsFile final {
 public:
  static constexpr std::size_t sizeLimit = std::size_t{4} << 20U;
  /// Of lists and objects within each other. The deepest value that a store takes fits: each of its levels is two here.
  static constexpr int depthLimit = 3 + 2 * Object::depthLimit;

  struct Content {
    Objects values;
    /// Entries of a kind that this program doesn't know, as JSON text: kept as they are.
    std::map<std::string, std::string, std::less<>> unknown;
  };

  /// A symbolic link is followed, so that it survives a write.
  explicit DefaultsFile(const std::filesystem::path& path);

  [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

  /// Empty for a missing file. A damaged one is moved aside under a name of its own, with a line on standard output,
  /// and reads as empty; so does one that can't be opened, which stays.
  [[nodiscard]] Content read(foundation::Date now) const;
  /// Replaces the file in one step: at any moment either the old or the new content is there. Makes the folder. Reached
  /// the disk when it returns. Fails for what `read` would refuse for its size.
  foundation::Outcome write(const Content& content) const;

  /// Absent for anything but a whole, well-formed file within the limits.
  [[nodiscard]] static std::optional<Content> decode(std::string_view text);
  [[nodiscard]] static std::string encode(const Content& content);

 private:
  void setAside(foundation::Date now) const;

  std::filesystem::path m_path;
};

}  // namespace defaults
