#pragma once

#include <functional>
#include <memory>

#include "Defaults/Defaults.h"
#include "Foundation/NotificationCenter.h"
#include "Foundation/Published.h"
#include "Foundation/Subscription.h"
#include "Quillmonger/history/ClipboardItemViewModel.h"
#include "Quillmonger/history/ItemInspection.h"

namespace quillmonger {

/// Opens the preview by itself for an item that deserves it: a picture, or a text in which something was recognised.
/// It looks when the selection changes, when the history has just opened, and when more has become known of the
/// selected item. It never closes the preview. Main thread.
class PreviewOpening final {
 public:
  using Item = std::shared_ptr<ClipboardItemViewModel>;

  struct Collaborators {
    foundation::Published<Item>& selectedItem;
    foundation::NotificationCenter& notificationCenter;
    const defaults::Defaults& defaults;
    ItemInspection& inspection;
    std::function<bool()> isMainWindowVisible;
    /// Ignores a call while the preview is up.
    std::function<void()> showPreview;
  };

  /// All collaborators outlive this object.
  explicit PreviewOpening(Collaborators collaborators);

 private:
  void takeSelection(const Item& item);
  void openIfWanted() const;
  [[nodiscard]] bool deservesPreview(const Item& item) const;
  [[nodiscard]] bool hasWantedResults(const Item& item) const;

  Collaborators m_with;
  std::weak_ptr<ClipboardItemViewModel> m_selectedItem;
  foundation::Subscription m_selection;
  foundation::Subscription m_activation;
  foundation::Subscription m_findings;
};

}  // namespace quillmonger
