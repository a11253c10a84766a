#include <QAccessible>
#include <QGuiApplication>
#include <functional>
#include <ostream>

#include "Quillmonger/settings/SettingsKeys.h"
#include "Quillmonger/update/UpdaterKeys.h"
#include "tests/Quillmonger/view/SettingsPaneTest.h"
#include "tests/gallery/LongTexts.h"

namespace {

namespace keys = quillmonger::keys;

struct Toggle {
  const char* pane;
  const char* identifier;
  const defaults::Key<bool>& key;
};
void PrintTo(const Toggle& toggle, std::ostream* out) { *out << toggle.identifier; }
std::string nameOf(const testing::TestParamInfo<Toggle>& row) { return row.param.identifier; }

class SettingsToggle : public testsupport::SettingsPaneTest, public testing::WithParamInterface<Toggle> {
 protected:
  SettingsToggle() : SettingsPaneTest(GetParam().pane) {}

  bool isOn() { return settings()[GetParam().key]; }
  bool isShownOn() { return item(GetParam().identifier)->property("isOn").toBool(); }
};

TEST_P(SettingsToggle, IsWrittenAtOnceByMouseAndKeyboard) {
  const bool wasOn = isOn();

  click(GetParam().identifier);
  EXPECT_EQ(isOn(), !wasOn);
  focus(GetParam().identifier);
  press(Qt::Key_Space);
  EXPECT_EQ(isOn(), wasOn);
}

TEST_P(SettingsToggle, IsSeenAtOnceWhenItIsChangedElsewhere) {
  const bool wasOn = isOn();
  EXPECT_EQ(isShownOn(), wasOn);

  settings().set(GetParam().key, !wasOn);

  EXPECT_EQ(isShownOn(), !wasOn);
}

TEST_P(SettingsToggle, IsACheckBoxWithAName) {
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(item(GetParam().identifier));

  ASSERT_NE(spoken, nullptr);
  EXPECT_EQ(spoken->role(), QAccessible::CheckBox);
  EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty());
  EXPECT_FALSE(spoken->text(QAccessible::Name).contains('_')) << "a key without a text";
}

INSTANTIATE_TEST_SUITE_P(
    Panes, SettingsToggle,
    testing::Values(Toggle{"general", "SoundEffectsToggle", keys::soundEffectsEnabled},
                    Toggle{"general", "GettingStartedToggle", keys::firstLaunch},
                    Toggle{"general", "CheckForUpdatesToggle", quillmonger::updaterkeys::automaticallyChecksForUpdates},
                    Toggle{"general", "DownloadUpdatesToggle", quillmonger::updaterkeys::automaticallyDownloadsUpdates},
                    Toggle{"general", "PasteWithoutFormattingToggle", keys::alwaysPasteWithoutFormatting},
                    Toggle{"general", "PersistHistoryToggle", keys::persistHistory},
                    Toggle{"ignore", "IgnoreSensitiveToggle", keys::ignoreSensitiveData},
                    Toggle{"ignore", "IgnoreImagesToggle", keys::ignoreImages},
                    Toggle{"search", "CaseSensitiveToggle", keys::searchCaseSensitive},
                    Toggle{"search", "RegexToggle", keys::searchRegex},
                    Toggle{"search", "SearchAppNameToggle", keys::searchAppName},
                    Toggle{"appearance", "AnimateMenuBarToggle", keys::animateMenuBar},
                    Toggle{"appearance", "SourceAppIconToggle", keys::showSourceAppIcon},
                    Toggle{"appearance", "KeyboardShortcutsToggle", keys::showKeyboardShortcuts},
                    Toggle{"appearance", "ScrollbarToggle", keys::showScrollbar},
                    Toggle{"appearance", "ColorIndicatorToggle", keys::showColorIndicator},
                    Toggle{"appearance", "ContentTypeIndicatorsToggle", keys::showContentTypeIndicators},
                    Toggle{"appearance", "HideLargeTextToggle", keys::hideLongTextPreview},
                    Toggle{"appearance", "PreviewScrollbarToggle", keys::showPreviewPaneScrollbar},
                    Toggle{"appearance", "AutoOpenImageToggle", keys::autoOpenImagePreview},
                    Toggle{"appearance", "AutoOpenOculetToggle", keys::autoOpenOculet}),
    nameOf);

class SearchPane : public testsupport::SettingsPaneTest {
 protected:
  SearchPane() : SettingsPaneTest("search") {}
  double pause() { return settings()[keys::searchDebounceInterval]; }
};

TEST_F(SearchPane, ReachesTheValueAtTheSlidersTopStepAndStopsThere) {
  clickAt("DebounceSlider", 0.99);
  EXPECT_NEAR(pause(), 0.3, 1e-12);

  focus("DebounceSlider");
  press(Qt::Key_Right);
  EXPECT_NEAR(pause(), 0.3, 1e-12);
  press(Qt::Key_Left);
  EXPECT_NEAR(pause(), 0.25, 1e-12);
  press(Qt::Key_Home);
  EXPECT_NEAR(pause(), 0.05, 1e-12);
}

TEST_F(SearchPane, HasASliderOfItsWidth) { EXPECT_EQ(item("DebounceSlider")->width(), 320); }

TEST_F(SearchPane, SeesAChangeOfThePauseElsewhere) {
  settings().set(keys::searchDebounceInterval, 0.2);

  EXPECT_EQ(item("DebounceSlider")->property("value").toDouble(), 0.2);
}

class AppearancePane : public testsupport::SettingsPaneTest {
 protected:
  AppearancePane() : SettingsPaneTest("appearance") {}
};

TEST_F(AppearancePane, ChangesTheColoursOfItsOwnWindowAtOnce) {
  using Scheme = std::optional<quillmonger::ColorScheme>;
  click("ColorSchemePicker");
  click("PopUpOption-2");
  EXPECT_EQ(settings()[keys::selectedColorScheme], Scheme(quillmonger::ColorScheme::dark));
  EXPECT_LT(view().grabWindow().pixelColor(3, 200).lightness(), 100);

  click("ColorSchemePicker");
  click("PopUpOption-1");
  EXPECT_GT(view().grabWindow().pixelColor(3, 200).lightness(), 200);

  click("ColorSchemePicker");
  click("PopUpOption-0");
  EXPECT_EQ(settings()[keys::selectedColorScheme], Scheme());
}

TEST_F(AppearancePane, ChoosesWhereALongLineIsCut) {
  focus("TruncationModePicker");

  press(Qt::Key_Down);
  press(Qt::Key_Up);
  press(Qt::Key_Space);

  EXPECT_EQ(settings()[keys::truncationMode], quillmonger::TruncationMode::head);
}

struct PaneWidth {
  const char* pane;
  int contentWidth;
};
void PrintTo(const PaneWidth& row, std::ostream* out) { *out << row.pane; }

class SettingsPanes : public testing::TestWithParam<PaneWidth> {
 protected:
  testsupport::SettingsStage m_stage;
};

TEST_P(SettingsPanes, AreAsWideAsTheirContentAndItsMargins) {
  EXPECT_EQ(m_stage.pane(GetParam().pane).width(), GetParam().contentWidth + 2 * 30);
}

TEST_P(SettingsPanes, FitOnASmallScreen) { EXPECT_LE(m_stage.pane(GetParam().pane).height(), 760); }

void forEachText(QQuickItem* item, const std::function<void(QQuickItem*)>& body) {
  if (!item->isVisible()) return;
  if (item->inherits("QQuickText") && !item->property("text").toString().isEmpty()) body(item);
  for (QQuickItem* child : item->childItems())
    forEachText(child, body);
}

QRectF placeOf(const QQuickItem* item) { return item->mapRectToScene(item->boundingRect()); }

TEST_P(SettingsPanes, CutNothingAndOverlapNowhereWithTextsTwiceAsLong) {
  const testsupport::LongTexts longTexts;
  testsupport::SettingsStage stage;
  QQuickView& view = stage.pane(GetParam().pane);
  auto* area = testsupport::find(view, "SettingsPaneArea");
  std::vector<QQuickItem*> texts;

  forEachText(area, [&texts](QQuickItem* text) { texts.push_back(text); });

  EXPECT_GT(texts.size(), 4U);
  for (const QQuickItem* text : texts) {
    const std::string words = text->property("text").toString().toStdString();
    EXPECT_FALSE(text->property("truncated").toBool()) << words;
    EXPECT_LE(text->property("contentWidth").toDouble(), text->width() + 0.5) << words;
    EXPECT_GE(placeOf(text).left(), 0) << words;
    EXPECT_LE(placeOf(text).right(), view.width()) << words;
    for (const QQuickItem* other : texts) {
      const bool overlaps = other != text && placeOf(text).intersects(placeOf(other));
      EXPECT_FALSE(overlaps) << words << " and " << other->property("text").toString().toStdString();
    }
  }
}

void expectNotesOfTheirWidth(QQuickItem* area) {
  forEachText(area, [](const QQuickItem* text) {
    const int width = text->property("maximumWidth").toInt();
    if (width == 0) return;
    EXPECT_EQ(text->width(), width) << text->property("text").toString().toStdString();
  });
}

TEST_P(SettingsPanes, KeepTheWidthOfTheirNotesBesideLongLabels) {
  expectNotesOfTheirWidth(testsupport::find(m_stage.pane(GetParam().pane), "SettingsPaneArea"));
  const testsupport::LongTexts longTexts;
  testsupport::SettingsStage stage;
  expectNotesOfTheirWidth(testsupport::find(stage.pane(GetParam().pane), "SettingsPaneArea"));
}

std::vector<QRectF> placesOfNamed(testsupport::SettingsStage& stage, const char* pane) {
  std::vector<QRectF> places;
  const std::function<void(QQuickItem*)> visit = [&places, &visit](QQuickItem* item) {
    if (!item->isVisible()) return;
    if (!item->objectName().isEmpty()) places.push_back(placeOf(item));
    for (QQuickItem* child : item->childItems())
      visit(child);
  };
  visit(testsupport::find(stage.pane(pane), "SettingsPaneArea"));
  return places;
}

TEST_P(SettingsPanes, AreMirroredInALanguageFromRightToLeft) {
  const auto places = placesOfNamed(m_stage, GetParam().pane);
  const double width = m_stage.pane(GetParam().pane).width();
  QGuiApplication::setLayoutDirection(Qt::RightToLeft);
  testsupport::SettingsStage stage;
  const auto mirrored = placesOfNamed(stage, GetParam().pane);
  QGuiApplication::setLayoutDirection(Qt::LeftToRight);

  ASSERT_GT(places.size(), 4U);
  ASSERT_EQ(mirrored.size(), places.size());
  for (std::size_t index = 0; index < places.size(); ++index)
    EXPECT_NEAR(width - mirrored[index].right(), places[index].left(), 1) << index;
}

INSTANTIATE_TEST_SUITE_P(Panes, SettingsPanes,
                         testing::Values(PaneWidth{"general", 500}, PaneWidth{"ignore", 480}, PaneWidth{"search", 500},
                                         PaneWidth{"appearance", 490}, PaneWidth{"keyBindings", 480}),
                         [](const auto& row) { return std::string(row.param.pane); });

TEST(SettingsPaneOrder, IsThatOfTheToolbar) {
  testsupport::SettingsStage stage;
  std::vector<std::string> titles;
  for (const char* identifier : {"general", "ignore", "search", "appearance", "keyBindings"}) {
    auto* tab = testsupport::find(stage.pane("general"), QStringLiteral("ToolbarItem-") + identifier);
    ASSERT_NE(tab, nullptr);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(tab);
    titles.push_back(spoken->text(QAccessible::Name).toStdString() + ", " +
                     spoken->text(QAccessible::Description).toStdString());
  }

  EXPECT_EQ(titles, (std::vector<std::string>{"General, Gear", "Ignore, Half-filled shield", "Search, Magnifying Glass",
                                              "Appearance, Paint Palette", "Key Bindings, Keyboard"}));
}

}  // namespace
