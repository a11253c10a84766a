#include "Quillmonger/preview/view/TextSelection.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <string>

#include "Quillmonger/preview/view/TextPiecesModel.h"

namespace {

using quillmonger::pieceText;
using quillmonger::selectedText;
using quillmonger::TextPieces;
using quillmonger::TextPiecesModel;
using quillmonger::TextSelection;

TextPieces piecesOf(const std::string& text) { return {foundation::Data(text), 0, text}; }

// Three pieces, each of one letter in lines of 100.
std::string threePieces() {
  std::string text;
  for (const char letter : {'a', 'b', 'c'}) {
    for (int line = 0; line < 20; ++line)
      text += std::string(101, letter) + "\n";
  }
  text.pop_back();
  return text;
}

std::string shown(const std::string& text, int row = 0) {
  TextPiecesModel model;
  model.setPieces(piecesOf(text));
  return model.data(model.index(row), TextPiecesModel::pieceRole).toString().toStdString();
}

TEST(TextPiecesModel, ShowsAPieceWithoutItsLastLineEnd) {
  ASSERT_EQ(piecesOf(threePieces()).count(), 3U);

  EXPECT_EQ(shown(threePieces(), 0).back(), 'a');
  EXPECT_EQ(shown(threePieces(), 2).back(), 'c');
}

TEST(TextPiecesModel, ShowsControlCharactersAsTheirPicturesAndLineEndsAsLines) {
  EXPECT_EQ(shown("a\tb\x1B[0m\r\nc\rd"), "a\tb␛[0m\nc\nd");
}

TEST(TextPiecesModel, IsAModelWhenItsTextChanges) {
  TextPiecesModel model;
  const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);

  model.setPieces(piecesOf(threePieces()));
  EXPECT_EQ(model.rowCount(), 3);
  model.setPieces({});

  EXPECT_EQ(model.rowCount(), 0);
}

TEST(TextSelection, IsEmptyUntilItIsExtended) {
  TextSelection selection;
  EXPECT_TRUE(selection.isEmpty());

  selection.begin(1, 5);
  EXPECT_TRUE(selection.isEmpty());
  selection.extend(1, 6);

  EXPECT_FALSE(selection.isEmpty());
}

TEST(TextSelection, CoversWholePiecesBetweenItsEnds) {
  TextSelection selection;
  selection.begin(3, 2);
  selection.extend(1, 4);

  EXPECT_EQ(selection.startIn(0, 10), selection.endIn(0, 10));
  EXPECT_EQ(selection.startIn(1, 10), 4);
  EXPECT_EQ(selection.endIn(1, 10), 10);
  EXPECT_EQ(selection.startIn(2, 10), 0);
  EXPECT_EQ(selection.endIn(2, 10), 10);
  EXPECT_EQ(selection.startIn(3, 10), 0);
  EXPECT_EQ(selection.endIn(3, 10), 2);
  EXPECT_EQ(selection.startIn(4, 10), selection.endIn(4, 10));
}

TEST(TextSelection, GivesTheTextOfARangeWithinAPiece) {
  EXPECT_EQ(selectedText(piecesOf("hello world"), {{0, 6}, {0, 11}}), "world");
}

TEST(TextSelection, GivesTheTextAcrossPiecesWithTheLineEndsBetweenThem) {
  const std::string text = threePieces();

  EXPECT_EQ(selectedText(piecesOf(text), {{0, 2000}, {2, 3}}), text.substr(2000, 2 * 2040 - 2000 + 3));
}

TEST(TextSelection, GivesControlCharactersAsTheyAre) {
  EXPECT_EQ(selectedText(piecesOf("a\x1B[0m"), {{0, 0}, {0, 3}}), "a\x1B[");
}

TEST(TextSelection, GivesNothingBeyondTheText) { EXPECT_EQ(selectedText(piecesOf("text"), {{3, 0}, {7, 1}}), ""); }

}  // namespace
