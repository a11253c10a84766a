#pragma once

#include <functional>

#include "Quillmonger/shell/Alert.h"

class QQmlEngine;

namespace quillmonger {

class Appearance;

/// An alert as a window of its own, with an event loop of its own: it works before the program's loop runs, too.
class QtAlert final : public Alert {
 public:
  /// `engine` gives one that knows the types of "Quillmonger.Resources"; it is asked when an
  /// alert is shown. Both outlive this object.
  QtAlert(std::function<QQmlEngine&()> engine, Appearance& appearance);

  int runModal(const Content& content) override;

 private:
  std::function<QQmlEngine&()> m_engine;
  Appearance& m_appearance;
};

}  // namespace quillmonger
