#include "Quillmonger/history/ItemList.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/ItemServices.h"
#include "tests/support/Records.h"

namespace {

using namespace quillmonger;
using testsupport::makeRecord;

class ItemListTest : public testing::Test, protected testsupport::ItemServices {
 protected:
  ItemList::Item itemOf(const std::string& text) {
    return std::make_shared<ClipboardItemViewModel>(makeRecord(text), services);
  }

  ItemList list;
  using Items = std::vector<ItemList::Item>;
};

TEST_F(ItemListTest, PutsABatchInFrontInItsOrder) {
  const Items items{itemOf("a"), itemOf("b"), itemOf("c")};
  list.insertFirst({items[2]});

  list.insertFirst({items[0], items[1]});

  EXPECT_EQ(list.items().all(), items);
}

TEST_F(ItemListTest, FindsTheFirstOfSeveralEqualRecords) {
  const Items items{itemOf("a"), itemOf("b"), itemOf("b")};
  list.insertFirst(items);

  EXPECT_EQ(list.firstEqualTo(*makeRecord("b")), items[1]);
  list.remove(*items[1]);
  EXPECT_EQ(list.firstEqualTo(*makeRecord("b")), items[2]);
  list.remove(*items[2]);
  EXPECT_EQ(list.firstEqualTo(*makeRecord("b")), nullptr);
}

TEST_F(ItemListTest, CutsItsEnd) {
  const Items items{itemOf("a"), itemOf("b"), itemOf("c")};
  list.insertFirst(items);

  list.removeLast(2);

  EXPECT_EQ(list.items().all(), Items{items[0]});
  EXPECT_EQ(list.firstEqualTo(*makeRecord("c")), nullptr);
}

TEST_F(ItemListTest, LeavesASnapshotAsItWas) {
  const Items items{itemOf("a"), itemOf("b")};
  list.insertFirst(items);
  const auto snapshot = list.items();

  list.remove(*items[0]);
  list.removeAll();

  EXPECT_EQ(snapshot.all(), items);
  EXPECT_EQ(list.count(), 0U);
}

TEST_F(ItemListTest, IgnoresAnItemThatIsNotThere) {
  list.insertFirst({itemOf("a")});

  list.remove(*itemOf("a"));

  EXPECT_EQ(list.count(), 1U);
  EXPECT_FALSE(list.contains(*itemOf("a")));
}

}  // namespace
