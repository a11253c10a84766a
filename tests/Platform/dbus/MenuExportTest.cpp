#include "Platform/dbus/MenuExport.h"

#include <gtest/gtest.h>

#include <QObject>
#include <string>
#include <vector>

namespace {

using quillmonger::StatusMenu;
using quillmonger::StatusMenuItem;

class MenuExport : public testing::Test {
 protected:
  MenuExport() {
    QObject::connect(m_menu, &platform::MenuExport::LayoutUpdated, [this] { ++m_layoutUpdates; });
    QObject::connect(m_menu, &platform::MenuExport::ItemsPropertiesUpdated,
                     [this](const auto& changed, const auto&) { m_changes.push_back(changed); });
    m_menu->setMenu(menu(StatusMenuItem::State::off));
    m_layoutUpdates = 0;
  }

  StatusMenu menu(StatusMenuItem::State incognito) {
    return {{.title = "Show _all", .action = [this] { m_chosen.emplace_back("show"); }, .keyEquivalent = ","},
            {.kind = StatusMenuItem::Kind::separator},
            {.kind = StatusMenuItem::Kind::heading, .title = "History"},
            {.title = "Incognito", .action = [this] { m_chosen.emplace_back("incognito"); }, .state = incognito},
            {.title = "Quit", .action = [this] { m_menu->setMenu({}); }, .keyEquivalent = "q"}};
  }
  QVariantMap properties(int id) { return m_menu->GetGroupProperties({id}, {}).at(0).properties; }
  void click(int id) { m_menu->Event(id, QStringLiteral("clicked"), QDBusVariant(0), 0); }

  std::vector<std::string> m_chosen;
  int m_layoutUpdates = 0;
  std::vector<QList<platform::MenuEntryProperties>> m_changes;
  QObject m_object;
  platform::MenuExport* m_menu = new platform::MenuExport(&m_object);
};

TEST_F(MenuExport, HasTheEntriesBelowItsRoot) {
  platform::MenuNode layout;

  m_menu->GetLayout(0, -1, {}, layout);

  EXPECT_EQ(layout.id, 0);
  EXPECT_EQ(layout.properties.value(QStringLiteral("children-display")).toString(), "submenu");
  ASSERT_EQ(layout.children.size(), 5);
  const auto first = layout.children.at(0).variant().value<platform::MenuNode>();
  EXPECT_EQ(first.id, 1);
  EXPECT_EQ(first.properties, properties(1));
}

TEST_F(MenuExport, GivesOnlyTheRootWhenNoMoreIsAsked) {
  platform::MenuNode layout;

  m_menu->GetLayout(0, 0, {}, layout);

  EXPECT_TRUE(layout.children.empty());
}

TEST_F(MenuExport, DoublesUnderscoresInTitles) {
  EXPECT_EQ(properties(1).value(QStringLiteral("label")).toString(), "Show __all");
}

TEST_F(MenuExport, ShowsAnEntryWithoutAnActionAsDisabled) {
  EXPECT_TRUE(properties(1).value(QStringLiteral("enabled")).toBool());
  EXPECT_FALSE(properties(3).value(QStringLiteral("enabled"), true).toBool());
}

TEST_F(MenuExport, TellsSeparators) {
  EXPECT_EQ(properties(2), (QVariantMap{{QStringLiteral("type"), QStringLiteral("separator")}}));
}

TEST_F(MenuExport, GivesACheckMarkOnlyToWhatCanHaveOne) {
  EXPECT_EQ(properties(4).value(QStringLiteral("toggle-type")).toString(), "checkmark");
  EXPECT_EQ(properties(4).value(QStringLiteral("toggle-state")).toInt(), 0);
  EXPECT_FALSE(properties(1).contains(QStringLiteral("toggle-type")));
}

TEST_F(MenuExport, NamesTheKeysOfItsEntries) {
  const auto chord = [this](int id) {
    return properties(id).value(QStringLiteral("shortcut")).value<QList<QStringList>>();
  };

  EXPECT_EQ(chord(1), (QList<QStringList>{{QStringLiteral("Control"), QStringLiteral("comma")}}));
  EXPECT_EQ(chord(5), (QList<QStringList>{{QStringLiteral("Control"), QStringLiteral("q")}}));
  EXPECT_TRUE(chord(4).empty());
}

TEST_F(MenuExport, GivesOnlyTheAskedProperties) {
  const auto entries = m_menu->GetGroupProperties({1, 2}, {QStringLiteral("label")});

  ASSERT_EQ(entries.size(), 2);
  EXPECT_EQ(entries[0].properties.keys(), QStringList{QStringLiteral("label")});
  EXPECT_TRUE(entries[1].properties.empty());
}

TEST_F(MenuExport, GivesAllEntriesWhenNoneIsNamed) { EXPECT_EQ(m_menu->GetGroupProperties({}, {}).size(), 6); }

TEST_F(MenuExport, TellsWhatHasChangedAndNothingElse) {
  m_menu->setMenu(menu(StatusMenuItem::State::on));

  ASSERT_EQ(m_changes.size(), 1U);
  ASSERT_EQ(m_changes[0].size(), 1);
  EXPECT_EQ(m_changes[0][0].id, 4);
  EXPECT_EQ(m_changes[0][0].properties.value(QStringLiteral("toggle-state")).toInt(), 1);
  EXPECT_EQ(m_layoutUpdates, 0);
}

TEST_F(MenuExport, TellsNothingOfAnEqualMenu) {
  m_menu->setMenu(menu(StatusMenuItem::State::off));

  EXPECT_TRUE(m_changes.empty());
  EXPECT_EQ(m_layoutUpdates, 0);
}

TEST_F(MenuExport, RunsTheActionOfTheClickedEntry) {
  click(4);

  EXPECT_EQ(m_chosen, std::vector<std::string>{"incognito"});
}

TEST_F(MenuExport, DoesNothingForWhatCantBeChosen) {
  for (const int id : {0, 2, 3, 6, -1, 1 << 30})
    click(id);
  m_menu->Event(1, QStringLiteral("hovered"), QDBusVariant(0), 0);

  EXPECT_TRUE(m_chosen.empty());
}

TEST_F(MenuExport, OutlivesAnActionThatReplacesTheMenu) {
  click(5);

  EXPECT_EQ(m_layoutUpdates, 1);
  EXPECT_EQ(m_menu->GetGroupProperties({}, {}).size(), 1);
}

TEST_F(MenuExport, TellsWhichEventsAreOfUnknownEntries) {
  const auto unknown = m_menu->EventGroup(
      {{9, QStringLiteral("clicked"), QDBusVariant(0), 0}, {1, QStringLiteral("clicked"), QDBusVariant(0), 0}});

  EXPECT_EQ(unknown, QList<int>{9});
  EXPECT_EQ(m_chosen, std::vector<std::string>{"show"});
}

}  // namespace
