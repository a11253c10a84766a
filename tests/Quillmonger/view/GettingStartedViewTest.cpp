#include <gtest/gtest.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QTest>
#include <chrono>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "Quillmonger/guide/view/VideoPicture.h"
#include "tests/gallery/GuideStage.h"
#include "tests/gallery/LongTexts.h"
#include "tests/gallery/ViewStage.h"

namespace {

using namespace std::chrono_literals;
using quillmonger::LaunchScreen;

class GettingStartedView : public testing::Test {
 protected:
  void activate() {
    m_stage.view().requestActivate();
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_stage.view().isActive(); }));
  }
  void press(Qt::Key key) { QTest::keyClick(&m_stage.view(), key); }
  void click(const QString& identifier) {
    auto* item = m_stage.find(identifier);
    ASSERT_NE(item, nullptr);
    QTest::mouseClick(&m_stage.view(), Qt::LeftButton, {}, item->mapToScene(item->boundingRect().center()).toPoint());
  }
  QString title() { return m_stage.find("GuideTitle")->property("text").toString(); }
  std::vector<QString> texts() {
    std::vector<QQuickItem*> items;
    testsupport::collect(m_stage.view().rootObject(), "GuideText", items);
    std::vector<QString> texts;
    for (const auto* item : items)
      texts.push_back(item->property("text").toString());
    return texts;
  }
  QString nameOf(const QString& identifier) {
    auto* interface = QAccessible::queryAccessibleInterface(m_stage.find(identifier));
    return interface == nullptr ? QString() : interface->text(QAccessible::Name);
  }

  testsupport::GuideStage m_stage;
};

TEST_F(GettingStartedView, GoingForwardAndBackWalksTheEightScreensInTheirOrder) {
  const std::vector<QString> titles{"Welcome to Quillmonger",
                                    "Your history, from anywhere",
                                    "Paste what you copied before",
                                    "With formatting or without",
                                    "Find it by typing",
                                    "Look before you paste",
                                    "You decide what is kept",
                                    "Let Quillmonger paste for you"};
  std::vector<QString> forward{title()};
  for (int step = 0; step < 7; ++step) {
    click("GuideForwardButton");
    forward.push_back(title());
  }
  EXPECT_EQ(forward, titles);

  std::vector<QString> back{title()};
  for (int step = 0; step < 7; ++step) {
    click("GuideBackButton");
    back.push_back(title());
  }

  EXPECT_EQ(back, std::vector(titles.rbegin(), titles.rend()));
  EXPECT_EQ(m_stage.quitCount() + m_stage.finishCount(), 0);
}

TEST_F(GettingStartedView, TheBackButtonOfTheWelcomeQuits) {
  click("GuideBackButton");

  EXPECT_EQ(m_stage.quitCount(), 1);
}

TEST_F(GettingStartedView, TheForwardButtonOfTheLastScreenFinishesAlsoWithoutThePermission) {
  m_stage.access().setAllowed(false);
  m_stage.goTo(LaunchScreen::accessibility);

  click("GuideForwardButton");

  EXPECT_EQ(m_stage.finishCount(), 1);
}

TEST_F(GettingStartedView, ReturnContinuesFromScreenToScreenAndFinishes) {
  activate();

  for (int screen = 0; screen < 8; ++screen)
    press(Qt::Key_Return);

  EXPECT_EQ(m_stage.screen(), LaunchScreen::accessibility);
  EXPECT_EQ(m_stage.finishCount(), 1);
}

TEST_F(GettingStartedView, TheArrowKeysWalkAndNeitherQuitNorFinish) {
  activate();

  press(Qt::Key_Left);
  EXPECT_EQ(m_stage.screen(), LaunchScreen::welcome);
  for (int step = 0; step < 9; ++step)
    press(Qt::Key_Right);
  EXPECT_EQ(m_stage.screen(), LaunchScreen::accessibility);
  press(Qt::Key_Left);

  EXPECT_EQ(m_stage.screen(), LaunchScreen::settings);
  EXPECT_EQ(m_stage.quitCount() + m_stage.finishCount(), 0);
}

TEST_F(GettingStartedView, TheArrowKeysWalkTheOtherWayWhereTextRunsFromTheRight) {
  QGuiApplication::setLayoutDirection(Qt::RightToLeft);
  activate();

  press(Qt::Key_Left);
  press(Qt::Key_Left);
  press(Qt::Key_Right);

  EXPECT_EQ(m_stage.screen(), LaunchScreen::startup);
  EXPECT_LT(m_stage.find("GuideForwardButton")->mapToScene({}).x(),
            m_stage.find("GuideBackButton")->mapToScene({}).x());
  QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(GettingStartedView, EscapeGoesBackAndQuitsOnTheWelcome) {
  activate();
  press(Qt::Key_Return);

  press(Qt::Key_Escape);
  EXPECT_EQ(m_stage.screen(), LaunchScreen::welcome);
  EXPECT_EQ(m_stage.quitCount(), 0);
  press(Qt::Key_Escape);

  EXPECT_EQ(m_stage.quitCount(), 1);
}

TEST_F(GettingStartedView, TabReachesEveryControlOfTheLastScreen) {
  m_stage.access().setAllowed(false);
  m_stage.goTo(LaunchScreen::accessibility);
  activate();

  std::set<QString> reached;
  for (int step = 0; step < 4; ++step) {
    press(Qt::Key_Tab);
    const auto* item = m_stage.view().activeFocusItem();
    reached.insert(item == nullptr ? QString() : item->objectName());
  }

  EXPECT_EQ(reached,
            (std::set<QString>{"GuideVideo", "GrantPermissionsButton", "GuideBackButton", "GuideForwardButton"}));
}

TEST_F(GettingStartedView, TheFocusedBackButtonTakesReturnForItself) {
  m_stage.goTo(LaunchScreen::paste);
  activate();

  m_stage.find("GuideBackButton")->forceActiveFocus(Qt::TabFocusReason);
  press(Qt::Key_Return);

  EXPECT_EQ(m_stage.screen(), LaunchScreen::startup);
}

TEST_F(GettingStartedView, NamesTheChord) {
  m_stage.goTo(LaunchScreen::startup);

  EXPECT_TRUE(texts().front().startsWith("Press Shift+Super+V, and"));
}

TEST_F(GettingStartedView, NamesTheChordThatIsChosenMeanwhile) {
  m_stage.goTo(LaunchScreen::startup);

  m_stage.model().setChord("Ctrl+Alt+J");

  EXPECT_TRUE(texts().front().startsWith("Press Ctrl+Alt+J, and"));
}

TEST(GettingStartedViewWithoutAChord, NamesTheCommand) {
  testsupport::GuideStage stage{QString()};
  stage.goTo(LaunchScreen::startup);

  EXPECT_TRUE(stage.find("GuideText")->property("text").toString().startsWith(u"Run the command \u201Cquillmonger"));
}

TEST_F(GettingStartedView, EachFeatureHasItsVideoWhichPlaysWhileItsScreenIsUp) {
  std::vector<std::string> names;
  for (const auto screen : {LaunchScreen::startup, LaunchScreen::paste, LaunchScreen::formatting, LaunchScreen::search,
                            LaunchScreen::preview, LaunchScreen::settings, LaunchScreen::accessibility}) {
    m_stage.goTo(screen);
    m_stage.view();
    names.push_back(m_stage.videos().last().name);
    EXPECT_TRUE(m_stage.videos().last().isPlaying);
  }

  EXPECT_EQ(names, (std::vector<std::string>{"launch_quillmonger", "paste_quillmonger", "formatting_quillmonger",
                                             "search_quillmonger", "preview_quillmonger", "settings_quillmonger",
                                             "accessibility_quillmonger"}));
  EXPECT_EQ(m_stage.videos().all().size(), 7U);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(m_stage.videos().all().front()->isGone);
}

TEST_F(GettingStartedView, ShowsThePicturesOfTheVideo) {
  m_stage.goTo(LaunchScreen::search);
  m_stage.view();

  m_stage.videos().showPicture(200, 40, 20);

  auto* picture = m_stage.find("GuideVideoPicture");
  const QPointF centre = picture->mapToScene(picture->boundingRect().center());
  EXPECT_TRUE(QTest::qWaitFor(
      [this, &centre] { return m_stage.view().grabWindow().pixelColor(centre.toPoint()) == QColor(200, 40, 20); }));
}

TEST_F(GettingStartedView, AVideoHasAsManyPixelsAsThePlaceThatItIsShownIn) {
  m_stage.goTo(LaunchScreen::search);
  const auto* picture = m_stage.find("GuideVideoPicture");

  EXPECT_EQ(m_stage.videos().last().size.width, picture->width());
  EXPECT_EQ(m_stage.videos().last().size.height, picture->height());
}

TEST_F(GettingStartedView, AVideoWithoutAPlaceIsMadeOnceItHasOne) {
  m_stage.view();
  quillmonger::VideoPicture picture(m_stage.view().contentItem());
  picture.setModel(&m_stage.model());
  picture.setVideo(QStringLiteral("late"));

  picture.setSize({40, 30});

  EXPECT_TRUE(QTest::qWaitFor([&picture] { return picture.canPlay(); }));
  EXPECT_EQ(m_stage.videos().last().name, "late");
}

TEST_F(GettingStartedView, ThereIsNothingToPlayWhereThereIsNoVideo) {
  m_stage.videos().remove();
  m_stage.goTo(LaunchScreen::search);

  EXPECT_EQ(m_stage.find("GuideVideoPlayControl"), nullptr);
  EXPECT_EQ(nameOf("GuideVideo"), "Picture: Find it by typing");
}

TEST_F(GettingStartedView, AVideoThatCantBeGoneOnWithHasNothingToPlayEither) {
  m_stage.goTo(LaunchScreen::search);
  m_stage.view();

  m_stage.videos().last().receiver.failure();

  EXPECT_EQ(nameOf("GuideVideo"), "Picture: Find it by typing");
}

TEST_F(GettingStartedView, AVideoRestsWhileTheWindowIsHidden) {
  m_stage.goTo(LaunchScreen::search);
  m_stage.view();

  m_stage.view().hide();
  EXPECT_FALSE(m_stage.videos().last().isPlaying);
  m_stage.view().show();

  EXPECT_TRUE(m_stage.videos().last().isPlaying);
}

TEST_F(GettingStartedView, AClickPausesTheVideoAndAnotherOneLetsItGoOn) {
  m_stage.goTo(LaunchScreen::search);

  click("GuideVideo");
  EXPECT_FALSE(m_stage.videos().last().isPlaying);
  EXPECT_NE(m_stage.find("GuideVideoPlayControl"), nullptr);
  EXPECT_EQ(nameOf("GuideVideo"), "Play the video: Find it by typing");
  click("GuideVideo");

  EXPECT_TRUE(m_stage.videos().last().isPlaying);
  EXPECT_EQ(m_stage.find("GuideVideoPlayControl"), nullptr);
  EXPECT_EQ(nameOf("GuideVideo"), "Pause the video: Find it by typing");
}

TEST_F(GettingStartedView, WithReducedMotionAVideoWaitsToBeStarted) {
  m_stage.desktop().reducesMotion().set(true);
  m_stage.goTo(LaunchScreen::search);
  m_stage.view();
  EXPECT_FALSE(m_stage.videos().last().isPlaying);
  EXPECT_NE(m_stage.find("GuideVideoPlayControl"), nullptr);

  activate();
  m_stage.find("GuideVideo")->forceActiveFocus(Qt::TabFocusReason);
  press(Qt::Key_Space);

  EXPECT_TRUE(m_stage.videos().last().isPlaying);
}

TEST_F(GettingStartedView, TheCheckMarkFollowsThePermissionWithinAQuarterOfASecond) {
  m_stage.access().setAllowed(false);
  m_stage.goTo(LaunchScreen::accessibility);
  m_stage.view();
  m_stage.runLoop().advance(10s);
  EXPECT_EQ(nameOf("PermissionMark"), "Permission not granted yet");

  m_stage.access().setAllowed(true);
  m_stage.runLoop().advance(250ms);

  EXPECT_EQ(nameOf("PermissionMark"), "Permission granted");
}

TEST_F(GettingStartedView, TheGrantButtonRequestsThePermissionWhileItIsMissing) {
  m_stage.access().setAllowed(false);
  m_stage.goTo(LaunchScreen::accessibility);
  m_stage.view();

  click("GrantPermissionsButton");
  EXPECT_EQ(m_stage.access().requestCount(), 1);
  m_stage.access().setAllowed(true);
  m_stage.runLoop().advance(250ms);

  EXPECT_FALSE(m_stage.find("GrantPermissionsButton")->isEnabled());
}

TEST_F(GettingStartedView, ThePermissionIsTestedOnItsScreenAlone) {
  m_stage.access().setAllowed(false);
  m_stage.goTo(LaunchScreen::accessibility);
  m_stage.view();
  m_stage.guide().showPrevious();
  m_stage.view();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

  m_stage.access().setAllowed(true);
  m_stage.runLoop().advance(10s);

  m_stage.guide().showNext();
  EXPECT_EQ(nameOf("PermissionMark"), "Permission not granted yet");
}

TEST_F(GettingStartedView, ClosingTheWindowQuits) {
  m_stage.view().close();

  EXPECT_EQ(m_stage.quitCount(), 1);
}

TEST_F(GettingStartedView, ButtonsAre96WideAndTheWelcomesIcon350High) {
  EXPECT_EQ(m_stage.find("AppIcon")->width(), 350);
  for (const auto screen : {LaunchScreen::welcome, LaunchScreen::startup, LaunchScreen::accessibility}) {
    m_stage.goTo(screen);
    EXPECT_EQ(m_stage.find("GuideBackButton")->width(), 96);
    EXPECT_EQ(m_stage.find("GuideForwardButton")->width(), 96);
  }
}

// What is shown stands below one another and within the window.
void expectNoOverlap(testsupport::GuideStage& stage) {
  double bottom = 0;
  for (const char* identifier :
       {"GuideTitle", "GuideVideo", "GuideText", "GrantPermissionsButton", "GuideBackButton"}) {
    std::vector<QQuickItem*> items;
    testsupport::collect(stage.view().rootObject(), identifier, items);
    for (const auto* item : items) {
      const QRectF place = item->mapRectToScene(item->boundingRect());
      EXPECT_GE(place.top(), bottom) << identifier;
      EXPECT_GE(place.left(), 0) << identifier;
      EXPECT_LE(place.right(), stage.view().width()) << identifier;
      bottom = place.bottom();
    }
  }
  EXPECT_LE(bottom, stage.view().height());
}

TEST_F(GettingStartedView, TextsThatAreTwiceAsLongHaveTheirPlaceOnEveryScreen) {
  const testsupport::LongTexts longTexts;
  m_stage.view();
  for (int step = 0; step < 8; ++step) {
    expectNoOverlap(m_stage);
    m_stage.guide().showNext();
  }
}

TEST_F(GettingStartedView, EveryTextHasItsPlaceOnEveryScreen) {
  for (int step = 0; step < 8; ++step) {
    expectNoOverlap(m_stage);
    m_stage.guide().showNext();
  }
}

TEST_F(GettingStartedView, ShowsByThePointerWhereItIsResized) {
  const QSize size = m_stage.view().size();
  const int right = size.width() - 2;
  const int bottom = size.height() - 2;
  const std::vector<std::pair<QPoint, Qt::CursorShape>> places{
      {{2, 300}, Qt::SizeHorCursor},      {{right, 300}, Qt::SizeHorCursor},  {{300, 2}, Qt::SizeVerCursor},
      {{300, bottom}, Qt::SizeVerCursor}, {{2, 2}, Qt::SizeFDiagCursor},      {{right, bottom}, Qt::SizeFDiagCursor},
      {{right, 2}, Qt::SizeBDiagCursor},  {{2, bottom}, Qt::SizeBDiagCursor}, {{12, 12}, Qt::SizeFDiagCursor},
      {{20, 20}, Qt::ArrowCursor},        {{20, 300}, Qt::ArrowCursor},
  };

  for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
    QGuiApplication::setLayoutDirection(direction);
    for (const auto& [place, shape] : places) {
      QTest::mouseMove(&m_stage.view(), place);
      QCoreApplication::processEvents();
      EXPECT_EQ(m_stage.view().cursor().shape(), shape) << place.x() << "," << place.y();
    }
  }
  QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

}  // namespace
