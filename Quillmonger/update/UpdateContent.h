#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Foundation/TextLookup.h"
#include "Quillmonger/update/UpdateInterface.h"

namespace quillmonger {

/// What the updater's window says, and what it asks.
struct UpdateContent {
  enum class Answer { download, install, skip, close };
  struct Button {
    std::string label;
    Answer answer = Answer::close;

    bool operator==(const Button&) const = default;
  };

  std::string heading{};
  std::string message{};
  /// What is new; empty for nothing.
  std::string notes{};
  /// From 0 to 1; below 0 while there is no telling. Absent where nothing is under way.
  std::optional<double> progress{};
  /// The default one first. Escape gives the answer of the last one that closes.
  std::vector<Button> buttons{};
};

/// `ownVersion`: this program's. Main thread.
[[nodiscard]] UpdateContent updateContent(const UpdateStatus& status, std::string_view ownVersion,
                                          const foundation::TextLookup& texts);

}  // namespace quillmonger
