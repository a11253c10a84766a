#pragma once

#include <string>
#include <vector>

namespace quillmonger {

/// Which copies are judged worth reading by their types alone. A plain value: the pasteboard's adapter holds a copy of
/// it, so that the bytes of a rejected copy, a password's, are never asked for. Any thread.
struct TypeFilter {
  bool ignoreSensitiveData = true;
  bool ignoreImages = false;
  bool isIncognitoMode = false;

  /// The first rule that applies decides: incognito rejects; no supported type rejects; an ignored type rejects; a
  /// concealed type rejects while `ignoreSensitiveData`; an image type rejects while `ignoreImages`.
  [[nodiscard]] bool accepts(const std::vector<std::string>& types) const;

  bool operator==(const TypeFilter&) const = default;
};

}  // namespace quillmonger
