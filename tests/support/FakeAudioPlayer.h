#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Quillmonger/shell/AudioPlayer.h"

namespace testsupport {

/// Sound without a loudspeaker: what was played, how loud, and what can be heard now.
class FakeLoudspeaker final {
 public:
  struct Sound {
    std::string place;
    float volume = -1;
    bool isAudible = false;
  };

  [[nodiscard]] quillmonger::AudioPlayerFactory factory() {
    return [this](const std::string& place) -> foundation::Result<std::unique_ptr<quillmonger::AudioPlayer>> {
      if (place == m_unreadable) return foundation::Error{"not a sound"};
      m_sounds.push_back({place});
      return std::unique_ptr<quillmonger::AudioPlayer>(std::make_unique<Player>(*this, m_sounds.size() - 1));
    };
  }

  void makeUnreadable(const std::string& place) { m_unreadable = place; }
  /// One for each player that was made.
  [[nodiscard]] const std::vector<Sound>& sounds() const { return m_sounds; }

 private:
  class Player final : public quillmonger::AudioPlayer {
   public:
    Player(FakeLoudspeaker& loudspeaker, std::size_t number) : m_loudspeaker(loudspeaker), m_number(number) {}
    ~Player() override { sound().isAudible = false; }
    void setVolume(float volume) override { sound().volume = volume; }
    void play() override { sound().isAudible = sound().volume > 0; }

   private:
    Sound& sound() { return m_loudspeaker.m_sounds[m_number]; }
    FakeLoudspeaker& m_loudspeaker;
    std::size_t m_number;
  };

  std::vector<Sound> m_sounds;
  std::string m_unreadable;
};

}  // namespace testsupport
