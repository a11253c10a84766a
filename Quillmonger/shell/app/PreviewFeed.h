#pragma once

#include "Defaults/Defaults.h"
#include "Foundation/BackgroundQueue.h"
#include "Foundation/NotificationCenter.h"
#include "Foundation/RunLoop.h"
#include "Quillmonger/preview/OculetButtons.h"
#include "Quillmonger/preview/OculetCopying.h"
#include "Quillmonger/preview/PreviewOpening.h"
#include "Quillmonger/preview/PreviewViewModel.h"
#include "Quillmonger/preview/view/PreviewModel.h"
#include "Quillmonger/shell/Alert.h"
#include "Quillmonger/shell/Quillmonger.h"

namespace quillmonger {

/// What feeds the preview window, and opens it by itself. Main thread.
class PreviewFeed final {
 public:
  struct Services {
    foundation::NotificationCenter& notificationCenter;
    defaults::Defaults& defaults;
    foundation::BackgroundQueue& backgroundQueue;
    foundation::RunLoop& runLoop;
    LocalEventMonitoring& eventMonitoring;
    ItemInspection& inspection;
    Alert& alert;
  };

  /// All that is named here outlives this object.
  PreviewFeed(Quillmonger& root, const Services& services);

  [[nodiscard]] PreviewModel* model() { return &m_model; }

 private:
  PreviewViewModel m_viewModel;
  OculetCopying m_copying;
  OculetButtons m_buttons;
  PreviewModel m_model;
  PreviewOpening m_opening;
};

}  // namespace quillmonger
