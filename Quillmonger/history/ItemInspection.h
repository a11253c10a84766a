#pragma once

#include <deque>
#include <memory>
#include <optional>

#include "Foundation/BackgroundQueue.h"
#include "Foundation/RunLoop.h"
#include "Foundation/Stream.h"
#include "Quillmonger/history/ClipboardItemViewModel.h"

namespace quillmonger {

/// Finds out about items what can take longer than a frame lasts: a picture's average colour, and what a long text is.
/// That is done beside the main thread, one item at a time. The latest that was asked for comes first; of many, the
/// oldest are dropped, to be asked for again. Main thread.
class ItemInspection final {
 public:
  using Item = std::shared_ptr<ClipboardItemViewModel>;

  /// Both outlive this object and its work.
  ItemInspection(foundation::BackgroundQueue& queue, foundation::RunLoop& runLoop)
      : m_queue(queue), m_runLoop(runLoop) {}

  /// The item's `imageColor`, `hasOculetResults` and `textColor`, once they are known.
  [[nodiscard]] std::optional<RGBColor> imageColor(const Item& item);
  [[nodiscard]] bool hasOculetResults(const Item& item);
  [[nodiscard]] std::optional<Color> textColor(const Item& item);
  /// Tells of each item of which something has become known.
  [[nodiscard]] foundation::Stream<Item>& found() { return m_found; }

 private:
  [[nodiscard]] bool isKnown(const Item& item);
  void startNext();
  void finish(const Item& item, const ClipboardItemViewModel::Findings& findings);

  foundation::BackgroundQueue& m_queue;
  foundation::RunLoop& m_runLoop;
  // The latest at the back.
  std::deque<std::weak_ptr<ClipboardItemViewModel>> m_waiting;
  std::weak_ptr<ClipboardItemViewModel> m_underWay;
  bool m_isUnderWay = false;
  foundation::Stream<Item> m_found;
  std::shared_ptr<const bool> m_isAlive = std::make_shared<const bool>(true);
};

}  // namespace quillmonger
