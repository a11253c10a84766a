#include <gtest/gtest.h>

#include <QTest>

#include "tests/gallery/SettingsStage.h"

namespace {

using Page = quillmonger::AboutModel::Page;

class AboutView : public testing::Test {
 protected:
  QString textOf(const char* identifier) {
    return testsupport::find(m_stage.about(), QLatin1String(identifier))->property("text").toString();
  }
  void click(const char* identifier) {
    const auto* button = testsupport::find(m_stage.about(), QLatin1String(identifier));
    QTest::mouseClick(&m_stage.about(), Qt::LeftButton, {},
                      button->mapToScene(button->boundingRect().center()).toPoint());
  }

  testsupport::SettingsStage m_stage;
};

TEST_F(AboutView, ShowsIconNameAndVersion) {
  EXPECT_NE(testsupport::find(m_stage.about(), "AppIcon"), nullptr);
  EXPECT_EQ(textOf("AppNameText"), "Quillmonger");
  EXPECT_EQ(textOf("VersionText"), "Version 1.2.3");
}

TEST_F(AboutView, HasTheNameInFortyPoints) {
  const auto* name = testsupport::find(m_stage.about(), "AppNameText");

  EXPECT_EQ(name->property("font").value<QFont>().pixelSize(), 40);
}

TEST_F(AboutView, OpensAPageWithEachButton) {
  for (const char* identifier : {"PrivacyButton", "AcknowledgementsButton", "WebsiteButton"})
    click(identifier);

  EXPECT_EQ(m_stage.openedPages(), (std::vector<Page>{Page::privacy, Page::acknowledgements, Page::website}));
}

TEST_F(AboutView, KeepsEverythingAboveTheButtons) {
  const auto lines = testsupport::findAll(m_stage.about(), "VersionText");
  const auto* rights = lines.front()->parentItem();

  EXPECT_LE(rights->mapToScene(QPointF(0, rights->height())).y(),
            testsupport::find(m_stage.about(), "PrivacyButton")->mapToScene(QPointF()).y());
}

}  // namespace
