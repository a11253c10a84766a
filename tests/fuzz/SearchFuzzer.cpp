#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Foundation/Text.h"
#include "Quillmonger/search/PreparedTexts.h"
#include "Quillmonger/search/TextMatcher.h"
#include "tests/fuzz/Check.h"

// Term and text stand on both sides of the first line end. What is found lies in the text, and the prepared text never
// hides what the text itself has.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  if (size == 0) return 0;
  const std::string input = foundation::toValidUtf8({reinterpret_cast<const char*>(bytes) + 1, size - 1});
  const auto end = input.find('\n');
  if (end == std::string::npos) return 0;
  const std::string_view term = std::string_view(input).substr(0, end);
  const std::string_view text = std::string_view(input).substr(end + 1);
  const quillmonger::SearchOptions options{(bytes[0] & 1U) != 0, (bytes[0] & 2U) != 0, false};
  if (quillmonger::isInert(term, options)) return 0;
  const auto matcher = quillmonger::makeTextMatcher(term, options);
  const auto match = matcher->find(text);
  if (!match) return 0;
  fuzz::check(match->lower <= match->upper && match->lower <= text.size());
  quillmonger::PreparedTexts prepared;
  prepared.add(quillmonger::SharedText{nullptr, text});
  const bool isKnown = prepared.kind(0) != quillmonger::PreparedTexts::Kind::unprepared;
  if (isKnown && !matcher->foldedTerm().empty()) fuzz::check(prepared.find(matcher->foldedTerm(), 0, 1).has_value());
  return 0;
}
