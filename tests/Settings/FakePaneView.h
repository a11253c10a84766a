#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Settings/Pane.h"

namespace testsupport {

/// A pane's view without anything to see.
class FakePaneView final : public settings::PaneView {
 public:
  explicit FakePaneView(settings::Size size) : m_size(size) {}

  [[nodiscard]] settings::Size fittingSize() override { return m_size; }
  void setAlpha(double alpha) override { m_alpha = alpha; }
  void onFittingSizeChanged(std::function<void()> changed) override { m_changed = std::move(changed); }

  [[nodiscard]] double alpha() const { return m_alpha; }
  void resize(settings::Size size) {
    m_size = size;
    m_changed();
  }

 private:
  settings::Size m_size;
  double m_alpha = 0;
  std::function<void()> m_changed;
};

/// Panes with the identifiers "first", "second" and so on, and titles of their own.
class FakePanes final {
 public:
  explicit FakePanes(const std::vector<settings::Size>& sizes) {
    static const std::vector<std::string> names{"first", "second", "third"};
    for (std::size_t index = 0; index < sizes.size(); ++index) {
      auto view = std::make_unique<FakePaneView>(sizes[index]);
      m_views.push_back(view.get());
      m_panes.push_back(
          {{names.at(index)}, "The " + names.at(index), {"icon/" + names.at(index), "Picture"}, std::move(view)});
    }
  }

  /// For the one controller that shows them.
  [[nodiscard]] std::vector<settings::Pane> take() { return std::move(m_panes); }
  [[nodiscard]] FakePaneView& view(std::size_t index) { return *m_views.at(index); }

 private:
  std::vector<FakePaneView*> m_views;
  std::vector<settings::Pane> m_panes;
};

}  // namespace testsupport
