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

void OculetCopying::copy(std::function<std::string()> text, Copied copied) {
  m_work.start([this, text = std::move(text), copied = std::move(copied)]() -> LatestWork::Finish {
    return [this, data = foundation::Data(text()), copied] { write(data, copied); };
  });
}

void OculetCopying::copyJson(std::shared_ptr<const OculetResults> results, JsonForm form, Copied copied) {
  m_work.start([this, results = std::move(results), form, copied = std::move(copied)]() -> LatestWork::Finish {
    return [this, data = rewritten(*results, form), copied] { data ? write(*data, copied) : m_with.showAlert(); };
  });
}

void OculetCopying::write(const foundation::Data& text, const Copied& copied) {
  m_with.writeToPasteboard(text);
  copied(text);
}

}  // namespace quillmonger
