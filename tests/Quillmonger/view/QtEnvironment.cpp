#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QQuickWindow>
#include <memory>

#include "Quillmonger/resources/EmojiFont.h"
#include "Quillmonger/resources/Texts.h"

namespace {

// The application object that every view needs, on no display.
class QtEnvironment final : public testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    m_application = std::make_unique<QGuiApplication>(m_argumentCount, m_arguments);
    quillmonger::preferColourEmoji();
    QCoreApplication::installTranslator(&m_texts);
  }
  void TearDown() override { m_application.reset(); }

 private:
  char m_name[5] = "test";
  char* m_arguments[2] = {m_name, nullptr};
  int m_argumentCount = 1;
  quillmonger::Texts m_texts;
  std::unique_ptr<QGuiApplication> m_application;
};

[[maybe_unused]] const auto* const environment = testing::AddGlobalTestEnvironment(new QtEnvironment);

}  // namespace
