#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "Quillmonger/history/ClipboardItemViewModel.h"
#include "tests/support/ItemServices.h"
#include "tests/support/Records.h"

namespace {

using namespace quillmonger;
using testsupport::makeRecord;

class ItemPictureTest : public testing::Test, protected testsupport::ItemServices {
 protected:
  std::shared_ptr<ClipboardItemViewModel> pictureOf(const std::string& bytes) {
    return std::make_shared<ClipboardItemViewModel>(makeRecord(bytes, {}, pasteboardtype::NSPasteboardTypePNG),
                                                    services);
  }
  PictureSize sizeOf(const std::string& bytes) { return pictureOf(bytes)->image().value().size; }
};

TEST_F(ItemPictureTest, FitsAPictureIntoItsBoxWithItsAspectRatioKept) {
  pictures.setPicture("square", {100, 100});
  pictures.setPicture("wide", {664, 100});
  pictures.setPicture("tall", {100, 890});

  EXPECT_EQ(sizeOf("square"), (PictureSize{332, 332}));
  EXPECT_EQ(sizeOf("wide"), (PictureSize{332, 50}));
  EXPECT_EQ(sizeOf("tall"), (PictureSize{50, 445}));
}

TEST_F(ItemPictureTest, GivesAPictureOfTheBoxsShapeTheWholeBox) {
  pictures.setPicture("small", {166, 222.5});
  pictures.setPicture("large", {664, 890});

  EXPECT_EQ(sizeOf("small"), (PictureSize{332, 445}));
  EXPECT_EQ(sizeOf("large"), (PictureSize{332, 445}));
}

TEST_F(ItemPictureTest, HasNoPictureOfATextOrOfBytesThatAreNone) {
  EXPECT_FALSE(std::make_shared<ClipboardItemViewModel>(makeRecord("text"), services)->image());
  const auto broken = pictureOf("broken");
  EXPECT_FALSE(broken->image());
  EXPECT_FALSE(broken->imageColor());
  EXPECT_TRUE(broken->isImage());
}

TEST_F(ItemPictureTest, AveragesTheColoursOfAPicture) {
  pictures.setPicture("half", {2, 2}, {0xFFFF0000, 0xFF0000FF});

  const auto color = pictureOf("half")->imageColor();

  ASSERT_TRUE(color);
  EXPECT_EQ(*color, RGBColor(0.5, 0, 0.5));
}

TEST_F(ItemPictureTest, KeepsRedGreenAndBlueApartInAnAverage) {
  pictures.setPicture("even", {2, 2}, {0xFF336699});

  EXPECT_EQ(pictureOf("even")->imageColor(), RGBColor(0.2, 0.4, 0.6));
}

TEST_F(ItemPictureTest, DarkensAnAverageByTheTransparentPartsOfAPicture) {
  pictures.setPicture("quarter", {2, 2}, {0xFFFFFFFF, 0, 0, 0});

  EXPECT_EQ(pictureOf("quarter")->imageColor(), RGBColor(0.25, 0.25, 0.25));
}

TEST_F(ItemPictureTest, TakesAFullyTransparentPictureForBlack) {
  pictures.setPicture("nothing", {2, 2}, {0});

  EXPECT_EQ(pictureOf("nothing")->imageColor(), RGBColor(0, 0, 0));
}

TEST_F(ItemPictureTest, WorksAPictureOutOnceEvenIfThereIsNone) {
  const auto broken = pictureOf("broken");
  pictures.setPicture("good", {1, 1});
  const auto good = pictureOf("good");
  for (int round = 0; round < 3; ++round) {
    static_cast<void>(broken->imageColor());
    static_cast<void>(good->imageColor());
  }

  EXPECT_EQ(pictures.sizeCount(), 2);
  EXPECT_EQ(pictures.pixelsCount(), 1);
}

}  // namespace
