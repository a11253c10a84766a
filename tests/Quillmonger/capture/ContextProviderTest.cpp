#include "Quillmonger/capture/ContextProvider.h"

#include <iostream>

#include "tests/Quillmonger/capture/StoreFixture.h"

namespace quillmonger {

namespace {

class SpokenDialog final : public StoreFailureDialog {
 public:
  void showGenericErrorAlert() override { std::cerr << "alert\n"; }
};

class ContextProviderTest : public StoreFixture {
 protected:
  SpokenDialog dialog;
};

TEST_F(ContextProviderTest, OpensTheStoreAtTheFirstAccessAndKeepsIt) {
  ContextProvider provider(dialog, folder(), loop);
  EXPECT_FALSE(std::filesystem::exists(folder()));

  StoreContext& context = provider.context();

  EXPECT_TRUE(std::filesystem::exists(file()));
  EXPECT_EQ(&provider.context(), &context);
}

TEST_F(ContextProviderTest, IsAlwaysOnTheDiskWhateverInMemorySays) {
  ContextProvider provider(dialog, folder(), loop, ContextProvider::InMemory::yes);
  provider.context().insert(makeRecord(text("a")));

  EXPECT_TRUE(provider.context().save());

  EXPECT_EQ(provider.inMemory(), ContextProvider::InMemory::yes);
  EXPECT_TRUE(std::filesystem::exists(file()));
}

using ContextProviderDeathTest = ContextProviderTest;

TEST_F(ContextProviderDeathTest, ShowsTheAlertAndThenStopsWhenTheStoreCannotBeOpened) {
  std::filesystem::create_directory(folder());
  std::ofstream(file()) << "damaged";
  ContextProvider provider(dialog, folder(), loop);

  EXPECT_DEATH((void)provider.context(), "alert\nError initializing model context: the file is not a database");
}

TEST_F(ContextProviderDeathTest, StopsWhenAStoredRecordIsToTakeOverAnother) {
  const auto record = makeRecord(text("a"));
  EXPECT_DEATH(
      {
        open();
        store->insert(record);
        record->merge(*record, ClipboardItem::IncludingData::no);
      },
      "A stored record can't take over another one");
}

}  // namespace

}  // namespace quillmonger
