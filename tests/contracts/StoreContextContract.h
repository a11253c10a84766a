#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "Quillmonger/capture/PasteboardTypes.h"
#include "Quillmonger/capture/StoreContext.h"
#include "tests/support/VirtualRunLoop.h"

namespace contracts {

inline quillmonger::StoreContext::Record textRecord(const std::string& text, int secondsAfterStart = 0) {
  return std::make_shared<quillmonger::ClipboardItem>(
      quillmonger::Payload{{std::string(quillmonger::pasteboardtype::NSPasteboardTypeString), foundation::Data(text)}},
      std::nullopt, std::nullopt, testsupport::VirtualRunLoop::startDate() + std::chrono::seconds(secondsAfterStart));
}

/// What every store context does. `Host` makes one: `quillmonger::StoreContext& context()`.
template <typename Host>
class StoreContextContract : public testing::Test {
 protected:
  Host host;
  quillmonger::StoreContext& context = host.context();
};

TYPED_TEST_SUITE_P(StoreContextContract);

TYPED_TEST_P(StoreContextContract, IsEmptyAtFirst) {
  const auto records = this->context.fetchAll();

  ASSERT_TRUE(records);
  EXPECT_TRUE(records.value().empty());
}

TYPED_TEST_P(StoreContextContract, FindsARecordAtOnceBeforeAnySave) {
  const auto record = textRecord("a");

  this->context.insert(record);

  EXPECT_EQ(this->context.fetchByDigest(record->hashedData()).value(), record);
  EXPECT_EQ(this->context.fetchById(record->id()).value(), record);
}

TYPED_TEST_P(StoreContextContract, FindsNothingForWhatItDoesNotHold) {
  this->context.insert(textRecord("a"));

  EXPECT_EQ(this->context.fetchByDigest("d41d8cd98f00b204e9800998ecf8427e").value(), nullptr);
  EXPECT_EQ(this->context.fetchById(foundation::Uuid::random()).value(), nullptr);
}

TYPED_TEST_P(StoreContextContract, ListsTheOldestFirstWhateverTheOrderOfInsertion) {
  const auto old = textRecord("old", 1);
  const auto middle = textRecord("middle", 2);
  const auto recent = textRecord("recent", 3);

  for (const auto& record : {middle, recent, old})
    this->context.insert(record);

  EXPECT_EQ(this->context.fetchAll().value(), (std::vector{old, middle, recent}));
}

TYPED_TEST_P(StoreContextContract, ForgetsARemovedRecordAtOnce) {
  const auto record = textRecord("a");
  this->context.insert(record);

  this->context.remove(record);

  EXPECT_EQ(this->context.fetchByDigest(record->hashedData()).value(), nullptr);
  EXPECT_EQ(this->context.fetchById(record->id()).value(), nullptr);
  EXPECT_TRUE(this->context.fetchAll().value().empty());
}

TYPED_TEST_P(StoreContextContract, DoesNothingWhenAnUnknownRecordIsRemoved) {
  const auto record = textRecord("a");
  this->context.insert(record);

  this->context.remove(textRecord("a"));

  EXPECT_EQ(this->context.fetchAll().value(), std::vector{record});
}

TYPED_TEST_P(StoreContextContract, HoldsTwoRecordsOfOneIdentityAndOfOneContent) {
  const auto first = textRecord("a", 1);
  const auto second = std::make_shared<quillmonger::ClipboardItem>(first->data(), first->attributes());

  this->context.insert(first);
  this->context.insert(second);
  this->context.remove(first);

  EXPECT_EQ(this->context.fetchById(first->id()).value(), second);
  EXPECT_EQ(this->context.fetchByDigest(first->hashedData()).value(), second);
  EXPECT_EQ(this->context.fetchAll().value(), std::vector{second});
}

TYPED_TEST_P(StoreContextContract, TakesARecordInAgainAfterItsRemoval) {
  const auto record = textRecord("a");
  this->context.insert(record);
  this->context.remove(record);

  this->context.insert(record);

  EXPECT_EQ(this->context.fetchAll().value(), std::vector{record});
}

TYPED_TEST_P(StoreContextContract, SavesWithoutErrorWhateverIsPending) {
  EXPECT_TRUE(this->context.save());

  this->context.insert(textRecord("a"));

  EXPECT_TRUE(this->context.save());
}

REGISTER_TYPED_TEST_SUITE_P(StoreContextContract, IsEmptyAtFirst, FindsARecordAtOnceBeforeAnySave,
                            FindsNothingForWhatItDoesNotHold, ListsTheOldestFirstWhateverTheOrderOfInsertion,
                            ForgetsARemovedRecordAtOnce, DoesNothingWhenAnUnknownRecordIsRemoved,
                            HoldsTwoRecordsOfOneIdentityAndOfOneContent, TakesARecordInAgainAfterItsRemoval,
                            SavesWithoutErrorWhateverIsPending);

}  // namespace contracts
