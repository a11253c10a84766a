#include "Quillmonger/preview/OculetCopying.h"

#include <optional>
#include <utility>

namespace quillmonger {

namespace {

std::optional<foundation::Data> rewritten(const OculetResults& results, JsonForm form) {
  const auto* json = jsonResult(results);
  if (json == nullptr) return std::nullopt;
  auto text = form == JsonForm::beautified ? json->beautified() : json->minified();
  return text ? std::optional(foundation::Data(*std::move(text))) : std::nullopt;
}

}  // namespace

OculetCopying::OculetCopying(Collaborators collaborators)
    : m_with(std::move(collaborators)), m_work(m_with.backgroundQueue, m_with.runLoop) {}

void OculetCopying::copy(std::function<std::string()> text) {
  m_work.start([this, text = std::move(text)]() -> LatestWork::Finish {
    return [this, data = foundation::Data(text())] { m_with.writeToPasteboard(data); };
  });
}

void OculetCopying::copyJson(std::shared_ptr<const OculetResults> results, JsonForm form) {
  m_work.start([this, results = std::move(results), form]() -> LatestWork::Finish {
    return [this, data = rewritten(*results, form)] { data ? m_with.writeToPasteboard(*data) : m_with.showAlert(); };
  });
}

}  // namespace quillmonger
