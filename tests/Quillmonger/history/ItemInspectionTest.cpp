#include "Quillmonger/history/ItemInspection.h"

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

class ItemInspectionTest : public testing::Test, protected testsupport::ItemServices {
 protected:
  ItemInspectionTest() {
    pictures.setPicture("red", {2, 2}, {0xFFFF0000});
    pictures.setPicture("blue", {2, 2}, {0xFF0000FF});
  }

  ItemInspection::Item pictureOf(const std::string& bytes) {
    return std::make_shared<ClipboardItemViewModel>(makeRecord(bytes, {}, pasteboardtype::NSPasteboardTypePNG),
                                                    services);
  }
  ItemInspection::Item textOf(const std::string& text) {
    return std::make_shared<ClipboardItemViewModel>(makeRecord(text), services);
  }
  void finishOne() {
    m_queue.run();
    m_runLoop.runPosted();
  }

  testsupport::InlineBackgroundQueue m_queue;
  testsupport::VirtualRunLoop m_runLoop;
  std::optional<ItemInspection> m_inspection{std::in_place, m_queue, m_runLoop};
  std::vector<ItemInspection::Item> m_found;
  foundation::Subscription m_subscription =
      m_inspection->found().subscribe([this](const auto& item) { m_found.push_back(item); });
};

TEST_F(ItemInspectionTest, DecodesNothingOnTheMainThread) {
  const auto red = pictureOf("red");

  EXPECT_FALSE(m_inspection->imageColor(red));
  EXPECT_EQ(pictures.pixelsCount(), 0);

  finishOne();
  EXPECT_EQ(m_inspection->imageColor(red), RGBColor(1, 0, 0));
  EXPECT_EQ(m_found, std::vector{red});
}

TEST_F(ItemInspectionTest, DecodesAPictureOnceHoweverOftenItIsAskedFor) {
  const auto red = pictureOf("red");
  static_cast<void>(m_inspection->imageColor(red));
  static_cast<void>(m_inspection->imageColor(red));

  finishOne();
  finishOne();
  static_cast<void>(m_inspection->imageColor(red));
  finishOne();

  EXPECT_EQ(pictures.pixelsCount(), 1);
}

TEST_F(ItemInspectionTest, DecodesOneAtATimeTheLatestFirst) {
  const auto first = pictureOf("red");
  const auto second = pictureOf("blue");
  const auto third = pictureOf("blue");
  for (const auto& item : {first, second, third})
    static_cast<void>(m_inspection->imageColor(item));

  finishOne();
  finishOne();
  finishOne();

  EXPECT_EQ(m_found, (std::vector{first, third, second}));
}

TEST_F(ItemInspectionTest, TellsThatAPictureHasNoColour) {
  const auto broken = pictureOf("broken");
  static_cast<void>(m_inspection->imageColor(broken));

  finishOne();

  EXPECT_EQ(m_found, std::vector{broken});
  EXPECT_FALSE(m_inspection->imageColor(broken));
  finishOne();
  EXPECT_EQ(m_found.size(), 1U);
}

TEST_F(ItemInspectionTest, ExaminesAShortTextAtOnce) {
  const auto color = textOf("#ff0000");

  EXPECT_TRUE(m_inspection->hasOculetResults(color));
  EXPECT_TRUE(m_inspection->textColor(color));
  EXPECT_FALSE(m_inspection->hasOculetResults(textOf("prose")));

  finishOne();
  EXPECT_TRUE(m_found.empty());
}

TEST_F(ItemInspectionTest, ExaminesALongDocumentBesideTheMainThread) {
  const auto document = textOf("[\"" + std::string(100'000, 'x') + "\"]");

  EXPECT_FALSE(m_inspection->hasOculetResults(document));
  EXPECT_TRUE(m_found.empty());

  finishOne();
  EXPECT_EQ(m_found, std::vector{document});
  EXPECT_TRUE(m_inspection->hasOculetResults(document));
  EXPECT_FALSE(m_inspection->textColor(document));
}

TEST_F(ItemInspectionTest, KeepsTheColourOfALongText) {
  const auto color = textOf("rgb(" + std::string(100'000, ' ') + "255, 0, 0)");
  const bool isColor = color->textColor().has_value();
  const auto same = textOf("rgb(" + std::string(100'000, ' ') + "255, 0, 0)");
  static_cast<void>(m_inspection->textColor(same));

  finishOne();

  EXPECT_EQ(m_inspection->textColor(same), color->textColor());
  EXPECT_EQ(m_inspection->hasOculetResults(same), isColor);
}

TEST_F(ItemInspectionTest, KnowsAtOnceThatALongProseIsNothing) {
  EXPECT_FALSE(m_inspection->hasOculetResults(textOf(std::string(100'000, 'x'))));

  finishOne();

  EXPECT_TRUE(m_found.empty());
}

TEST_F(ItemInspectionTest, TellsThatALongTextInBracketsIsNoDocument) {
  const auto text = textOf("[" + std::string(100'000, 'x') + "]");
  static_cast<void>(m_inspection->hasOculetResults(text));

  finishOne();

  EXPECT_EQ(m_found, std::vector{text});
  EXPECT_FALSE(m_inspection->hasOculetResults(text));
  finishOne();
  EXPECT_EQ(m_found.size(), 1U);
}

TEST_F(ItemInspectionTest, DropsAnItemThatHasGone) {
  auto gone = pictureOf("red");
  const auto kept = pictureOf("blue");
  static_cast<void>(m_inspection->imageColor(gone));
  static_cast<void>(m_inspection->imageColor(kept));
  gone.reset();

  finishOne();
  finishOne();

  EXPECT_EQ(m_found, std::vector{kept});
}

TEST_F(ItemInspectionTest, ForgetsTheOldestOfVeryManyThatWait) {
  std::vector<ItemInspection::Item> items;
  for (int number = 0; number < 100; ++number)
    items.push_back(pictureOf("red"));
  for (const auto& item : items)
    static_cast<void>(m_inspection->imageColor(item));

  for (int number = 0; number < 100; ++number)
    finishOne();

  EXPECT_EQ(pictures.pixelsCount(), 65);
  EXPECT_EQ(m_found.at(1), items.back());
}

TEST_F(ItemInspectionTest, TellsNobodyAfterItsEnd) {
  const auto red = pictureOf("red");
  static_cast<void>(m_inspection->imageColor(red));

  m_inspection.reset();
  finishOne();

  EXPECT_TRUE(m_found.empty());
}

}  // namespace
