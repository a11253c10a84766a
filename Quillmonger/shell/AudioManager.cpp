#include "Quillmonger/shell/AudioManager.h"

#include <array>
#include <utility>

#include "Foundation/Output.h"
#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

namespace {

struct Sound {
  std::string_view notification;
  std::string_view name;
  float volumeBoost;
};

constexpr auto sounds = std::to_array<Sound>({
    {"ItemCopied", "air_pump_06", 0},
    {"ItemDeleted", "air_pump_10", 0},
    {"PasteSucceeded", "air_pump_01", 0},
    {"ClipboardActivated", "air_pump_short", 0.6F},
    {"HistoryCleared", "air_pump_12", 0},
});

}  // namespace

AudioManager::AudioManager(const Collaborators& collaborators) : m_with(collaborators) {
  for (const auto& sound : sounds) {
    m_subscriptions.push_back(m_with.notificationCenter.observe(
        sound.notification, [this, sound](const auto&) { playSound(sound.name, sound.volumeBoost); }));
  }
}

void AudioManager::playSound(std::string_view name, float boost) {
  if (!m_with.defaults[keys::soundEffectsEnabled]) return;
  const auto place = m_with.resources(name, "wav");
  if (!place) return;
  auto player = m_with.makePlayer(*place);
  if (!player) {
    foundation::printLine("Error in playing sound file: ", player.error().message);
    return;
  }
  m_audioPlayer = std::move(player.value());
  const float volume = m_with.defaults[keys::soundVolume];
  m_audioPlayer->setVolume(volume + volume * boost);
  m_audioPlayer->play();
}

}  // namespace quillmonger
