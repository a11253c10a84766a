#include "Settings/view/SettingsModel.h"

namespace settings {

SettingsModel::SettingsModel(SettingsWindowController& controller, foundation::Published<Size>& windowSize)
    : m_controller(controller),
      m_windowSize(windowSize),
      m_selection(style().selectedTab().subscribe([this](const auto&) { emit selectedTabChanged(); })),
      m_sizes(windowSize.subscribe([this](const auto&) { emit windowSizeChanged(); })) {}

SettingsStyleController& SettingsModel::style() const {
  return m_controller.tabViewController().settingsStyleController();
}

QVariantList SettingsModel::items() const {
  QVariantList list;
  for (const auto& item : style().toolbar()) {
    list.append(QVariantMap{{QStringLiteral("identifier"), QString::fromStdString(item.identifier)},
                            {QStringLiteral("title"), QString::fromStdString(item.title)},
                            {QStringLiteral("icon"), QString::fromStdString(item.icon.source)},
                            {QStringLiteral("description"), QString::fromStdString(item.icon.description)}});
  }
  return list;
}

bool SettingsModel::isSegmented() const { return style().style() == Style::segmentedControl; }

int SettingsModel::selectedTab() const {
  const auto& pane = style().selectedTab().value();
  return pane ? static_cast<int>(*pane) : -1;
}

QSizeF SettingsModel::windowSize() const { return {m_windowSize.value().width, m_windowSize.value().height}; }

void SettingsModel::choose(int pane) {
  if (pane >= 0) style().choose(static_cast<std::size_t>(pane));
}

}  // namespace settings
