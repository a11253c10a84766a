#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Defaults/UserDefaults.h"
#include "Settings/Frame.h"

namespace settings {

/// Remembers where a window stands, in the settings store under a name. Main thread.
class FrameAutosave final {
 public:
  /// `store` outlives this object.
  explicit FrameAutosave(defaults::UserDefaults& store) : m_store(store) {}

  /// Absent where nothing, or nothing that is a place of any screen, is stored.
  [[nodiscard]] std::optional<Frame> frame(std::string_view name) const;
  void save(std::string_view name, const Frame& frame);

 private:
  defaults::UserDefaults& m_store;
};

}  // namespace settings
