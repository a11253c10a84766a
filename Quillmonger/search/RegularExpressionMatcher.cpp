#include "Quillmonger/search/RegularExpressionMatcher.h"

#include <unicode/uregex.h>
#include <unicode/utext.h>

#include <chrono>

#include "Quillmonger/search/CharacterCursor.h"

namespace quillmonger {

namespace {

using Clock = std::chrono::steady_clock;

// For one text, in ICU's unit of some thousand steps: about a tenth of a second.
constexpr std::int32_t stepLimit = 100;
// For all backtracking of one text, in bytes.
constexpr std::int32_t stackLimit = 8 << 20;
// For all texts of one search together.
constexpr std::chrono::seconds totalTime{10};
// ICU counts in 32 bits.
constexpr std::size_t longestText = 1U << 30U;

// Between two starting points in the text: whether to go on.
UBool isInTime(const void* deadline, std::int64_t /*index*/) {
  return Clock::now() < *static_cast<const Clock::time_point*>(deadline);
}

class Utf8Text final {
 public:
  explicit Utf8Text(std::string_view text) {
    utext_openUTF8(&m_text, text.data(), static_cast<std::int64_t>(text.size()), &m_status);
  }
  Utf8Text(const Utf8Text&) = delete;
  Utf8Text& operator=(const Utf8Text&) = delete;
  ~Utf8Text() { utext_close(&m_text); }
  UText* get() { return &m_text; }

 private:
  UErrorCode m_status = U_ZERO_ERROR;
  UText m_text = UTEXT_INITIALIZER;
};

}  // namespace

struct RegularExpressionMatcher::Engine {
  icu::LocalURegularExpressionPointer expression;
  Clock::time_point deadline;
};

RegularExpressionMatcher::RegularExpressionMatcher(std::string_view expression, const SearchOptions& options) {
  if (expression.size() > longestExpression) return;
  Utf8Text pattern(expression);
  UErrorCode status = U_ZERO_ERROR;
  const std::uint32_t flags = options.isCaseSensitive ? 0 : UREGEX_CASE_INSENSITIVE;
  auto engine = std::make_unique<Engine>();
  engine->expression.adoptInstead(uregex_openUText(pattern.get(), flags, nullptr, &status));
  engine->deadline = Clock::now() + totalTime;
  uregex_setTimeLimit(engine->expression.getAlias(), stepLimit, &status);
  uregex_setStackLimit(engine->expression.getAlias(), stackLimit, &status);
  uregex_setFindProgressCallback(engine->expression.getAlias(), isInTime, &engine->deadline, &status);
  if (U_SUCCESS(status)) m_engine = std::move(engine);
}

RegularExpressionMatcher::~RegularExpressionMatcher() = default;

std::optional<CharacterRange> RegularExpressionMatcher::find(std::string_view text) {
  if (!m_engine || text.size() > longestText || Clock::now() >= m_engine->deadline) return std::nullopt;
  Utf8Text input(text);
  auto* expression = m_engine->expression.getAlias();
  UErrorCode status = U_ZERO_ERROR;
  uregex_setUText(expression, input.get(), &status);
  const bool isFound = uregex_find64(expression, 0, &status) != 0;
  const auto start = uregex_start64(expression, 0, &status);
  const auto end = uregex_end64(expression, 0, &status);
  if (!isFound || U_FAILURE(status)) return std::nullopt;
  return characterRange(text, static_cast<std::size_t>(start), static_cast<std::size_t>(end));
}

}  // namespace quillmonger
