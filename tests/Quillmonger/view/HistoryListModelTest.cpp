#include "Quillmonger/history/view/HistoryListModel.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <numeric>

#include "tests/gallery/ViewStage.h"

namespace {

using quillmonger::CharacterRange;
using quillmonger::HistoryListModel;
using testsupport::ViewStage;

class HistoryListModelTest : public testing::Test {
 protected:
  HistoryListModelTest() : m_tester(&m_model, QAbstractItemModelTester::FailureReportingMode::Fatal) {
    for (int number = 0; number < 40; ++number)
      m_items.push_back(m_stage.makeItem(std::to_string(number)));
  }

  HistoryListModel::Change show(const std::vector<std::size_t>& numbers,
                                std::optional<CharacterRange> match = std::nullopt) {
    std::vector<ViewStage::Row> rows;
    for (const std::size_t number : numbers)
      rows.push_back({m_items.at(number).get(), 0.0, match});
    return m_model.setRows(std::make_shared<const HistoryListModel::Rows::element_type>(
        std::move(rows), quillmonger::SearchItems(m_items)));
  }

  [[nodiscard]] std::vector<std::string> lines() const {
    std::vector<std::string> lines;
    for (int row = 0; row < m_model.rowCount(); ++row) {
      lines.push_back(m_model.index(row).data(HistoryListModel::lineRole).toString().toStdString());
    }
    return lines;
  }

  ViewStage m_stage;
  std::vector<ViewStage::Item> m_items;
  HistoryListModel m_model{m_stage.inspection()};
  QAbstractItemModelTester m_tester;
};

using Lines = std::vector<std::string>;

TEST_F(HistoryListModelTest, InsertsANewRowOnTop) {
  show({1, 2, 3});
  const QSignalSpy inserted(&m_model, &QAbstractItemModel::rowsInserted);
  const QSignalSpy reset(&m_model, &QAbstractItemModel::modelReset);

  EXPECT_EQ(show({0, 1, 2, 3}), HistoryListModel::Change::gradual);

  EXPECT_EQ(inserted.count(), 1);
  EXPECT_EQ(reset.count(), 0);
  EXPECT_EQ(lines(), (Lines{"0", "1", "2", "3"}));
}

TEST_F(HistoryListModelTest, RemovesTheRowThatWent) {
  show({0, 1, 2, 3});
  const QSignalSpy removed(&m_model, &QAbstractItemModel::rowsRemoved);

  show({0, 1, 3});

  ASSERT_EQ(removed.count(), 1);
  EXPECT_EQ(removed.front().at(1).toInt(), 2);
  EXPECT_EQ(removed.front().at(2).toInt(), 2);
  EXPECT_EQ(lines(), (Lines{"0", "1", "3"}));
}

TEST_F(HistoryListModelTest, ReplacesRowsBetweenThoseThatStay) {
  show({0, 1, 2, 9});

  EXPECT_EQ(show({0, 5, 6, 7, 9}), HistoryListModel::Change::gradual);

  EXPECT_EQ(lines(), (Lines{"0", "5", "6", "7", "9"}));
}

TEST_F(HistoryListModelTest, StartsAnewForAnotherSearch) {
  std::vector<std::size_t> all(40);
  std::iota(all.begin(), all.end(), std::size_t{0});
  show(all);
  const QSignalSpy changed(&m_model, &QAbstractItemModel::dataChanged);

  EXPECT_EQ(show({7}), HistoryListModel::Change::reset);
  EXPECT_EQ(lines(), Lines{"7"});
  EXPECT_EQ(changed.count(), 1);

  const QSignalSpy reset(&m_model, &QAbstractItemModel::modelReset);
  EXPECT_EQ(show(all), HistoryListModel::Change::reset);
  EXPECT_EQ(reset.count(), 1);
  EXPECT_EQ(lines().size(), all.size());
}

TEST_F(HistoryListModelTest, KeepsTheRowsOfAFullWindowAndShowsOtherItemsInThem) {
  std::vector<std::size_t> some(33);
  std::iota(some.begin(), some.end(), std::size_t{0});
  std::vector<std::size_t> all(40);
  std::iota(all.rbegin(), all.rend(), std::size_t{0});
  show(some);
  const QSignalSpy reset(&m_model, &QAbstractItemModel::modelReset);
  const QSignalSpy inserted(&m_model, &QAbstractItemModel::rowsInserted);
  const QSignalSpy changed(&m_model, &QAbstractItemModel::dataChanged);

  EXPECT_EQ(show(all), HistoryListModel::Change::reset);

  EXPECT_EQ(reset.count(), 0);
  EXPECT_EQ(inserted.front().at(1).toInt(), 33);
  EXPECT_EQ(changed.back()[1].toModelIndex().row(), 32);
  EXPECT_EQ(lines().front(), "39");
}

TEST_F(HistoryListModelTest, TellsOfAnotherHitInARowThatStays) {
  show({0, 1, 2});
  const QSignalSpy changed(&m_model, &QAbstractItemModel::dataChanged);

  show({0, 5, 1, 2}, CharacterRange{0, 0});

  ASSERT_EQ(changed.count(), 2);
  EXPECT_EQ(changed[0][0].toModelIndex().row(), 0);
  EXPECT_EQ(changed[0][1].toModelIndex().row(), 0);
  EXPECT_EQ(changed[1][0].toModelIndex().row(), 2);
  EXPECT_EQ(changed[1][1].toModelIndex().row(), 3);
}

TEST_F(HistoryListModelTest, ChangesNothingForEqualRows) {
  show({0, 1, 2});
  const QSignalSpy changed(&m_model, &QAbstractItemModel::dataChanged);
  const QSignalSpy removed(&m_model, &QAbstractItemModel::rowsRemoved);

  show({0, 1, 2});

  EXPECT_EQ(changed.count() + removed.count(), 0);
}

TEST_F(HistoryListModelTest, GivesNothingOutsideItsRows) {
  show({0});

  EXPECT_FALSE(m_model.data(QModelIndex(), HistoryListModel::lineRole).isValid());
  EXPECT_FALSE(m_model.index(0).data(Qt::DecorationRole).isValid());
}

TEST_F(HistoryListModelTest, ShowsTheHeadOfAnEnormousText) {
  m_items[0] = m_stage.makeItem(std::string(std::size_t{20} << 20, 'x'));

  show({0});

  EXPECT_LT(lines().front().size(), 8192U);
}

TEST_F(HistoryListModelTest, FindsARowByItsItem) {
  show({3, 4});

  EXPECT_EQ(m_model.rowOf(m_items[4]), 1);
  EXPECT_EQ(m_model.rowOf(m_items[0]), -1);
  EXPECT_EQ(m_model.rowOf(nullptr), -1);
}

}  // namespace
