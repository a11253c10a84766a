#pragma once

#include <string>
#include <vector>

#include "Quillmonger/capture/ClipboardManaging.h"

namespace testsupport {

/// A clipboard monitor that sends what the test gives it, and notes what it is asked to write and paste.
class FakeClipboard final : public quillmonger::ClipboardManaging {
 public:
  struct Write {
    foundation::Uuid item;
    RemoveFormatting removeFormatting;
    bool operator==(const Write&) const = default;
  };

  foundation::Stream<Record>& newItemPublisher() override { return m_newItemPublisher; }
  foundation::Stream<Record>& duplicateItemPublisher() override { return m_duplicateItemPublisher; }
  void startListening() override {}
  void writeToPasteboard(const quillmonger::ClipboardItem& item, RemoveFormatting removeFormatting) override {
    m_writes.push_back({item.id(), removeFormatting});
    m_lastPayload = item.data();
  }
  void pasteIntoFrontmostApplication() override { m_writeCountsAtPaste.push_back(m_writes.size()); }

  [[nodiscard]] const std::vector<Write>& writes() const { return m_writes; }
  /// What was written last.
  [[nodiscard]] const quillmonger::Payload& lastPayload() const { return m_lastPayload; }
  /// For each paste step, oldest first, how many writes came before it.
  [[nodiscard]] const std::vector<std::size_t>& writeCountsAtPaste() const { return m_writeCountsAtPaste; }

 private:
  foundation::Stream<Record> m_newItemPublisher;
  foundation::Stream<Record> m_duplicateItemPublisher;
  std::vector<Write> m_writes;
  quillmonger::Payload m_lastPayload;
  std::vector<std::size_t> m_writeCountsAtPaste;
};

}  // namespace testsupport
