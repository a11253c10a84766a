#include "Quillmonger/capture/SystemApp.h"

#include <utility>

namespace quillmonger {

SystemApp SystemApp::make(std::string name, std::string bundleIdentifier, foundation::Url url) {
  std::string path = url.filePath().value_or("");
  while (path.size() > 1 && path.back() == '/')
    path.pop_back();
  return {foundation::Uuid::random(), std::move(name), std::move(path), std::move(bundleIdentifier), std::move(url)};
}

}  // namespace quillmonger
