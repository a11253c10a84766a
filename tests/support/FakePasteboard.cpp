#include "tests/support/FakePasteboard.h"

#include <algorithm>

#include "Quillmonger/capture/PasteboardTypes.h"

namespace testsupport {

using quillmonger::PasteboardContent;
using quillmonger::PasteboardItem;

void FakePasteboard::copy(std::vector<PasteboardItem> items) {
  Snapshot snapshot;
  for (const PasteboardItem& item : items) {
    for (const auto& representation : item.representations) {
      if (std::ranges::find(snapshot.types, representation.type) == snapshot.types.end()) {
        snapshot.types.push_back(representation.type);
      }
    }
  }
  if (m_filter.accepts(snapshot.types)) snapshot.content = std::make_shared<const PasteboardContent>(std::move(items));
  m_line.push_back(std::move(snapshot));
}

void FakePasteboard::copy(std::vector<std::pair<std::string, std::optional<std::string>>> representations) {
  PasteboardItem item;
  for (auto& [type, bytes] : representations) {
    std::optional<foundation::Data> data;
    if (bytes) data.emplace(*std::move(bytes));
    item.representations.push_back({std::move(type), std::move(data)});
  }
  std::vector<PasteboardItem> items;
  items.push_back(std::move(item));
  copy(std::move(items));
}

void FakePasteboard::copyText(std::string text) {
  PasteboardItem item;
  item.representations.push_back(
      {std::string(quillmonger::pasteboardtype::utf8PlainText), foundation::Data(std::move(text))});
  copy(std::vector<PasteboardItem>{std::move(item)});
}

void FakePasteboard::advance() {
  if (m_line.empty()) return;
  m_present = std::move(m_line.front());
  m_line.pop_front();
  ++m_changeCount;
}

std::vector<std::string> FakePasteboard::types() const {
  ++m_reads;
  return m_present.types;
}

std::shared_ptr<const PasteboardContent> FakePasteboard::pasteboardItems() const {
  ++m_reads;
  return m_present.content;
}

void FakePasteboard::clearContents() {
  const bool isScheduled = m_draft.has_value();
  m_draft.emplace();
  if (isScheduled) return;
  m_runLoop.post([this, life = std::weak_ptr(m_life)] {
    if (!life.expired()) commit();
  });
}

void FakePasteboard::setString(std::string_view text, std::string_view type) {
  setData(foundation::Data(std::string(text)), type);
}

void FakePasteboard::setData(const std::optional<foundation::Data>& data, std::string_view type) {
  if (!m_draft) return;
  auto& representations = m_draft->representations;
  const auto same = std::ranges::find(representations, type, &PasteboardItem::Representation::type);
  if (same != representations.end()) {
    same->data = data;
  } else {
    representations.push_back({std::string(type), data});
  }
}

void FakePasteboard::commit() {
  PasteboardItem item = *std::move(m_draft);
  m_draft.reset();
  m_writes.push_back(item);
  copy(std::vector<PasteboardItem>{std::move(item)});
}

}  // namespace testsupport
