#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Defaults/Defaults.h"
#include "Foundation/BackgroundQueue.h"
#include "Foundation/Published.h"
#include "Foundation/RunLoop.h"
#include "Foundation/TextLookup.h"
#include "Foundation/Url.h"
#include "Quillmonger/detection/OculetManager.h"
#include "Quillmonger/history/ClipboardItemViewModel.h"
#include "Quillmonger/preview/LatestWork.h"
#include "Quillmonger/preview/OculetRows.h"
#include "Quillmonger/preview/TextPieces.h"

namespace quillmonger {

/// What the pane shows of an item. Immutable.
struct PreviewContent {
  std::string details;  ///< the size, in the words of `ClipboardItemViewModel::details`
  std::shared_ptr<const OculetResults> results = std::make_shared<const OculetResults>();  ///< never null
  std::vector<OculetRow> dateRows;   ///< of the first date among `results`
  std::vector<OculetRow> colorRows;  ///< of the first colour
  TextPieces text;
  bool isTextHidden = false;  ///< whether `text` is only the beginning, since the user wants it so
};

/// The facts below the content.
struct PreviewFooter {
  std::optional<foundation::Url> application;  ///< the source application's entry; absent when it isn't there any more
  std::string appName;                         ///< empty without `application`
  std::string relativeDate;
  std::string pasteCount;
};

/// The item in the preview window, as the pane shows it. While the window is hidden nothing is read. A long text is
/// read beside the main thread; until then its beginning stands there. Main thread.
class PreviewViewModel final {
 public:
  using Item = std::shared_ptr<ClipboardItemViewModel>;
  /// The number of characters, less one, that is shown of a text while long texts are hidden.
  static constexpr std::size_t characterLimit = 25000;

  struct Collaborators {
    foundation::Published<Item>& selectedItem;
    /// Whether the preview window is on the screen.
    foundation::Published<bool>& isWindowVisible;
    defaults::Defaults& defaults;
    /// Shared, since background work may outlast the rest.
    std::shared_ptr<const OculetManager> oculetManager;
    foundation::TextLookup texts;
    foundation::BackgroundQueue& backgroundQueue;
    foundation::RunLoop& runLoop;
  };

  /// All collaborators outlive this object.
  explicit PreviewViewModel(const Collaborators& collaborators);

  /// The item on show; null when there is none, or when nobody could see it. Told after `content` and `footer`.
  [[nodiscard]] foundation::Published<Item>& item() { return m_item; }
  /// Of the item on show; empty when there is none.
  [[nodiscard]] foundation::Published<PreviewContent>& content() { return m_content; }
  /// Of the item on show, or of the one before.
  [[nodiscard]] foundation::Published<PreviewFooter>& footer() { return m_footer; }

 private:
  void update();
  void loadContent(const Item& item);
  void loadLongContent(const Item& item);
  void updateFooter(const Item& item);

  Collaborators m_with;
  bool m_hidesLongText = true;
  foundation::Published<Item> m_item;
  foundation::Published<PreviewContent> m_content;
  foundation::Published<PreviewFooter> m_footer;
  LatestWork m_loading;
  foundation::Subscription m_footerTimer;
  foundation::Subscription m_pasteCount;
  std::vector<foundation::Subscription> m_subscriptions;
};

}  // namespace quillmonger
