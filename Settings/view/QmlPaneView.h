#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QUrl>
#include <QVariantMap>
#include <functional>

#include "Settings/PaneView.h"

namespace settings {

/// A pane's view from a QML file. Its item is made when it is first needed, and goes with the one that holds it.
class QmlPaneView final : public PaneView {
 public:
  /// The item that holds the panes, of a loaded window.
  using Parent = std::function<QQuickItem&()>;
  using Properties = std::function<QVariantMap()>;

  /// `properties` are those that the file's item requires, asked when it is made. The objects that they name outlive
  /// the item.
  QmlPaneView(Parent parent, QUrl source, Properties properties);

  /// A file that can't be loaded is a fault of the program and stops it.
  [[nodiscard]] Size fittingSize() override;
  void setAlpha(double alpha) override;
  void onFittingSizeChanged(std::function<void()> changed) override { m_changed = std::move(changed); }

 private:
  QQuickItem& item();

  Parent m_parent;
  QUrl m_source;
  Properties m_properties;
  std::function<void()> m_changed;
  QPointer<QQuickItem> m_item;
};

}  // namespace settings
