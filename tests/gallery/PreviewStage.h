#pragma once

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Foundation/Published.h"
#include "Quillmonger/preview/OculetButtons.h"
#include "Quillmonger/preview/OculetCopying.h"
#include "Quillmonger/preview/PreviewViewModel.h"
#include "Quillmonger/preview/view/PreviewModel.h"
#include "Quillmonger/resources/Appearance.h"
#include "tests/support/FakeLocalEventMonitor.h"
#include "tests/support/InlineBackgroundQueue.h"
#include "tests/support/ItemServices.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/VirtualRunLoop.h"

namespace testsupport {

/// The preview window's real views on state that the caller sets. Needs the application object.
class PreviewStage final {
 public:
  using Item = quillmonger::PreviewViewModel::Item;

  PreviewStage();
  ~PreviewStage();

  /// An item of one type, copied 3 hours ago from an application of this name, if any.
  Item makeItem(std::string bytes, std::string_view type = "public.utf8-plain-text", const std::string& appName = {});
  /// An encoded picture of this size.
  Item makePicture(int width, int height, const std::string& appName = {});
  /// Selects an item; null for none. What is loaded beside the main thread comes with `load`.
  void select(const Item& item) { m_selectedItem.set(item); }
  void load();
  void setWindowVisible(bool isVisible) { m_isWindowVisible.set(isVisible); }

  defaults::Defaults& defaults() { return m_itemServices.settings.defaults; }
  FakePictureReading& pictures() { return m_itemServices.pictures; }
  /// What was copied, oldest first.
  [[nodiscard]] const std::vector<std::string>& copies() const { return m_copies; }
  [[nodiscard]] int alertCount() const { return m_alertCount; }
  [[nodiscard]] int settingsCount() const { return m_settingsCount; }

  quillmonger::PreviewModel& model() { return m_model; }
  FakeLocalEventMonitor& keyboard() { return m_keyboard; }
  void setOptionPressed(bool isPressed) { m_isOptionPressed.set(isPressed); }

  /// Builds the view tree, once, and lays it out.
  QQuickView& view();
  /// The first shown item with this accessibility identifier; null when none is.
  QQuickItem* find(const QString& identifier);
  /// All of them, from top to bottom.
  std::vector<QQuickItem*> findAll(const QString& identifier);

 private:
  [[nodiscard]] std::optional<foundation::Url> application(const std::string& name);

  TemporaryFolder m_folder;
  ItemServices m_itemServices;
  VirtualRunLoop m_runLoop;
  FakeLocalEventMonitor m_keyboard;
  InlineBackgroundQueue m_queue;
  foundation::Published<Item> m_selectedItem;
  foundation::Published<bool> m_isWindowVisible{true};
  foundation::Published<bool> m_isOptionPressed{false};
  std::vector<std::string> m_copies;
  int m_alertCount = 0;
  int m_settingsCount = 0;
  quillmonger::Appearance m_appearance;
  quillmonger::PreviewViewModel m_viewModel;
  quillmonger::OculetCopying m_copying;
  quillmonger::OculetButtons m_buttons;
  quillmonger::PreviewModel m_model;
  QQmlEngine m_engine;
  std::unique_ptr<QQuickView> m_view;
};

}  // namespace testsupport
