#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Foundation/RunLoop.h"
#include "Quillmonger/capture/Pasteboard.h"

namespace testsupport {

/// A pasteboard without a desktop. `copy` is another program's copy: it waits in line, as the real one has it, until
/// `advance` makes it the present content. What the program writes comes back as a content in the turn of the main
/// queue that follows, and is kept in `writes`. Main thread.
class FakePasteboard final : public quillmonger::Pasteboard {
 public:
  /// `runLoop` outlives this object.
  explicit FakePasteboard(foundation::RunLoop& runLoop) : m_runLoop(runLoop) {}

  /// Another program copies these items. The filter that stands now decides whether they are read.
  void copy(std::vector<quillmonger::PasteboardItem> items);
  /// Another program copies one item with these types and values, in this order.
  void copy(std::vector<std::pair<std::string, std::optional<std::string>>> representations);
  /// Another program copies plain text.
  void copyText(std::string text);

  /// Each content that the program wrote, oldest first, once it stands on the desktop.
  [[nodiscard]] const std::vector<quillmonger::PasteboardItem>& writes() const { return m_writes; }
  [[nodiscard]] const quillmonger::TypeFilter& typeFilter() const { return m_filter; }
  /// How often the present content was looked at by its types or items, for "nothing is read while idle".
  [[nodiscard]] int reads() const { return m_reads; }

  void advance() override;
  [[nodiscard]] std::int64_t changeCount() const override { return m_changeCount; }
  [[nodiscard]] std::vector<std::string> types() const override;
  [[nodiscard]] std::shared_ptr<const quillmonger::PasteboardContent> pasteboardItems() const override;
  void setTypeFilter(const quillmonger::TypeFilter& filter) override { m_filter = filter; }
  void clearContents() override;
  void setString(std::string_view text, std::string_view type) override;
  void setData(const std::optional<foundation::Data>& data, std::string_view type) override;

 private:
  struct Snapshot {
    std::vector<std::string> types;
    std::shared_ptr<const quillmonger::PasteboardContent> content;
  };
  void commit();

  foundation::RunLoop& m_runLoop;
  quillmonger::TypeFilter m_filter;
  std::deque<Snapshot> m_line;
  Snapshot m_present;
  std::int64_t m_changeCount = 1;
  std::optional<quillmonger::PasteboardItem> m_draft;
  std::vector<quillmonger::PasteboardItem> m_writes;
  mutable int m_reads = 0;
  /// Ends with this object, so that a posted turn knows whether it is still there.
  std::shared_ptr<const bool> m_life = std::make_shared<bool>(true);
};

}  // namespace testsupport
