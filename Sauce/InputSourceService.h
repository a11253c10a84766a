#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Foundation/Subscription.h"
#include "Sauce/InputSource.h"
#include "Sauce/Key.h"

namespace sauce {

/// The desktop's input sources, as they are now. Main thread; no operation waits for another program.
class InputSourceService {
 public:
  using Observer = std::function<void()>;

  InputSourceService() = default;
  InputSourceService(const InputSourceService&) = delete;
  InputSourceService& operator=(const InputSourceService&) = delete;
  virtual ~InputSourceService() = default;

  [[nodiscard]] virtual std::vector<InputSource> enabledInputSources() const = 0;
  /// The selected layout. Its users stop the process when it is absent.
  [[nodiscard]] virtual std::optional<InputSource> currentKeyboardLayoutInputSource() const = 0;
  /// The selected source if Latin letters can be typed with it, else the one that stands in for it. Its users stop the
  /// process when it is absent.
  [[nodiscard]] virtual std::optional<InputSource> currentASCIICapableInputSource() const = 0;

  /// Whether the source says what each key types; an input method doesn't.
  [[nodiscard]] virtual bool hasLayoutData(const InputSource& source) const = 0;
  /// What the key at a position shows and types, in UTF-8; a dead key gives its accent alone. `modifiers`: service bits
  /// (ModifierTransformer.h). Absent when the key types nothing, or the source has no layout data.
  [[nodiscard]] virtual std::optional<std::string> translate(const InputSource& source, KeyCode keyCode,
                                                             std::uint32_t modifiers) const = 0;

  /// Called after each change of the selected layout, or of the enabled sources or what their keys type, until the hold
  /// is gone. When one event changes both, the selected layout is told first.
  virtual foundation::Subscription observeSelectedInputSource(Observer observer) = 0;
  virtual foundation::Subscription observeEnabledInputSources(Observer observer) = 0;
};

}  // namespace sauce
