#include "Quillmonger/settings/panes/ApplicationFinder.h"

#include <unicode/coll.h>
#include <unicode/locid.h>
#include <unicode/translit.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <utility>

#include "Foundation/Text.h"

namespace quillmonger {

namespace {

icu::UnicodeString wide(std::string_view text) {
  return icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
}

// "POSIX" is the order of the characters' codes, which is no order for people.
icu::Locale alphabetOfUser() {
  const auto locale = icu::Locale::getDefault();
  return std::string_view(locale.getVariant()) == "POSIX" ? icu::Locale::getRoot() : locale;
}

// Sorts as a bytewise comparison does.
std::string collationKey(const icu::Collator* collator, const std::string& name) {
  if (collator == nullptr) return name;
  const icu::UnicodeString text = wide(name);
  std::string key(static_cast<std::size_t>(collator->getSortKey(text, nullptr, 0)), '\0');
  collator->getSortKey(text, reinterpret_cast<std::uint8_t*>(key.data()), static_cast<std::int32_t>(key.size()));
  return key;
}

void sortByName(std::vector<InstalledApplication>& applications) {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::Collator> collator(icu::Collator::createInstance(alphabetOfUser(), status));
  std::vector<std::pair<std::string, std::size_t>> order;
  for (std::size_t index = 0; index < applications.size(); ++index) {
    const auto& application = applications[index];
    order.emplace_back(collationKey(collator.get(), application.name) + application.identifier, index);
  }
  std::ranges::sort(order);
  std::vector<InstalledApplication> sorted;
  for (const auto& [key, index] : order)
    sorted.push_back(std::move(applications[index]));
  applications = std::move(sorted);
}

bool isAscii(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

// The usual case, a hundred times faster than what other letters need.
std::string lowered(std::string_view asciiText) {
  std::string text(asciiText);
  for (char& letter : text) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return text;
}

enum Rank : std::size_t { nameBegins, wordBegins, nameHolds, restHolds, rankCount };

}  // namespace

/// Without case, accents and compatibility forms; Latin letters that are no plain ones as plain ones, so that "o" finds
/// the stroked o.
class ApplicationFinder::Spelling final {
 public:
  Spelling() {
    UErrorCode status = U_ZERO_ERROR;
    m_transliterator.reset(
        icu::Transliterator::createInstance("NFKD; [:Nonspacing Mark:] Remove; Latin-ASCII", UTRANS_FORWARD, status));
  }

  [[nodiscard]] std::string of(std::string_view text) const {
    if (std::ranges::all_of(text, isAscii)) return lowered(text);
    icu::UnicodeString spelled = wide(text);
    if (m_transliterator) m_transliterator->transliterate(spelled);
    spelled.foldCase();
    std::string folded;
    return spelled.toUTF8String(folded);
  }

 private:
  std::unique_ptr<icu::Transliterator> m_transliterator;
};

namespace {

bool beginsAWord(std::string_view name, std::size_t place) {
  const auto before = static_cast<unsigned char>(name[place - 1]);
  return before < 0x80 && u_isalnum(before) == 0;
}

std::optional<Rank> rankOfName(std::string_view name, std::string_view term) {
  auto place = name.find(term);
  if (place == std::string_view::npos) return std::nullopt;
  if (place == 0) return nameBegins;
  for (; place != std::string_view::npos; place = name.find(term, place + 1)) {
    if (beginsAWord(name, place)) return wordBegins;
  }
  return nameHolds;
}

}  // namespace

ApplicationFinder::ApplicationFinder(std::vector<InstalledApplication> applications)
    : m_spelling(std::make_unique<const Spelling>()) {
  sortByName(applications);
  for (auto& application : applications) {
    std::string rest = application.genericName + '\n' + application.identifier;
    for (const auto& keyword : application.keywords)
      rest += '\n' + keyword;
    auto name = m_spelling->of(application.name);
    m_entries.push_back(
        {std::make_shared<const InstalledApplication>(std::move(application)), std::move(name), m_spelling->of(rest)});
  }
}

ApplicationFinder::~ApplicationFinder() = default;

std::vector<ApplicationFinder::Application> ApplicationFinder::find(std::string_view term) const {
  const std::string wanted = m_spelling->of(foundation::trimmed(term));
  std::array<std::vector<Application>, rankCount> ranks;
  for (const auto& entry : m_entries) {
    auto rank = rankOfName(entry.name, wanted);
    if (!rank && entry.rest.find(wanted) != std::string::npos) rank = restHolds;
    if (rank) ranks.at(*rank).push_back(entry.application);
  }
  std::vector<Application> found;
  for (auto& rank : ranks)
    found.insert(found.end(), rank.begin(), rank.end());
  return found;
}

}  // namespace quillmonger
