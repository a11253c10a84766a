#include "Quillmonger/settings/view/ChoiceModel.h"

#include "Quillmonger/resources/Texts.h"

namespace quillmonger {

QStringList ChoiceModel::titles() const {
  QStringList titles;
  for (const auto& key : m_choice.textKeys())
    titles.append(QString::fromStdString(localizedText(key)));
  return titles;
}

int ChoiceModel::selected() const {
  const auto option = m_choice.selected();
  return option ? static_cast<int>(*option) : -1;
}

QString ChoiceModel::selectedTitle() const {
  const int option = selected();
  return option < 0 ? QString::fromStdString(m_choice.otherText()) : titles().at(option);
}

void ChoiceModel::select(int option) {
  if (option >= 0) m_choice.select(static_cast<std::size_t>(option));
}

}  // namespace quillmonger
