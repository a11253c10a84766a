#include "Quillmonger/search/FoldedText.h"

#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/stringpiece.h>
#include <unicode/uchar.h>

#include <cstdint>

#include "Quillmonger/search/CharacterCursor.h"

namespace quillmonger {

namespace {

icu::StringPiece piece(std::string_view text) { return {text.data(), static_cast<std::int32_t>(text.size())}; }

// Back through one change of the text; absent when the offset isn't one of the text before it.
std::optional<std::int32_t> before(const icu::Edits& edits, std::int32_t offset) {
  if (!edits.hasChanges()) return offset;
  UErrorCode status = U_ZERO_ERROR;
  auto backward = edits.getFineIterator();
  const std::int32_t source = backward.sourceIndexFromDestinationIndex(offset, status);
  auto forward = edits.getFineIterator();
  const std::int32_t again = forward.destinationIndexFromSourceIndex(source, status);
  if (U_FAILURE(status) || again != offset) return std::nullopt;
  return source;
}

}  // namespace

bool hasTurkicCase() {
  const std::string_view language = icu::Locale::getDefault().getLanguage();
  return language == "tr" || language == "az";
}

FoldedText::FoldedText(std::string_view text, Case letterCase) {
  UErrorCode status = U_ZERO_ERROR;
  const auto* composer = icu::Normalizer2::getNFCInstance(status);
  std::string composed;
  if (U_SUCCESS(status) && !composer->isNormalizedUTF8(piece(text), status)) {
    compose(*composer, text, composed, status);
    text = composed;
  }
  if (letterCase == Case::folded) {
    icu::StringByteSink<std::string> sink(&m_folded);
    const std::uint32_t option = hasTurkicCase() ? U_FOLD_CASE_EXCLUDE_SPECIAL_I : U_FOLD_CASE_DEFAULT;
    icu::CaseMap::utf8Fold(option, piece(text), sink, &m_folding, status);
  } else {
    m_folded = text;
  }
  if (U_FAILURE(status)) m_folded.clear();
}

// Character by character, since nothing composes across two: ICU would report what it composes in longer stretches,
// which an occurrence can begin or end in.
void FoldedText::compose(const icu::Normalizer2& composer, std::string_view text, std::string& composed,
                         UErrorCode& status) {
  CharacterCursor cursor(text);
  std::string character;
  for (std::size_t start = 0, end = 0; start < text.size(); start = end) {
    do {
      ++end;
    } while (!cursor.advanceTo(end));
    character.clear();
    icu::StringByteSink<std::string> sink(&character);
    composer.normalizeUTF8(0, piece(text.substr(start, end - start)), sink, nullptr, status);
    const auto length = static_cast<std::int32_t>(end - start);
    if (character == text.substr(start, end - start)) {
      m_composing.addUnchanged(length);
    } else {
      m_composing.addReplace(length, static_cast<std::int32_t>(character.size()));
    }
    composed += character;
  }
}

std::optional<std::size_t> FoldedText::sourceOffset(std::size_t offset) const {
  const auto composed = before(m_folding, static_cast<std::int32_t>(offset));
  if (!composed) return std::nullopt;
  const auto source = before(m_composing, *composed);
  if (!source) return std::nullopt;
  return static_cast<std::size_t>(*source);
}

}  // namespace quillmonger
