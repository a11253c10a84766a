#include "Quillmonger/search/RegularExpressionMatcher.h"

#include <unicode/unistr.h>
#include <unicode/uregex.h>
#include <unicode/ustring.h>
#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include <chrono>
#include <string>

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

struct Deadline {
  Clock::time_point moment;
  std::uint32_t askedCount = 0;

  [[nodiscard]] bool isPast() const { return Clock::now() >= moment; }
};

// Asked at each starting point in a text whether to go on; the clock is looked at now and then.
UBool isInTime(const void* context, std::int64_t /*index*/) {
  auto& deadline = *const_cast<Deadline*>(static_cast<const Deadline*>(context));
  constexpr std::uint32_t askedPerLook = 256;
  return ++deadline.askedCount % askedPerLook != 0 || !deadline.isPast();
}

// The byte at which the code unit `unitOffset` of the text's UTF-16 form lies.
std::size_t byteOffset(std::string_view text, std::size_t unitOffset) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  std::size_t at = 0;
  for (std::size_t units = 0; units < unitOffset && at < text.size();) {
    UChar32 character = 0;
    U8_NEXT(bytes, at, text.size(), character);
    units += U16_LENGTH(character);
  }
  return at;
}

}  // namespace

struct RegularExpressionMatcher::Engine {
  icu::LocalURegularExpressionPointer expression;
  Deadline deadline;
  std::u16string text;  // kept from one text to the next for its memory

  bool setText(std::string_view utf8) {
    text.resize(utf8.size());  // never fewer bytes than code units
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t length = 0;
    u_strFromUTF8(text.data(), static_cast<std::int32_t>(text.size()), &length, utf8.data(),
                  static_cast<std::int32_t>(utf8.size()), &status);
    text.resize(static_cast<std::size_t>(length));
    status = U_ZERO_ERROR;  // no room for a closing NUL, which isn't wanted
    uregex_setText(expression.getAlias(), text.data(), length, &status);
    return U_SUCCESS(status) != 0;
  }
};

RegularExpressionMatcher::RegularExpressionMatcher(std::string_view expression, const SearchOptions& options) {
  if (expression.size() > longestExpression) return;
  const auto pattern = icu::UnicodeString::fromUTF8({expression.data(), static_cast<std::int32_t>(expression.size())});
  const std::uint32_t flags = options.isCaseSensitive ? 0 : UREGEX_CASE_INSENSITIVE;
  UErrorCode status = U_ZERO_ERROR;
  auto engine = std::make_unique<Engine>();
  engine->expression.adoptInstead(uregex_open(pattern.getBuffer(), pattern.length(), flags, nullptr, &status));
  engine->deadline.moment = Clock::now() + totalTime;
  uregex_setTimeLimit(engine->expression.getAlias(), stepLimit, &status);
  uregex_setStackLimit(engine->expression.getAlias(), stackLimit, &status);
  uregex_setFindProgressCallback(engine->expression.getAlias(), isInTime, &engine->deadline, &status);
  if (U_SUCCESS(status)) m_engine = std::move(engine);
}

RegularExpressionMatcher::~RegularExpressionMatcher() = default;

std::optional<CharacterRange> RegularExpressionMatcher::find(std::string_view text) {
  if (!m_engine || text.empty() || text.size() > longestText || m_engine->deadline.isPast()) return std::nullopt;
  if (!m_engine->setText(text)) return std::nullopt;
  auto* expression = m_engine->expression.getAlias();
  UErrorCode status = U_ZERO_ERROR;
  const bool isFound = uregex_find64(expression, 0, &status) != 0;
  const auto start = uregex_start64(expression, 0, &status);
  const auto end = uregex_end64(expression, 0, &status);
  if (!isFound || U_FAILURE(status)) return std::nullopt;
  return characterRange(text, byteOffset(text, static_cast<std::size_t>(start)),
                        byteOffset(text, static_cast<std::size_t>(end)));
}

}  // namespace quillmonger
