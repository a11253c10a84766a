#include "Platform/dbus/MenuExport.h"

#include <QGuiApplication>
#include <algorithm>
#include <utility>

namespace platform {

namespace {

using quillmonger::StatusMenuItem;

// An underscore marks the letter that chooses an entry, unless it is doubled.
QString label(const std::string& title) {
  return QString::fromStdString(title).replace(QStringLiteral("_"), QStringLiteral("__"));
}

// The key's name as keyboards' tables have it.
QString keyName(const std::string& character) {
  return character == "," ? QStringLiteral("comma") : QString::fromStdString(character);
}

QVariantMap propertiesOf(const StatusMenuItem& item) {
  if (item.kind == StatusMenuItem::Kind::separator) return {{QStringLiteral("type"), QStringLiteral("separator")}};
  QVariantMap properties{{QStringLiteral("label"), label(item.title)},
                         {QStringLiteral("enabled"), static_cast<bool>(item.action)}};
  if (item.state != StatusMenuItem::State::none) {
    properties.insert(QStringLiteral("toggle-type"), QStringLiteral("checkmark"));
    properties.insert(QStringLiteral("toggle-state"), item.state == StatusMenuItem::State::on ? 1 : 0);
  }
  if (!item.keyEquivalent.empty()) {
    const QList<QStringList> chords{{QStringLiteral("Control"), keyName(item.keyEquivalent)}};
    properties.insert(QStringLiteral("shortcut"), QVariant::fromValue(chords));
  }
  return properties;
}

}  // namespace

void MenuExport::setMenu(quillmonger::StatusMenu menu) {
  m_menu = std::move(menu);
  QList<QVariantMap> entries;
  for (const auto& item : m_menu)
    entries.append(platform::propertiesOf(item));
  const auto former = std::exchange(m_entries, entries);
  if (former.size() != entries.size()) {
    emit LayoutUpdated(++m_revision, 0);
    return;
  }
  QList<MenuEntryProperties> changed;
  for (int position = 0; position < entries.size(); ++position) {
    if (entries[position] != former[position]) changed.append({position + 1, entries[position]});
  }
  if (!changed.isEmpty()) emit ItemsPropertiesUpdated(changed, {});
}

QString MenuExport::textDirection() const {
  return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

QVariantMap MenuExport::propertiesOf(int id, const QStringList& names) const {
  QVariantMap properties;
  if (id == 0) {
    properties.insert(QStringLiteral("children-display"), QStringLiteral("submenu"));
  } else if (isKnown(id)) {
    properties = m_entries[id - 1];
  }
  if (names.isEmpty()) return properties;
  properties.removeIf([&names](const auto& property) { return !names.contains(property.key()); });
  return properties;
}

uint MenuExport::GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames, MenuNode& layout) const {
  layout = {parentId, propertiesOf(parentId, propertyNames), {}};
  if (parentId != 0 || recursionDepth == 0) return m_revision;
  for (int id = 1; id <= m_entries.size(); ++id) {
    const MenuNode child{id, propertiesOf(id, propertyNames), {}};
    layout.children.append(QDBusVariant(QVariant::fromValue(child)));
  }
  return m_revision;
}

QList<MenuEntryProperties> MenuExport::GetGroupProperties(const QList<int>& ids,
                                                          const QStringList& propertyNames) const {
  QList<MenuEntryProperties> entries;
  for (int id = 0; id <= m_entries.size(); ++id) {
    if (ids.isEmpty() || ids.contains(id)) entries.append({id, propertiesOf(id, propertyNames)});
  }
  return entries;
}

// A property that is not there has no answer of its own in the interface: an empty text stands for it.
QDBusVariant MenuExport::GetProperty(int id, const QString& name) const {
  return QDBusVariant(propertiesOf(id, {}).value(name, QString()));
}

void MenuExport::Event(int id, const QString& eventId, const QDBusVariant& /*data*/, uint /*timestamp*/) {
  if (eventId != QStringLiteral("clicked") || id == 0 || !isKnown(id)) return;
  // A copy: what it does may change the menu.
  const auto action = m_menu[static_cast<std::size_t>(id - 1)].action;
  if (action) action();
}

QList<int> MenuExport::EventGroup(const QList<MenuEvent>& events) {
  QList<int> unknown;
  for (const auto& event : events) {
    if (isKnown(event.id)) {
      Event(event.id, event.name, event.data, event.timestamp);
    } else {
      unknown.append(event.id);
    }
  }
  return unknown;
}

// The menu is always as it should be.
bool MenuExport::AboutToShow(int /*id*/) const { return false; }

QList<int> MenuExport::AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors) const {
  std::ranges::copy_if(ids, std::back_inserter(idErrors), [this](int id) { return !isKnown(id); });
  return {};
}

}  // namespace platform
