#include "Platform/x11/X11Pasteboard.h"
#include "tests/contracts/PasteboardContract.h"
#include "tests/support/PrivateDisplay.h"
#include "tests/support/RealRunLoop.h"
#include "tests/support/x11/HostileOwner.h"

namespace testsupport {

namespace {

class X11World final : public PasteboardWorld {
 public:
  quillmonger::Pasteboard& pasteboard() override { return *m_pasteboard; }
  void copyText(const std::string& text) override { copy(text, {"UTF8_STRING"}); }
  void copySecret(const std::string& text) override { copy(text, {"UTF8_STRING", "x-kde-passwordManagerHint"}); }
  bool runUntil(const std::function<bool()>& isDone) override { return m_runLoop.runUntil(isDone); }

 private:
  // Each copy is another program's, and the one before it has been asked for all that it will be.
  void copy(const std::string& text, const std::vector<std::string>& targets) {
    auto owner = std::make_unique<HostileOwner>(m_display.name());
    for (const std::string& target : targets) {
      owner->answer(target, [text](HostileOwner& self, const HostileOwner::Request& request) {
        self.put(request, request.target, 8, text);
        self.notify(request, request.property);
      });
    }
    owner->own();
    const bool isSecret = targets.size() > 1;
    const std::size_t questions = isSecret ? 1 : 2;
    EXPECT_TRUE(m_runLoop.runUntil([&] { return owner->requestedTargets().size() >= questions; }));
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(m_runLoop.runUntil(
        [&] { return std::chrono::steady_clock::now() - start > platform::Succession::shortestStand; }));
    m_owners.push_back(std::move(owner));
  }

  PrivateDisplay m_display;
  RealRunLoop m_runLoop;
  std::unique_ptr<platform::X11Pasteboard> m_pasteboard =
      platform::X11Pasteboard::connect(m_runLoop, quillmonger::TypeFilter(), m_display.name());
  std::vector<std::unique_ptr<HostileOwner>> m_owners;
};

}  // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(X11Pasteboard, PasteboardContract, X11World);

}  // namespace testsupport
