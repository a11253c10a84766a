#include <gtest/gtest.h>
#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <array>
#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "Quillmonger/search/SearchManager.h"
#include "Quillmonger/settings/SettingsKeys.h"
#include "tests/Quillmonger/search/Note.h"
#include "tests/support/InLocale.h"
#include "tests/support/InlineBackgroundQueue.h"
#include "tests/support/TestDefaults.h"
#include "tests/support/VirtualRunLoop.h"

// Whole searches over random texts, compared with the definition: the first run of characters whose common form is that
// of the term.

namespace {

using quillmonger::CharacterRange;
using quillmonger::SearchItems;
using quillmonger::SearchManager;
using testsupport::Note;
namespace keys = quillmonger::keys;

// What folds, composes, joins or looks alike in some script.
constexpr std::array<const char*, 48> pieces{
    "ά",      "Α",      "\u0345", "ا",      "\u0654",     "ب",          "か",     "\u3099", "a",      "A",
    "b",      "s",      "S",      "\u00DF", "\u1E9E",     "\u017F",     "i",      "I",      "ı",      "İ",
    "Σ",      "σ",      "ς",      "e",      "\u0301",     "é",          "É",      "k",      "\u212A", "f",
    "\uFB01", "\uFB03", " ",      "\n",     "\r",         "\r\n",       "\u1112", "\u1161", "\u11AB", "한",
    "👍",      "🏽",   "\u200D", "👩",      "\U0001F1E9", "\U0001F1EA", "क",      "ि"};

std::string randomText(std::mt19937& random, std::size_t pieceCount) {
  std::string text;
  for (; pieceCount > 0; --pieceCount)
    text += pieces[random() % pieces.size()];
  return text;
}

std::vector<icu::UnicodeString> characters(const icu::UnicodeString& text) {
  UErrorCode status = U_ZERO_ERROR;
  static const std::unique_ptr<icu::BreakIterator> breaks(
      icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
  breaks->setText(text);
  std::vector<icu::UnicodeString> all;
  for (std::int32_t start = breaks->first(), end = breaks->next(); end != icu::BreakIterator::DONE;
       start = end, end = breaks->next())
    all.emplace_back(text, start, end - start);
  return all;
}

enum class Case { sensitive, insensitive };

icu::UnicodeString commonForm(const icu::UnicodeString& text, Case letterCase) {
  UErrorCode status = U_ZERO_ERROR;
  auto common = icu::Normalizer2::getNFCInstance(status)->normalize(text, status);
  const bool isTurkish = std::string(icu::Locale::getDefault().getLanguage()) == "tr";
  if (letterCase == Case::insensitive) {
    common.foldCase(isTurkish ? U_FOLD_CASE_EXCLUDE_SPECIAL_I : U_FOLD_CASE_DEFAULT);
  }
  return common;
}

std::optional<CharacterRange> expectedMatch(const std::vector<icu::UnicodeString>& all, const std::string& term,
                                            Case letterCase) {
  const auto wanted = commonForm(icu::UnicodeString::fromUTF8(term), letterCase);
  for (std::size_t lower = 0; lower < all.size(); ++lower) {
    icu::UnicodeString run;
    for (std::size_t upper = lower; upper < all.size(); ++upper) {
      run += all[upper];
      if (commonForm(run, letterCase) == wanted) return CharacterRange{lower, upper};
      if (run.length() > 3 * wanted.length() + 4) break;  // more than any folding adds
    }
  }
  return std::nullopt;
}

class SearchProperty : public testing::TestWithParam<const char*> {
 protected:
  std::map<const Note*, std::optional<CharacterRange>> find(const std::vector<std::shared_ptr<Note>>& notes,
                                                            const std::string& term) {
    std::map<const Note*, std::optional<CharacterRange>> found;
    m_manager.search(SearchItems<Note>(notes), term, [&found](const auto& results) {
      for (std::size_t row = 0; row < results->size(); ++row)
        found[results->at(row).item] = results->at(row).match;
    });
    m_queue.run();
    m_runLoop.runPosted();
    return found;
  }

  testsupport::TestDefaults m_settings;

 private:
  testsupport::InLocale m_locale{GetParam()};
  testsupport::VirtualRunLoop m_runLoop;
  testsupport::InlineBackgroundQueue m_queue;
  SearchManager<Note> m_manager{m_queue, m_runLoop, m_settings.defaults};
};

TEST_P(SearchProperty, FindsTheFirstRunOfCharactersThatIsTheTerm) {
  std::mt19937 random(20);
  std::vector<std::shared_ptr<Note>> notes;
  std::vector<std::vector<icu::UnicodeString>> noteCharacters;
  for (int count = 0; count < 520; ++count) {
    auto text = randomText(random, random() % 10);
    // Some too long to be prepared.
    if (count % 50 == 0) text = std::string(1100, 'x') + text;
    noteCharacters.push_back(characters(icu::UnicodeString::fromUTF8(text)));
    notes.push_back(std::make_shared<Note>(std::move(text), std::chrono::seconds(count)));
  }
  for (int round = 0; round < 6; ++round) {
    const auto term = randomText(random, 1 + random() % 3);
    for (const auto letterCase : {Case::sensitive, Case::insensitive}) {
      m_settings.defaults.set(keys::searchCaseSensitive, letterCase == Case::sensitive);
      const auto found = find(notes, term);
      for (std::size_t index = 0; index < notes.size(); ++index) {
        const auto* const note = notes[index].get();
        const auto expected = expectedMatch(noteCharacters[index], term, letterCase);
        ASSERT_EQ(found.contains(note), expected.has_value()) << '"' << note->text().view << "\" and \"" << term << '"';
        if (!expected) continue;
        ASSERT_EQ(found.at(note), expected) << '"' << note->text().view << "\" and \"" << term << '"';
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Locales, SearchProperty, testing::Values("en_US", "de_DE", "tr_TR", "el_GR", "ar_EG", "ja_JP"),
                         [](const auto& locale) { return std::string(locale.param); });

}  // namespace
