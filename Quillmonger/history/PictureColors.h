#pragma once

#include <deque>
#include <memory>
#include <optional>

#include "Foundation/BackgroundQueue.h"
#include "Foundation/RunLoop.h"
#include "Foundation/Stream.h"
#include "Quillmonger/history/ClipboardItemViewModel.h"

namespace quillmonger {

/// The average colours of pictures, worked out beside the main thread, one at a time, since a picture can take longer
/// to decode than a frame lasts. The latest that was asked for comes first; of many, the oldest are dropped, to be
/// asked for again. Main thread.
class PictureColors final {
 public:
  using Item = std::shared_ptr<ClipboardItemViewModel>;

  /// Both outlive this object and its work.
  PictureColors(foundation::BackgroundQueue& queue, foundation::RunLoop& runLoop)
      : m_queue(queue), m_runLoop(runLoop) {}

  /// The item's `imageColor`, once it is known.
  [[nodiscard]] std::optional<RGBColor> color(const Item& item);
  /// Tells of each item whose colour has become known.
  [[nodiscard]] foundation::Stream<Item>& found() { return m_found; }

 private:
  void ask(const Item& item);
  void startNext();
  void finish(const Item& item, const std::optional<RGBColor>& color);

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
