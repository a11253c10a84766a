#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Defaults/Defaults.h"
#include "Foundation/NotificationCenter.h"
#include "Foundation/Subscription.h"
#include "Quillmonger/shell/AudioPlayer.h"

namespace quillmonger {

/// Where a resource of the program is; absent when it has none of that name.
using ResourceLookup = std::function<std::optional<std::string>(std::string_view name, std::string_view fileExtension)>;

/// Plays a short sound at five events, of which it hears by notifications alone. One channel: a new sound cuts the
/// former one off. Main thread.
class AudioManager final {
 public:
  struct Collaborators {
    ResourceLookup resources;
    AudioPlayerFactory makePlayer;
    foundation::NotificationCenter& notificationCenter;
    defaults::Defaults& defaults;
  };

  /// All collaborators outlive this object.
  explicit AudioManager(const Collaborators& collaborators);

 private:
  /// A missing or unreadable sound is never shown to the user.
  void playSound(std::string_view name, float boost);

  Collaborators m_with;
  /// The latest sound.
  std::unique_ptr<AudioPlayer> m_audioPlayer;
  std::vector<foundation::Subscription> m_subscriptions;
};

}  // namespace quillmonger
