#pragma once

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QQuickWindow>
#include <memory>

namespace testsupport {

/// The application object that every adapter and every view needs, on no display.
class QtEnvironment : public testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    m_application = std::make_unique<QGuiApplication>(m_argumentCount, m_arguments);
  }
  void TearDown() override { m_application.reset(); }

 private:
  char m_name[5] = "test";
  char* m_arguments[2] = {m_name, nullptr};
  int m_argumentCount = 1;
  std::unique_ptr<QGuiApplication> m_application;
};

}  // namespace testsupport
