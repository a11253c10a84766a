#include "Quillmonger/detection/OculetManager.h"

#include <algorithm>
#include <utility>

#include "Quillmonger/detection/ColorDetector.h"
#include "Quillmonger/detection/DateDetector.h"
#include "Quillmonger/detection/JsonDetector.h"

namespace quillmonger {

OculetResults OculetManager::detect(std::string_view text) const {
  OculetResults results;
  for (const auto& detector : m_detectors) {
    if (auto result = detector->detect(text)) results.push_back(std::move(result));
  }
  return results;
}

bool OculetManager::mayDetect(std::string_view start) const {
  return std::any_of(m_detectors.begin(), m_detectors.end(),
                     [start](const auto& detector) { return detector->mayDetect(start); });
}

OculetManager::Detectors makeDetectors() {
  OculetManager::Detectors detectors;
  detectors.push_back(std::make_unique<DateDetector>());
  detectors.push_back(std::make_unique<ColorDetector>());
  detectors.push_back(std::make_unique<JsonDetector>());
  return detectors;
}

std::shared_ptr<const OculetManager> makeOculetManager() {
  return std::make_shared<const OculetManager>(makeDetectors());
}

}  // namespace quillmonger
