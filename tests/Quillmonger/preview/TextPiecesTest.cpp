#include "Quillmonger/preview/TextPieces.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

using quillmonger::TextPieces;

TextPieces piecesOf(const std::string& text) { return {foundation::Data(text), 0, text}; }

std::vector<std::string> all(const TextPieces& pieces) {
  std::vector<std::string> texts;
  for (std::size_t index = 0; index < pieces.count(); ++index)
    texts.push_back(pieces.piece(index));
  return texts;
}

std::string joined(const TextPieces& pieces) {
  std::string text;
  for (const std::string& piece : all(pieces))
    text += piece;
  return text;
}

TEST(TextPieces, AreNoneOfAnEmptyText) {
  EXPECT_EQ(TextPieces().count(), 0U);
  EXPECT_EQ(piecesOf("").count(), 0U);
}

TEST(TextPieces, AreOneOfAShortText) { EXPECT_EQ(all(piecesOf("one\ntwo")), std::vector<std::string>{"one\ntwo"}); }

TEST(TextPieces, EndAtLineEndsAndHaveManyLines) {
  std::string text;
  for (int line = 0; line < 10'000; ++line)
    text += "line " + std::to_string(line) + "\n";
  const TextPieces pieces = piecesOf(text);

  EXPECT_EQ(joined(pieces), text);
  EXPECT_LT(pieces.count(), text.size() / 1000);
  for (const std::string& piece : all(pieces)) {
    EXPECT_EQ(piece.back(), '\n');
    EXPECT_LE(piece.size(), TextPieces::usualLength);
  }
}

TEST(TextPieces, KeepALongLineTogether) {
  const std::string line(25'001, 'x');

  EXPECT_EQ(all(piecesOf(line + "\n" + line)), (std::vector<std::string>{line + "\n", line}));
}

TEST(TextPieces, DivideAnEndlessLineAtABlank) {
  std::string text;
  while (text.size() < 100'000)
    text += "several words ";
  const TextPieces pieces = piecesOf(text);

  EXPECT_EQ(joined(pieces), text);
  for (const std::string& piece : all(pieces)) {
    EXPECT_EQ(piece.back(), ' ');
    EXPECT_LE(piece.size(), TextPieces::longestLength);
  }
}

TEST(TextPieces, DivideALineWithoutABlankBetweenCharacters) {
  const std::string family = "👩‍👩‍👧‍👦";
  std::string text;
  while (text.size() < 200'000)
    text += family;
  const TextPieces pieces = piecesOf(text);

  EXPECT_EQ(joined(pieces), text);
  EXPECT_GT(pieces.count(), 4U);
  for (const std::string& piece : all(pieces))
    EXPECT_EQ(piece.size() % family.size(), 0U);
}

TEST(TextPieces, StartWhereTheTextLiesInItsData) {
  const std::string whole = "  text ";

  const TextPieces pieces(foundation::Data(whole), 2, std::string_view(whole).substr(2, 4));

  EXPECT_EQ(all(pieces), std::vector<std::string>{"text"});
}

// Bytes on a disk that can count how much of them is asked for.
class CountingSource final : public foundation::DataSource {
 public:
  explicit CountingSource(std::string bytes) : m_bytes(std::move(bytes)) {}

  [[nodiscard]] std::optional<std::string> read(std::size_t offset, std::size_t length) const override {
    m_readCount += length;
    return m_bytes.substr(offset, length);
  }
  [[nodiscard]] std::size_t readCount() const { return m_readCount; }

 private:
  std::string m_bytes;
  mutable std::size_t m_readCount = 0;
};

TEST(TextPieces, ReadNoMoreThanThePieceThatIsAskedFor) {
  std::string text;
  while (text.size() < 1'000'000)
    text += "a line of a log\n";
  const foundation::Data data(text);
  const auto source = std::make_shared<CountingSource>(text);
  data.moveTo(source);
  const TextPieces pieces(data, 0, text);

  EXPECT_EQ(source->readCount(), 0U);
  EXPECT_FALSE(pieces.piece(pieces.count() / 2).empty());
  EXPECT_LE(source->readCount(), TextPieces::usualLength);
}

}  // namespace
