#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Foundation/RunLoop.h"
#include "Platform/freedesktop/ContentLine.h"
#include "Platform/freedesktop/WindowIdentity.h"
#include "Platform/x11/X11ClipboardSession.h"
#include "Platform/x11/X11Thread.h"
#include "Quillmonger/capture/Pasteboard.h"

namespace platform {

/// The CLIPBOARD selection of an X display. A connection and a thread of its own talk with the owners and with those
/// who ask; here, on the main thread, are the contents that they have completed.
///
/// The program is the display's clipboard manager too, unless another one is: what a program had copied stays on
/// offer when it quits.
class X11Pasteboard final : public quillmonger::Pasteboard {
 public:
  /// Watches the clipboard of `display`, or of the one named in the environment when that is empty, from now on.
  /// `filter` stands until `setTypeFilter`; `selection` names another selection to take for the clipboard. Null when
  /// there is no such display or it can't be watched. `runLoop` outlives this object.
  [[nodiscard]] static std::unique_ptr<X11Pasteboard> connect(foundation::RunLoop& runLoop,
                                                              const quillmonger::TypeFilter& filter,
                                                              const std::string& display = {},
                                                              const std::string& selection = "CLIPBOARD");
  X11Pasteboard(const X11Pasteboard&) = delete;
  X11Pasteboard& operator=(const X11Pasteboard&) = delete;
  ~X11Pasteboard() override;

  /// The window that was in front when the present content came. For what this program wrote, which it does while its
  /// own window is in front, the one that came to the front then.
  [[nodiscard]] std::optional<WindowIdentity> frontmostAtPresentContent() const { return m_line->present().frontmost; }
  /// The window that owns the clipboard while the content is this program's. Any thread.
  [[nodiscard]] std::uint32_t selectionWindow() const { return m_session->window(); }
  /// The same once everything written here is on offer, and 0 until then: an earlier write has the same owner. Any
  /// thread.
  [[nodiscard]] std::uint32_t writtenWindow() const { return m_session->isWritten() ? selectionWindow() : 0; }

  void advance() override { m_line->advance(); }
  [[nodiscard]] std::int64_t changeCount() const override { return m_line->changeCount(); }
  [[nodiscard]] std::vector<std::string> types() const override { return m_line->present().types; }
  [[nodiscard]] std::shared_ptr<const quillmonger::PasteboardContent> pasteboardItems() const override {
    return m_line->present().content;
  }
  void setTypeFilter(const quillmonger::TypeFilter& filter) override;
  void clearContents() override;
  void setString(std::string_view text, std::string_view type) override;
  void setData(const std::optional<foundation::Data>& data, std::string_view type) override;

 private:
  X11Pasteboard(foundation::RunLoop& runLoop, std::unique_ptr<X11Thread> thread, const std::string& selection,
                const quillmonger::TypeFilter& filter);
  void commit();

  foundation::RunLoop& m_runLoop;
  /// Shared with nobody; posted turns see by it whether this object is still there.
  std::shared_ptr<ContentLine> m_line = std::make_shared<ContentLine>();
  /// The content of our own that is not yet on the desktop.
  std::optional<quillmonger::PasteboardItem> m_draft;
  std::unique_ptr<X11Thread> m_thread;
  std::unique_ptr<X11ClipboardSession> m_session;
};

}  // namespace platform
