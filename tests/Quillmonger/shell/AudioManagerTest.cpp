#include "Quillmonger/shell/AudioManager.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>

#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/support/FakeAudioPlayer.h"
#include "tests/support/TestDefaults.h"

namespace {

namespace keys = quillmonger::keys;

class AudioManager : public testing::Test {
 protected:
  AudioManager() { m_settings.defaults.set(keys::soundVolume, 0.5F); }

  void post(std::string_view notification) { m_notificationCenter.post(notification); }
  const auto& sounds() { return m_loudspeaker.sounds(); }

  foundation::NotificationCenter m_notificationCenter;
  testsupport::TestDefaults m_settings;
  testsupport::FakeLoudspeaker m_loudspeaker;
  std::string m_missing;
  std::unique_ptr<quillmonger::AudioManager> m_manager =
      std::make_unique<quillmonger::AudioManager>(quillmonger::AudioManager::Collaborators{
          [this](std::string_view name, std::string_view fileExtension) -> std::optional<std::string> {
            if (name == m_missing) return std::nullopt;
            return std::string(name) + "." + std::string(fileExtension);
          },
          m_loudspeaker.factory(), m_notificationCenter, m_settings.defaults});
};

struct Row {
  const char* notification;
  const char* file;
  float volume;
};

class AudioManagerSounds : public AudioManager, public testing::WithParamInterface<Row> {};

TEST_P(AudioManagerSounds, PlaysTheSoundOfItsEventAtItsVolume) {
  post(GetParam().notification);

  ASSERT_EQ(sounds().size(), 1U);
  EXPECT_EQ(sounds()[0].place, GetParam().file);
  EXPECT_EQ(sounds()[0].volume, GetParam().volume);
  EXPECT_TRUE(sounds()[0].isAudible);
}

INSTANTIATE_TEST_SUITE_P(Events, AudioManagerSounds,
                         testing::Values(Row{"ItemCopied", "air_pump_06.wav", 0.5F},
                                         Row{"ItemDeleted", "air_pump_10.wav", 0.5F},
                                         Row{"PasteSucceeded", "air_pump_01.wav", 0.5F},
                                         Row{"ClipboardActivated", "air_pump_short.wav", 0.5F + 0.5F * 0.6F},
                                         Row{"HistoryCleared", "air_pump_12.wav", 0.5F}),
                         [](const auto& row) { return row.param.notification; });

TEST_F(AudioManager, MakesNoPlayerWhileSoundEffectsAreOff) {
  m_settings.defaults.set(keys::soundEffectsEnabled, false);

  post("ItemCopied");

  EXPECT_TRUE(sounds().empty());
}

TEST_F(AudioManager, PlaysSilentlyAtVolumeZero) {
  m_settings.defaults.set(keys::soundVolume, 0.0F);

  post("ClipboardActivated");

  ASSERT_EQ(sounds().size(), 1U);
  EXPECT_EQ(sounds()[0].volume, 0.0F);
  EXPECT_FALSE(sounds()[0].isAudible);
}

TEST_F(AudioManager, LeavesOnlyTheSecondOfTwoSoundsAudible) {
  post("ClipboardActivated");
  post("PasteSucceeded");

  ASSERT_EQ(sounds().size(), 2U);
  EXPECT_FALSE(sounds()[0].isAudible);
  EXPECT_TRUE(sounds()[1].isAudible);
}

TEST_F(AudioManager, BoostsBeyondFullVolumeWithoutACap) {
  m_settings.defaults.set(keys::soundVolume, 1.0F);

  post("ClipboardActivated");

  EXPECT_EQ(sounds().at(0).volume, 1.6F);
}

TEST_F(AudioManager, LoadsTheFileAnewForEachEvent) {
  post("ItemCopied");
  post("ItemCopied");

  EXPECT_EQ(sounds().size(), 2U);
}

TEST_F(AudioManager, SaysNothingOfASoundThatIsNotThere) {
  m_missing = "air_pump_06";
  testing::internal::CaptureStdout();

  post("ItemCopied");

  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_TRUE(sounds().empty());
}

TEST_F(AudioManager, SaysWhyItCantPlayAndLeavesTheFormerSoundAlone) {
  m_loudspeaker.makeUnreadable("air_pump_10.wav");
  post("ItemCopied");
  testing::internal::CaptureStdout();

  post("ItemDeleted");

  EXPECT_EQ(testing::internal::GetCapturedStdout(), "Error in playing sound file: not a sound\n");
  EXPECT_TRUE(sounds().at(0).isAudible);
}

TEST_F(AudioManager, EndsItsSoundAndHearsNothingMoreWhenItGoes) {
  post("ItemCopied");

  m_manager.reset();
  post("ItemDeleted");

  ASSERT_EQ(sounds().size(), 1U);
  EXPECT_FALSE(sounds()[0].isAudible);
}

}  // namespace
