#pragma once

#include "Quillmonger/shell/Alert.h"

class QQmlEngine;

namespace quillmonger {

class Appearance;

/// An alert as a window of its own, with an event loop of its own: it works before the program's loop runs, too.
class QtAlert final : public Alert {
 public:
  /// Both outlive this object. The engine knows the types of "Quillmonger.Resources" and "Quillmonger.Shell".
  QtAlert(QQmlEngine& engine, Appearance& appearance);

  int runModal(const Content& content) override;

 private:
  QQmlEngine& m_engine;
  Appearance& m_appearance;
};

}  // namespace quillmonger
