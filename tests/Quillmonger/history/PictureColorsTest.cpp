#include "Quillmonger/history/PictureColors.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/InlineBackgroundQueue.h"
#include "tests/support/ItemServices.h"
#include "tests/support/Records.h"
#include "tests/support/VirtualRunLoop.h"

namespace {

using namespace quillmonger;
using testsupport::makeRecord;

class PictureColorsTest : public testing::Test, protected testsupport::ItemServices {
 protected:
  PictureColorsTest() {
    pictures.setPicture("red", {2, 2}, {0xFFFF0000});
    pictures.setPicture("blue", {2, 2}, {0xFF0000FF});
  }

  PictureColors::Item pictureOf(const std::string& bytes) {
    return std::make_shared<ClipboardItemViewModel>(makeRecord(bytes, {}, pasteboardtype::NSPasteboardTypePNG),
                                                    services);
  }
  void finishOne() {
    m_queue.run();
    m_runLoop.runPosted();
  }

  testsupport::InlineBackgroundQueue m_queue;
  testsupport::VirtualRunLoop m_runLoop;
  std::optional<PictureColors> m_colors{std::in_place, m_queue, m_runLoop};
  std::vector<PictureColors::Item> m_found;
  foundation::Subscription m_subscription =
      m_colors->found().subscribe([this](const auto& item) { m_found.push_back(item); });
};

TEST_F(PictureColorsTest, DecodesNothingOnTheMainThread) {
  const auto red = pictureOf("red");

  EXPECT_FALSE(m_colors->color(red));
  EXPECT_EQ(pictures.pixelsCount(), 0);

  finishOne();
  EXPECT_EQ(m_colors->color(red), RGBColor(1, 0, 0));
  EXPECT_EQ(m_found, std::vector{red});
}

TEST_F(PictureColorsTest, DecodesAPictureOnceHoweverOftenItIsAskedFor) {
  const auto red = pictureOf("red");
  static_cast<void>(m_colors->color(red));
  static_cast<void>(m_colors->color(red));

  finishOne();
  finishOne();
  static_cast<void>(m_colors->color(red));
  finishOne();

  EXPECT_EQ(pictures.pixelsCount(), 1);
}

TEST_F(PictureColorsTest, DecodesOneAtATimeTheLatestFirst) {
  const auto first = pictureOf("red");
  const auto second = pictureOf("blue");
  const auto third = pictureOf("blue");
  for (const auto& item : {first, second, third})
    static_cast<void>(m_colors->color(item));

  finishOne();
  finishOne();
  finishOne();

  EXPECT_EQ(m_found, (std::vector{first, third, second}));
}

TEST_F(PictureColorsTest, TellsThatAPictureHasNoColour) {
  const auto broken = pictureOf("broken");
  static_cast<void>(m_colors->color(broken));

  finishOne();

  EXPECT_EQ(m_found, std::vector{broken});
  EXPECT_FALSE(m_colors->color(broken));
  finishOne();
  EXPECT_EQ(m_found.size(), 1U);
}

TEST_F(PictureColorsTest, DropsAnItemThatHasGone) {
  auto gone = pictureOf("red");
  const auto kept = pictureOf("blue");
  static_cast<void>(m_colors->color(gone));
  static_cast<void>(m_colors->color(kept));
  gone.reset();

  finishOne();
  finishOne();

  EXPECT_EQ(m_found, std::vector{kept});
}

TEST_F(PictureColorsTest, ForgetsTheOldestOfVeryManyThatWait) {
  std::vector<PictureColors::Item> items;
  for (int number = 0; number < 100; ++number)
    items.push_back(pictureOf("red"));
  for (const auto& item : items)
    static_cast<void>(m_colors->color(item));

  for (int number = 0; number < 100; ++number)
    finishOne();

  EXPECT_EQ(pictures.pixelsCount(), 65);
  EXPECT_EQ(m_found.at(1), items.back());
}

TEST_F(PictureColorsTest, TellsNobodyAfterItsEnd) {
  const auto red = pictureOf("red");
  static_cast<void>(m_colors->color(red));

  m_colors.reset();
  finishOne();

  EXPECT_TRUE(m_found.empty());
}

}  // namespace
