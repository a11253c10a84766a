#include "Quillmonger/update/view/UpdateModel.h"

#include <utility>

#include "Quillmonger/resources/Texts.h"

namespace quillmonger {

void UpdateModel::setStatus(const UpdateStatus& status) {
  const auto before = std::exchange(m_content, updateContent(status, m_ownVersion, localizedText));
  emit changed();
  // Buttons that stay keep the keyboard, while a download tells of its progress.
  if (m_content.buttons != before.buttons) emit buttonsChanged();
}

QStringList UpdateModel::buttons() const {
  QStringList labels;
  for (const auto& button : m_content.buttons)
    labels.append(QString::fromStdString(button.label));
  return labels;
}

void UpdateModel::press(int index) {
  const auto place = static_cast<std::size_t>(index);
  if (index >= 0 && place < m_content.buttons.size()) answered(m_content.buttons[place].answer);
}

}  // namespace quillmonger
