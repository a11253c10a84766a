#include "Quillmonger/history/view/HistorySettings.h"

namespace quillmonger {

void HistorySettings::setValues(const Values& values) {
  m_values = values;
  emit changed();
}

}  // namespace quillmonger
