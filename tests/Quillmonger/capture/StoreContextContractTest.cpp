#include "tests/contracts/StoreContextContract.h"

#include "Quillmonger/capture/SqliteStoreContext.h"
#include "tests/support/FakeStoreContext.h"
#include "tests/support/TemporaryFolder.h"

namespace contracts {

namespace {

class FakeHost {
 public:
  quillmonger::StoreContext& context() { return m_context; }

 private:
  testsupport::FakeStoreContext m_context;
};

class SqliteHost {
 public:
  quillmonger::StoreContext& context() { return *m_context; }

 private:
  testsupport::TemporaryFolder m_folder;
  testsupport::VirtualRunLoop m_loop;
  std::unique_ptr<quillmonger::SqliteStoreContext> m_context =
      std::move(quillmonger::SqliteStoreContext::open(m_folder.path() / "store", m_loop).value());
};

using Hosts = testing::Types<FakeHost, SqliteHost>;

struct HostNames {
  template <typename Host>
  static std::string GetName(int /*index*/) {
    return std::is_same_v<Host, FakeHost> ? "Fake" : "Sqlite";
  }
};

TEST(FakeStoreContext, FailsItsFetchesOnDemand) {
  testsupport::FakeStoreContext fake;

  fake.failFetches(foundation::Error{"no"});

  EXPECT_EQ(fake.fetchAll().error().message, "no");
  EXPECT_EQ(fake.fetchByDigest("").error().message, "no");
  EXPECT_EQ(fake.fetchById({}).error().message, "no");
}

}  // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Store, StoreContextContract, Hosts, HostNames);

}  // namespace contracts
