#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Quillmonger/capture/PasteboardContent.h"

namespace platform {

/// A content as it is offered to other programs: under which names, and with which bytes for each. Immutable; any
/// thread.
class ServedTypes final {
 public:
  explicit ServedTypes(const std::vector<quillmonger::PasteboardItem>& items);

  /// In the content's order, the best name of each type first.
  [[nodiscard]] const std::vector<std::string>& names() const { return m_names; }
  /// The bytes as `name` wants them, loaded anew when they don't rest in memory. Null for a name that isn't offered
  /// and for one whose bytes aren't to be had.
  [[nodiscard]] std::shared_ptr<const std::string> bytes(std::string_view name) const;

 private:
  struct Source {
    std::string type;
    /// Absent when the type was offered and never had bytes.
    std::optional<foundation::Data> data;
  };
  void add(std::string_view name, const Source& source);

  std::vector<std::string> m_names;
  std::map<std::string, Source, std::less<>> m_sources;
};

}  // namespace platform
