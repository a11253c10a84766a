#include "Quillmonger/detection/OculetManager.h"

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

std::shared_ptr<const OculetManager> makeOculetManager() {
  OculetManager::Detectors detectors;
  detectors.push_back(std::make_unique<DateDetector>());
  detectors.push_back(std::make_unique<ColorDetector>());
  detectors.push_back(std::make_unique<JsonDetector>());
  return std::make_shared<const OculetManager>(std::move(detectors));
}

}  // namespace quillmonger
