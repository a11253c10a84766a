#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Foundation/Data.h"
#include "Quillmonger/capture/PasteboardContent.h"

namespace platform {

/// What the owner of a clipboard offers, translated: which types that makes, what to ask the owner for, and what the
/// answers mean. A plain value; any thread.
class OfferedTypes final {
 public:
  /// One representation, and the names to ask for until one gives usable bytes, best first. None for a type whose
  /// presence says everything.
  struct Request {
    std::string type;
    std::vector<std::string> names;
  };

  /// `names`: the owner's own, in its order. What lies beyond a sane number of types is left out.
  explicit OfferedTypes(const std::vector<std::string>& names);

  /// The uniform types, by which a copy is judged before it is read. A list of URLs counts as files here, since only
  /// its bytes would tell.
  [[nodiscard]] const std::vector<std::string>& types() const { return m_types; }
  [[nodiscard]] const std::vector<Request>& requests() const { return m_requests; }

  /// What an owner answered for `name` as the bytes of the representation; absent when it isn't usable.
  [[nodiscard]] static std::optional<std::string> decode(const Request& request, std::string_view name,
                                                         std::string bytes);

  /// The pasteboard items that the answers make. `values`: one for each request, absent where nothing usable came.
  [[nodiscard]] std::vector<quillmonger::PasteboardItem> items(
      const std::vector<std::optional<foundation::Data>>& values) const;

 private:
  [[nodiscard]] bool isWanted(std::string_view name) const;
  void add(const std::string& name);

  bool m_isOffice = false;
  bool m_hasText = false;
  /// The type of the best encoding of the picture; empty without one.
  std::string_view m_bestPicture;
  std::vector<std::string> m_types;
  std::vector<Request> m_requests;
};

}  // namespace platform
