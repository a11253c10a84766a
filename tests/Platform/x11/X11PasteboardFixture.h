#pragma once

#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/x11/X11Pasteboard.h"
#include "Quillmonger/capture/PasteboardTypes.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/PrivateDisplay.h"
#include "tests/support/RealRunLoop.h"
#include "tests/support/x11/HostileOwner.h"
#include "tests/support/x11/SelectionClient.h"

namespace testsupport {

/// A pasteboard on a display of its own, polled as the monitor does.
class X11PasteboardTest : public testing::Test {
 protected:
  /// No step of the test's main loop may take longer; a machine that is busy with six builds included.
  static constexpr foundation::Seconds longestStall{0.1};

  void SetUp() override { connect(); }
  void TearDown() override {
    RecordProperty("longestTurnMicroseconds", static_cast<int>(m_runLoop.longestTurn().count() * 1e6));
  }

  void connect(const quillmonger::TypeFilter& filter = {}) {
    m_pasteboard = platform::X11Pasteboard::connect(m_runLoop, filter, m_display.name());
    ASSERT_NE(m_pasteboard, nullptr);
  }

  [[nodiscard]] bool runUntil(const std::function<bool()>& isDone,
                              foundation::Seconds limit = foundation::Seconds(20)) {
    return m_runLoop.runUntil(isDone, limit);
  }
  [[nodiscard]] bool advanceToNext(foundation::Seconds limit = foundation::Seconds(20)) {
    const auto count = m_pasteboard->changeCount();
    return runUntil(
        [this, count] {
          m_pasteboard->advance();
          return m_pasteboard->changeCount() != count;
        },
        limit);
  }

  [[nodiscard]] std::optional<std::string> presentValue(std::string_view type) const {
    const auto content = m_pasteboard->pasteboardItems();
    const auto data = content ? content->items().front().dataForType(type) : std::nullopt;
    if (!data) return std::nullopt;
    return *data->bytes();
  }
  [[nodiscard]] std::optional<std::string> presentText() const {
    return presentValue(quillmonger::pasteboardtype::utf8PlainText);
  }
  [[nodiscard]] bool offers(std::string_view type) const { return std::ranges::count(m_pasteboard->types(), type) > 0; }

  void write(std::string_view text) {
    m_pasteboard->clearContents();
    m_pasteboard->setString("", quillmonger::pasteboardtype::appMarker);
    m_pasteboard->setString(text, quillmonger::pasteboardtype::utf8PlainText);
  }
  /// Writes, and waits until the display's clipboard is ours.
  [[nodiscard]] bool writeAndOwn(std::string_view text) {
    write(text);
    return ownsClipboard();
  }
  [[nodiscard]] bool ownsClipboard() {
    SelectionClient client(m_display.name());
    return runUntil([&] { return client.owner("CLIPBOARD") == m_pasteboard->selectionWindow(); });
  }

  [[nodiscard]] ChildProcess copyWithXclip(const std::string& text, const std::string& target = "UTF8_STRING") {
    return ChildProcess({"xclip", "-quiet", "-selection", "clipboard", "-t", target, "-i"}, {m_display.environment()},
                        text);
  }
  /// What xclip gets for a target; absent when it fails.
  [[nodiscard]] std::optional<std::string> pasteWithXclip(const std::string& target) {
    ChildProcess xclip({"xclip", "-selection", "clipboard", "-t", target, "-o"}, {m_display.environment()});
    if (!runUntil([&] { return xclip.isFinished(); }) || xclip.exitCode() != 0) return std::nullopt;
    return xclip.output();
  }

  static HostileOwner::Handler give(std::string bytes) {
    return [bytes = std::move(bytes)](HostileOwner& owner, const HostileOwner::Request& request) {
      owner.put(request, request.target, 8, bytes);
      owner.notify(request, request.property);
    };
  }
  static HostileOwner::Handler staySilent() {
    return [](HostileOwner&, const HostileOwner::Request&) {};
  }

  PrivateDisplay m_display;
  RealRunLoop m_runLoop;
  std::unique_ptr<platform::X11Pasteboard> m_pasteboard;
};

}  // namespace testsupport
