#include "tests/support/FakePasteboard.h"

#include "tests/contracts/PasteboardContract.h"
#include "tests/support/VirtualRunLoop.h"

namespace testsupport {

namespace {

class FakeWorld final : public PasteboardWorld {
 public:
  quillmonger::Pasteboard& pasteboard() override { return m_pasteboard; }
  void copyText(const std::string& text) override { m_pasteboard.copyText(text); }
  void copySecret(const std::string& text) override {
    m_pasteboard.copy({{std::string(quillmonger::pasteboardtype::utf8PlainText), text},
                       {std::string(quillmonger::pasteboardtype::concealed), std::string()}});
  }
  bool runUntil(const std::function<bool()>& isDone) override {
    m_runLoop.runPosted();
    return isDone();
  }

 private:
  VirtualRunLoop m_runLoop;
  FakePasteboard m_pasteboard{m_runLoop};
};

}  // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(FakePasteboard, PasteboardContract, FakeWorld);

TEST(FakePasteboard, RecordsEachWriteOnceItStands) {
  VirtualRunLoop runLoop;
  FakePasteboard pasteboard(runLoop);
  pasteboard.clearContents();
  pasteboard.setString("written", quillmonger::pasteboardtype::utf8PlainText);
  EXPECT_TRUE(pasteboard.writes().empty());

  runLoop.runPosted();

  ASSERT_EQ(pasteboard.writes().size(), 1U);
  EXPECT_EQ(pasteboard.writes().front().types(),
            std::vector<std::string>{std::string(quillmonger::pasteboardtype::utf8PlainText)});
}

}  // namespace testsupport
