#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "Quillmonger/update/UpdateAnswer.h"
#include "Quillmonger/update/UpdateFeed.h"
#include "Quillmonger/update/feed/Appcast.h"
#include "Quillmonger/update/feed/SignedFeed.h"
#include "tests/fuzz/Check.h"

namespace {

namespace appcast = quillmonger::appcast;
namespace updateanswer = quillmonger::updateanswer;

void checkFeed(std::string_view text) {
  const auto updates = appcast::parse(text);
  if (!updates) return;
  fuzz::check(updates->size() <= appcast::itemLimit);
  for (const auto& update : *updates) {
    fuzz::check(update.url.scheme() == "https" && update.notes.size() <= appcast::notesLimit);
    fuzz::check(update.length > 0 && update.length <= quillmonger::Update::lengthLimit);
    fuzz::check(updateanswer::decode(updateanswer::encode(update)) == std::optional(std::optional(update)));
  }
  const auto own = quillmonger::SoftwareVersion::parse("1.0");
  const auto newest = appcast::newest(*updates, *own);
  fuzz::check(!newest || *quillmonger::SoftwareVersion::parse(newest->version) > *own);
}

}  // namespace

// Nobody has signed what comes here; whatever a feed offers is complete, by HTTPS and of a bounded size.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(bytes), size);
  static const auto key = quillmonger::parsePublicKey("PUAXw+hDiVqStwqnTRt+vJyYLM8uxJaMwM1V8Sr0Zgw=");
  fuzz::check(!quillmonger::signedPart(text, *key));
  static_cast<void>(updateanswer::decode(text));
  static_cast<void>(quillmonger::UpdateFeed::parse(text));
  checkFeed(text);
  return 0;
}
