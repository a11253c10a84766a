#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "Foundation/Url.h"
#include "Foundation/Uuid.h"
#include "Quillmonger/capture/ClipboardItem.h"
#include "Quillmonger/capture/ClipboardManaging.h"
#include "Quillmonger/history/ApplicationNaming.h"
#include "Quillmonger/search/Searchable.h"

namespace defaults {
class Defaults;
}

namespace quillmonger {

/// The two ends of a text that is too long to be read for one line.
struct RowText {
  std::string head;
  /// Empty when `head` is the whole text.
  std::string tail;
};

/// One record of the history, as the list, the search and the preview see it. There is one for each record for as long
/// as the record is in the history. Main thread, except for what `Searchable` promises.
class ClipboardItemViewModel final : public Searchable, public std::enable_shared_from_this<ClipboardItemViewModel> {
 public:
  /// What all items share. All outlive the items.
  struct Services {
    ClipboardManaging& clipboard;
    const defaults::Defaults& defaults;
    const ApplicationNaming& applicationNaming;
  };
  enum class Invert : bool { no, yes };

  ClipboardItemViewModel(std::shared_ptr<ClipboardItem> item, std::shared_ptr<const Services> services);
  /// Writes "ClipboardItemViewModel: deinit " and the `id` to standard output.
  ~ClipboardItemViewModel() override;

  /// Made anew for each view model, and not the record's: what tells rows apart.
  [[nodiscard]] const foundation::Uuid& id() const { return m_id; }
  [[nodiscard]] const std::shared_ptr<ClipboardItem>& item() const { return m_item; }

  /// The decoded location of a file, else the trimmed plain text, else empty: what is shown, searched and examined.
  [[nodiscard]] SharedText text() const override;
  [[nodiscard]] std::optional<SharedText> shortText(std::size_t limit) const override;
  [[nodiscard]] std::string appKey() const override;
  /// The source application's display name.
  [[nodiscard]] std::optional<std::string> appName() const override;
  [[nodiscard]] foundation::Date creationDate() const override { return m_item->creationDate(); }

  /// As much of `text` as a row can show: all of it up to twice `limit` bytes, else about `limit` bytes from each end,
  /// cut between characters. Never reads the rest, however long the text is.
  [[nodiscard]] RowText rowText(std::size_t limit) const;

  [[nodiscard]] bool isImage() const;
  [[nodiscard]] bool isFileURL() const;
  [[nodiscard]] std::optional<foundation::Url> fileURL() const;

  /// The one way to paste an item: puts it on the pasteboard, has it pasted into the application in front, and counts.
  /// `invert` reverses the setting `alwaysPasteWithoutFormatting`, which pictures and files don't heed.
  void paste(Invert invert);

 private:
  [[nodiscard]] std::optional<std::string> decodedFileURL() const;

  foundation::Uuid m_id = foundation::Uuid::random();
  std::shared_ptr<ClipboardItem> m_item;
  std::shared_ptr<const Services> m_services;
  mutable std::optional<bool> m_isImage;
  mutable std::optional<bool> m_isFileURL;
};

}  // namespace quillmonger
