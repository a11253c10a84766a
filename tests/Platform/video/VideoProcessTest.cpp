#include "Platform/video/VideoProcess.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QTest>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/TemporaryFolder.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace std::chrono_literals;
using Colors = std::vector<std::string>;

constexpr int width = 32;
constexpr int height = 24;
constexpr std::size_t headSize = 8;
// What the decoder says until the blue picture is there: three pictures, and that the second one is the first again.
constexpr std::size_t untilBlue = 4 * headSize + 3 * std::size_t{width * height * 4};

// The colour of the pixel in the middle, and of all others, or else "mixed".
std::string colorOf(std::string_view pixels) {
  const auto isLow = [](char value) { return static_cast<unsigned char>(value) < 40; };
  std::string color;
  for (std::size_t at = 0; at < pixels.size(); at += 4) {
    const bool blue = !isLow(pixels[at]);
    const bool green = !isLow(pixels[at + 1]);
    const bool red = !isLow(pixels[at + 2]);
    const std::string present = std::string(red ? "red" : "") + (green ? "green" : "") + (blue ? "blue" : "");
    if (!color.empty() && color != present) return "mixed";
    color = present;
  }
  return color;
}

// Whether a program that this one started goes on, or has ended unnoticed.
bool hasChild() {
  siginfo_t info;
  return waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT | __WALL) == 0;
}

// The video of these tests shows red for two pictures, then green, then blue, each for a tenth of a second.
class VideoProcess : public testing::Test {
 protected:
  std::unique_ptr<quillmonger::VideoLooper> makeLooper(const std::string& name = "four-pictures",
                                                       const std::string& folder = QUILLMONGER_TEST_VIDEOS,
                                                       const std::string& decoder = QUILLMONGER_VIDEO_DECODER) {
    return platform::VideoProcess::factory(decoder, folder, m_runLoop)(name, {width, height},
                                                                       {[this](std::string_view pixels) {
                                                                          m_sizes.push_back(pixels.size());
                                                                          m_colors.push_back(colorOf(pixels));
                                                                        },
                                                                        [this] { ++m_failureCount; }});
  }
  // Lets the decoder answer, and the time pass, until so many pictures were shown.
  [[nodiscard]] bool showsPictures(std::size_t count) {
    return QTest::qWaitFor(
        [this, count] {
          if (m_colors.size() < count) m_runLoop.advance(100ms);
          return m_colors.size() >= count;
        },
        10000);
  }
  [[nodiscard]] bool fails() {
    return QTest::qWaitFor(
        [this] {
          m_runLoop.advance(100ms);
          return m_failureCount > 0;
        },
        10000);
  }
  // A decoder that does what the script says.
  std::string script(const std::string& commands) {
    const auto path = m_folder.path() / "decoder";
    std::ofstream(path) << "#!/bin/sh\n" << commands << "\n";
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    return path.string();
  }

  // The real one, with what it has answered by now in a file besides.
  std::string overheardDecoder() {
    return script(std::string(QUILLMONGER_VIDEO_DECODER) + " \"$@\" | tee " + answers().string());
  }
  std::filesystem::path answers() { return m_folder.path() / "answers"; }
  [[nodiscard]] bool hasAnswered(std::size_t byteCount) {
    const bool isThere = QTest::qWaitFor(
        [this, byteCount] {
          std::error_code none;
          return std::filesystem::file_size(answers(), none) == byteCount && !none;
        },
        10000);
    QCoreApplication::processEvents();
    return isThere;
  }

  testsupport::TemporaryFolder m_folder;
  testsupport::VirtualRunLoop m_runLoop;
  Colors m_colors;
  std::vector<std::size_t> m_sizes;
  int m_failureCount = 0;
};

TEST_F(VideoProcess, ShowsThePicturesInTheirOrderAndBeginsAgainAtTheEnd) {
  const auto looper = makeLooper();

  looper->play();

  ASSERT_TRUE(showsPictures(8));
  m_colors.resize(8);
  EXPECT_EQ(m_colors, (Colors{"red", "green", "blue", "red", "green", "blue", "red", "green"}));
}

TEST_F(VideoProcess, GivesEveryPictureInTheSizeThatWasAskedFor) {
  const auto looper = makeLooper();

  looper->play();

  ASSERT_TRUE(showsPictures(3));
  for (const auto size : m_sizes)
    EXPECT_EQ(size, std::size_t{width * height * 4});
}

TEST_F(VideoProcess, ShowsNothingBeforeItPlays) {
  const auto looper = makeLooper();

  QCoreApplication::processEvents();
  m_runLoop.advance(1s);

  EXPECT_TRUE(m_colors.empty());
}

TEST_F(VideoProcess, LetsEachPictureStandForItsTime) {
  const auto looper = makeLooper("four-pictures", QUILLMONGER_TEST_VIDEOS, overheardDecoder());
  looper->play();
  ASSERT_TRUE(showsPictures(2));
  ASSERT_TRUE(hasAnswered(untilBlue));  // time alone holds it up now

  m_runLoop.advance(99ms);
  EXPECT_EQ(m_colors.size(), 2U);
  m_runLoop.advance(1ms);

  EXPECT_EQ(m_colors.size(), 3U);
}

TEST_F(VideoProcess, StandsStillWhilePausedAndGoesOnWhereItWas) {
  const auto looper = makeLooper("four-pictures", QUILLMONGER_TEST_VIDEOS, overheardDecoder());
  looper->play();
  ASSERT_TRUE(showsPictures(2));

  looper->pause();
  ASSERT_TRUE(hasAnswered(untilBlue));
  m_runLoop.advance(10s);
  EXPECT_EQ(m_colors, (Colors{"red", "green"}));
  looper->play();

  ASSERT_TRUE(showsPictures(3));
  EXPECT_EQ(m_colors.at(2), "blue");
}

TEST_F(VideoProcess, IsNotThereWithoutItsFile) { EXPECT_EQ(makeLooper("no-such-video"), nullptr); }

TEST_F(VideoProcess, IsNotThereWithoutItsDecoder) {
  EXPECT_EQ(makeLooper("four-pictures", QUILLMONGER_TEST_VIDEOS, "/no/such/decoder"), nullptr);
}

TEST_F(VideoProcess, FailsForAFileThatIsNoVideo) {
  std::ofstream(m_folder.path() / "text.mp4") << std::string(10000, 'x');
  const auto looper = makeLooper("text", m_folder.path().string());

  looper->play();

  EXPECT_TRUE(fails());
  EXPECT_TRUE(m_colors.empty());
}

TEST_F(VideoProcess, FailsForAFileThatIsCutOff) {
  std::filesystem::copy(std::filesystem::path(QUILLMONGER_TEST_VIDEOS) / "four-pictures.mp4",
                        m_folder.path() / "cut.mp4");
  std::filesystem::resize_file(m_folder.path() / "cut.mp4", 1000);
  const auto looper = makeLooper("cut", m_folder.path().string());

  looper->play();

  EXPECT_TRUE(fails());
}

TEST_F(VideoProcess, FailsWhenTheDecoderEnds) {
  const auto looper = makeLooper("four-pictures", QUILLMONGER_TEST_VIDEOS, script("exit 0"));

  looper->play();

  EXPECT_TRUE(fails());
}

TEST_F(VideoProcess, TellsOfAFailureAlsoWhenItIsPausedAndPlayedMeanwhile) {
  const auto looper = makeLooper("four-pictures", QUILLMONGER_TEST_VIDEOS, script("exit 0"));
  looper->play();
  ASSERT_TRUE(QTest::qWaitFor([] { return !hasChild(); }));  // it has failed, and is to tell so

  looper->pause();
  looper->play();
  m_runLoop.advance(1s);

  EXPECT_EQ(m_failureCount, 1);
}

TEST_F(VideoProcess, StartsNoDecoderAfterAFailure) {
  const auto bad = script(R"(printf '\001\000\000\000\001\000\000\000x'; cat >/dev/null)");
  const auto looper = makeLooper("four-pictures", QUILLMONGER_TEST_VIDEOS, bad);
  looper->play();
  EXPECT_TRUE(hasChild());
  ASSERT_TRUE(fails());
  ASSERT_FALSE(hasChild());

  looper->play();

  EXPECT_FALSE(hasChild());
}

TEST_F(VideoProcess, FailsWhenTheDecoderCantBeStarted) {
  const auto path = script("exit 0");
  std::ofstream(path) << "#!/no/such/shell\n";
  const auto looper = makeLooper("four-pictures", QUILLMONGER_TEST_VIDEOS, path);

  looper->play();

  EXPECT_TRUE(fails());
}

TEST_F(VideoProcess, FailsWhenTheDecoderAnnouncesAPictureOfAnotherSize) {
  const auto looper = makeLooper("four-pictures", QUILLMONGER_TEST_VIDEOS,
                                 script(R"(printf '\001\000\000\000\001\000\000\000x'; cat >/dev/null)"));

  looper->play();

  EXPECT_TRUE(fails());
  EXPECT_TRUE(m_colors.empty());
}

TEST_F(VideoProcess, FailsWhenTheDecoderNeverStopsTalking) {
  const auto looper =
      makeLooper("four-pictures", QUILLMONGER_TEST_VIDEOS,
                 script(R"(printf '\001\000\000\000\000\000\000\000'; head -c 100000000 /dev/zero; cat >/dev/null)"));

  looper->play();

  EXPECT_TRUE(fails());
}

TEST_F(VideoProcess, TakesItsDecoderAlong) {
  const auto number = m_folder.path() / "number";
  auto looper = makeLooper("four-pictures", QUILLMONGER_TEST_VIDEOS,
                           script("echo $$ > " + number.string() + ".new; mv " + number.string() + ".new " +
                                  number.string() + "; exec sleep 1000"));
  looper->play();
  ASSERT_TRUE(QTest::qWaitFor([&number] { return std::filesystem::exists(number); }, 10000));
  pid_t process = 0;
  std::ifstream(number) >> process;
  ASSERT_EQ(kill(process, 0), 0);

  looper.reset();

  EXPECT_NE(kill(process, 0), 0);
}

}  // namespace
