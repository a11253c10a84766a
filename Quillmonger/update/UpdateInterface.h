#pragma once

#include <cstdint>
#include <optional>

#include "Quillmonger/update/Update.h"

namespace quillmonger {

/// Where the updater stands, for the user.
struct UpdateStatus {
  enum class Stage { checking, upToDate, available, downloading, ready, failed };

  Stage stage = Stage::checking;
  /// While there is one: from `available` to `ready`.
  std::optional<Update> update{};
  /// While downloading: how many bytes are there.
  std::uint64_t received = 0;
  /// When it failed.
  UpdateFailure failure = UpdateFailure::unreachable;
};

/// The updater's window. Main thread.
class UpdateInterface {
 public:
  UpdateInterface() = default;
  UpdateInterface(const UpdateInterface&) = delete;
  UpdateInterface& operator=(const UpdateInterface&) = delete;
  virtual ~UpdateInterface() = default;

  enum class Attention {
    front,  ///< the user asked, and waits for it
    aside   ///< nobody asked: the keyboard stays where it is
  };

  /// What the window shows, whether it is on the screen or not.
  virtual void setStatus(const UpdateStatus& status) = 0;
  virtual void show(Attention attention) = 0;
  virtual void hide() = 0;
  /// It may go with the program's other windows, which is not told.
  [[nodiscard]] virtual bool isVisible() const = 0;
};

}  // namespace quillmonger
