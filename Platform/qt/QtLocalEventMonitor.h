#pragma once

#include <QObject>
#include <memory>
#include <vector>

#include "Quillmonger/input/LocalEventMonitoring.h"

class QKeyEvent;

namespace platform {

/// Sees the key events of all the program's windows before Qt hands them to an item. Keys are told by their position.
/// The keys of a modal window are its own, and so are those that the item with the keyboard names in its property
/// `ownKeys`, a list of Qt's key codes: arrows that move a list's selection, say.
/// Made after the application object, and gone before it.
class QtLocalEventMonitor final : public QObject, public quillmonger::LocalEventMonitoring {
 public:
  QtLocalEventMonitor();

  foundation::Subscription addLocalMonitor(Handler handler) override;

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  [[nodiscard]] Disposition tell(const quillmonger::KeyEvent& event) const;

  using Handlers = std::vector<std::shared_ptr<Handler>>;
  std::shared_ptr<Handlers> m_handlers = std::make_shared<Handlers>();
};

}  // namespace platform
