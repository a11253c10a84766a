#include "Quillmonger/shell/view/QtAlert.h"

#include <QEventLoop>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <utility>

#include "Quillmonger/resources/Appearance.h"

namespace quillmonger {

namespace {

QStringList texts(const std::vector<std::string>& strings) {
  QStringList list;
  for (const std::string& string : strings)
    list.append(QString::fromStdString(string));
  return list;
}

// Ends the loop with the last answer when the window is closed.
class CloseFilter final : public QObject {
 public:
  CloseFilter(QEventLoop& loop, int answer) : m_loop(loop), m_answer(answer) {}

 private:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Close) m_loop.exit(m_answer);
    return false;
  }

  QEventLoop& m_loop;
  int m_answer;
};

// Connects QML's signal to a loop's end, which takes an object of a meta type.
class Answer final : public QObject {
  Q_OBJECT

 public:
  explicit Answer(QEventLoop& loop) : m_loop(loop) {}

 public slots:
  void give(int index) { m_loop.exit(Alert::firstButton + index); }

 private:
  QEventLoop& m_loop;
};

}  // namespace

QtAlert::QtAlert(std::function<QQmlEngine&()> engine, Appearance& appearance)
    : m_engine(std::move(engine)), m_appearance(appearance) {}

int QtAlert::runModal(const Content& content) {
  const int lastAnswer = firstButton + static_cast<int>(content.buttons.size()) - 1;
  QQuickView view(&m_engine(), nullptr);
  view.setFlags(Qt::Dialog | Qt::WindowStaysOnTopHint);
  view.setModality(Qt::ApplicationModal);
  view.setTitle(QString::fromStdString(content.message));
  view.setInitialProperties({{"message", QString::fromStdString(content.message)},
                             {"informativeText", QString::fromStdString(content.informativeText)},
                             {"buttons", texts(content.buttons)},
                             {"appearance", QVariant::fromValue(&m_appearance)}});
  view.setSource(QUrl(QStringLiteral("qrc:/qt-project.org/imports/Quillmonger/Shell/AlertView.qml")));
  if (view.rootObject() == nullptr) return lastAnswer;
  QEventLoop loop;
  Answer answer(loop);
  CloseFilter closing(loop, lastAnswer);
  view.installEventFilter(&closing);
  QObject::connect(view.rootObject(), SIGNAL(answered(int)), &answer, SLOT(give(int)));
  view.setMinimumSize(view.size());
  view.setMaximumSize(view.size());
  view.show();
  view.requestActivate();
  return loop.exec();
}

}  // namespace quillmonger

#include "QtAlert.moc"
