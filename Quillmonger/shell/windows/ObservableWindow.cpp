#include "Quillmonger/shell/windows/ObservableWindow.h"

namespace quillmonger {

void ObservableWindow::orderFront() {
  m_panel.orderFront();
  if (visibilityChanged) visibilityChanged(true);
}

void ObservableWindow::orderOut() {
  m_panel.orderOut();
  if (visibilityChanged) visibilityChanged(false);
}

}  // namespace quillmonger
