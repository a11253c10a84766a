#include "Foundation/Data.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

using foundation::Data;

class StringSource final : public foundation::DataSource {
 public:
  explicit StringSource(std::string content) : m_content(std::move(content)) {}
  [[nodiscard]] std::optional<std::string> read(std::size_t offset, std::size_t length) const override {
    return m_content.substr(offset, length);
  }

 private:
  std::string m_content;
};

class UnreadableSource final : public foundation::DataSource {
 public:
  [[nodiscard]] std::optional<std::string> read(std::size_t /*offset*/, std::size_t /*length*/) const override {
    return std::nullopt;
  }
};

const std::string large(Data::residentLimit + 1, 'x');

TEST(Data, GivesItsBytesAndPartsOfThem) {
  const Data data("abcdef");

  EXPECT_EQ(*data.bytes(), "abcdef");
  EXPECT_EQ(data.part(2, 3), "cde");
  EXPECT_EQ(data.part(4, 100), "ef");
  EXPECT_EQ(data.part(6, 1), "");
  EXPECT_EQ(data.part(100, 1), "");
}

TEST(Data, IsEmptyByDefault) {
  EXPECT_TRUE(Data().isEmpty());
  EXPECT_EQ(*Data().bytes(), "");
}

TEST(Data, EqualsByContent) {
  EXPECT_EQ(Data("a"), Data("a"));
  EXPECT_NE(Data("a"), Data("b"));
  EXPECT_NE(Data("a"), Data("aa"));
  EXPECT_EQ(Data{large}, Data{large});
  EXPECT_NE(Data{large}, Data(std::string(large.size(), 'y')));
}

TEST(Data, EqualsWhatRestsElsewhereWithoutReadingIt) {
  const Data elsewhere(large.size(), foundation::sha256(large), std::make_shared<UnreadableSource>());

  EXPECT_EQ(elsewhere, Data{large});
}

TEST(Data, ReadsFromItsSourceForAllCopiesOnceMoved) {
  const Data data{large};
  const Data copy = data;

  data.moveTo(std::make_shared<StringSource>(std::string(large.size(), 'z')));

  EXPECT_TRUE(copy.source());
  EXPECT_EQ(copy.part(1, 2), "zz");
  EXPECT_EQ(copy.bytes()->size(), large.size());
}

TEST(Data, KeepsSmallBytesInMemory) {
  const Data data(std::string(Data::residentLimit, 'x'));

  data.moveTo(std::make_shared<UnreadableSource>());

  EXPECT_FALSE(data.source());
  EXPECT_EQ(data.bytes()->size(), Data::residentLimit);
}

TEST(Data, IsAbsentWhenItsSourceCannotBeRead) {
  const Data data(large.size(), foundation::sha256(large), std::make_shared<UnreadableSource>());

  EXPECT_EQ(data.bytes(), nullptr);
  EXPECT_EQ(data.part(0, 5), "");
}

TEST(Data, LeavesBytesWithWhoeverHoldsThem) {
  const Data data{large};
  const auto bytes = data.bytes();

  data.moveTo(std::make_shared<UnreadableSource>());

  EXPECT_EQ(*bytes, large);
}

TEST(Data, CanBeReadWhileItIsMoved) {
  const Data data{large};
  std::thread reader([&data] {
    for (int i = 0; i < 1000; ++i)
      EXPECT_EQ(data.part(0, 1), "x");
  });

  for (int i = 0; i < 1000; ++i)
    data.moveTo(std::make_shared<StringSource>(large));

  reader.join();
}

}  // namespace
