#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "Foundation/TextLookup.h"
#include "Foundation/Url.h"
#include "Foundation/Uuid.h"
#include "Quillmonger/capture/ClipboardItem.h"
#include "Quillmonger/capture/ClipboardManaging.h"
#include "Quillmonger/detection/OculetManager.h"
#include "Quillmonger/detection/OculetResults.h"
#include "Quillmonger/history/ApplicationNaming.h"
#include "Quillmonger/history/PictureReading.h"
#include "Quillmonger/history/ScaledPicture.h"
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
    /// Shared, since background work may outlast the rest.
    std::shared_ptr<const OculetManager> oculetManager;
    const PictureReading& pictureReading;
    foundation::TextLookup texts;
  };
  enum class Invert : bool { no, yes };

  ClipboardItemViewModel(std::shared_ptr<ClipboardItem> item, std::shared_ptr<const Services> services);
  ClipboardItemViewModel(const ClipboardItemViewModel&) = delete;
  ClipboardItemViewModel& operator=(const ClipboardItemViewModel&) = delete;
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

  /// One line for the user: the size in bytes, then the picture's size or the number of lines. Reads the whole text.
  [[nodiscard]] std::string details() const;

  [[nodiscard]] bool isImage() const;
  /// The picture, shown as large as fits into 332 by 445 points.
  [[nodiscard]] std::optional<ScaledPicture> image() const;
  /// The average colour of `image`, transparent parts counting as black.
  [[nodiscard]] std::optional<RGBColor> imageColor() const;
  [[nodiscard]] bool isFileURL() const;
  [[nodiscard]] std::optional<foundation::Url> fileURL() const;

  /// What was recognised in `text`, which is examined when it is first asked for. Never null.
  [[nodiscard]] std::shared_ptr<const OculetResults> oculetResults() const;
  /// Whether there is any such result, and the first colour among them.
  [[nodiscard]] bool hasOculetResults() const;
  [[nodiscard]] std::optional<Color> textColor() const;

  /// `hasOculetResults` and `textColor`.
  struct Recognised {
    bool isAnything = false;
    std::optional<Color> color;
  };
  /// What can take long to find out, as far as it was looked for.
  struct Findings {
    std::optional<std::optional<RGBColor>> imageColor;
    std::optional<Recognised> recognised;
  };
  /// What finds out, for `takeFindings`, about a picture and a long text: any thread may call it, also after the item
  /// has gone, but not after the services. Absent when the other questions are answered at once.
  [[nodiscard]] std::function<Findings()> inspection() const;
  void takeFindings(const Findings& findings);

  /// The one way to paste an item: puts it on the pasteboard, has it pasted into the application in front, and counts.
  /// `invert` reverses the setting `alwaysPasteWithoutFormatting`, which pictures and files don't heed. Stops the
  /// process for a record that was pasted more often than 64 bits can count.
  void paste(Invert invert);

  bool operator==(const ClipboardItemViewModel& other) const { return m_id == other.m_id; }

 private:
  // What is worked out when it is first asked for, on the main thread; most items are never asked.
  struct Answers;
  [[nodiscard]] Answers& answers() const;
  [[nodiscard]] std::optional<std::string> decodedFileURL() const;
  [[nodiscard]] std::optional<ScaledPicture> scaledPicture() const;
  [[nodiscard]] std::shared_ptr<const OculetResults> detect() const;
  [[nodiscard]] bool isLong() const;
  [[nodiscard]] bool mayHaveLongDocument() const;
  [[nodiscard]] const Recognised& recognised() const;

  foundation::Uuid m_id = foundation::Uuid::random();
  std::shared_ptr<ClipboardItem> m_item;
  std::shared_ptr<const Services> m_services;
  mutable std::unique_ptr<Answers> m_answers;
};

}  // namespace quillmonger

/// By `id` and `text`, which is read for it.
template <>
struct std::hash<quillmonger::ClipboardItemViewModel> {
  std::size_t operator()(const quillmonger::ClipboardItemViewModel& item) const;
};
