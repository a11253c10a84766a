#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "Quillmonger/detection/OculetDetectable.h"
#include "Quillmonger/detection/OculetResults.h"

namespace quillmonger {

/// Offers a text to each detector. One serves the whole process. Immutable: any thread.
class OculetManager final {
 public:
  using Detectors = std::vector<std::unique_ptr<const OculetDetectable>>;

  explicit OculetManager(Detectors detectors) : m_detectors(std::move(detectors)) {}

  /// What the detectors have recognised, at most one result each, in their order. `text` is valid UTF-8.
  [[nodiscard]] OculetResults detect(std::string_view text) const;
  /// Whether a text of many thousand bytes with this start may have a result: if not, the rest needn't be read.
  [[nodiscard]] bool mayDetect(std::string_view start) const;

 private:
  const Detectors m_detectors;
};

/// The detectors of dates, colours and JSON, in this order.
[[nodiscard]] OculetManager::Detectors makeDetectors();
/// A manager of these detectors.
[[nodiscard]] std::shared_ptr<const OculetManager> makeOculetManager();

}  // namespace quillmonger
