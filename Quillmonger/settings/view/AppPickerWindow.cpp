#include "Quillmonger/settings/view/AppPickerWindow.h"

#include <QQmlEngine>
#include <QQuickView>
#include <utility>

#include "Foundation/Fatal.h"
#include "Quillmonger/resources/Texts.h"
#include "Quillmonger/settings/view/AppPickerModel.h"

namespace quillmonger {

namespace {

constexpr QSize usualSize(440, 500);
constexpr QSize leastSize(340, 300);

}  // namespace

/// One choice: the window and what it shows.
class AppPickerWindow::Session final {
 public:
  Session(const Surroundings& surroundings, Completion completion, Completion end)
      : m_completion(std::move(completion)),
        m_viewModel(surroundings.applications, std::move(end)),
        m_model(m_viewModel, surroundings.clipboardText),
        m_view(&surroundings.engine(), nullptr) {
    m_view.setFlags(Qt::Dialog);
    m_view.setModality(Qt::WindowModal);
    m_view.setTitle(QString::fromStdString(localizedText("app_picker_title")));
    m_view.setResizeMode(QQuickView::SizeRootObjectToView);
    m_view.setMinimumSize(leastSize);
    m_view.resize(usualSize);
    m_view.setInitialProperties(
        {{"model", QVariant::fromValue(&m_model)}, {"appearance", QVariant::fromValue(&surroundings.appearance)}});
    m_view.setSource(QUrl(QStringLiteral("qrc:/qt-project.org/imports/Quillmonger/Settings/AppPickerView.qml")));
    if (m_view.rootObject() == nullptr) foundation::stopProcess("A window's content could not be loaded.");
    follow(surroundings.parent());
    m_view.show();
    m_view.requestActivate();
  }

  [[nodiscard]] QQuickView& view() { return m_view; }
  [[nodiscard]] const Completion& completion() const { return m_completion; }

 private:
  // However the window goes, by its frame or with the one that it belongs to, nothing has been chosen.
  void follow(QWindow* parent) {
    m_view.setTransientParent(parent);
    const auto cancelWhenHidden = [this](bool isVisible) {
      if (!isVisible) m_viewModel.cancel();
    };
    QObject::connect(&m_view, &QWindow::visibleChanged, &m_model, cancelWhenHidden);
    if (parent != nullptr) QObject::connect(parent, &QWindow::visibleChanged, &m_model, cancelWhenHidden);
  }

  Completion m_completion;
  AppPickerViewModel m_viewModel;
  AppPickerModel m_model;
  QQuickView m_view;
};

AppPickerWindow::AppPickerWindow(Surroundings surroundings) : m_surroundings(std::move(surroundings)) {}

AppPickerWindow::~AppPickerWindow() { close(); }

void AppPickerWindow::pickApplication(Completion completion) {
  if (m_session) {
    m_session->view().requestActivate();
    m_surroundings.applications.runLoop.post([completion = std::move(completion)] { completion(std::nullopt); });
    return;
  }
  m_session =
      std::make_unique<Session>(m_surroundings, std::move(completion), [this](const auto& location) { end(location); });
}

void AppPickerWindow::close() { m_session.reset(); }

// In a later turn, since one of the window's own items is what ended the choice.
void AppPickerWindow::end(const std::optional<foundation::Url>& location) {
  if (!m_session) return;
  m_session->view().hide();
  m_surroundings.applications.runLoop.post([this, isAlive = std::weak_ptr(m_isAlive), location] {
    if (isAlive.expired() || !m_session) return;
    const Completion completion = m_session->completion();
    m_session.reset();
    completion(location);
  });
}

}  // namespace quillmonger
