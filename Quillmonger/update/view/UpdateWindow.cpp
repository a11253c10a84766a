#include "Quillmonger/update/view/UpdateWindow.h"

namespace quillmonger {

void UpdateWindow::show(Attention attention) {
  // One that is up stays where the user has put it.
  if (!m_panel.isVisible()) m_panel.center();
  if (attention == Attention::front) {
    m_panel.makeKeyAndOrderFront();
  } else {
    m_panel.orderFront();
  }
}

}  // namespace quillmonger
