#pragma once

#include <functional>

#include "Foundation/RunLoop.h"
#include "Quillmonger/guide/AccessibilityViewModel.h"
#include "Quillmonger/guide/GettingStartedViewModel.h"
#include "Quillmonger/guide/view/GettingStartedModel.h"
#include "Quillmonger/shell/Quillmonger.h"

namespace quillmonger {

/// What feeds the guide's window. Main thread.
class GuideFeed final {
 public:
  /// `close` is called when the guide is over. `root` and `runLoop` outlive this object.
  GuideFeed(Quillmonger& root, foundation::RunLoop& runLoop, std::function<void()> close);

  [[nodiscard]] GettingStartedModel* model() { return &m_model; }

 private:
  GettingStartedViewModel m_guide;
  AccessibilityViewModel m_accessibility;
  GettingStartedModel m_model;
};

}  // namespace quillmonger
