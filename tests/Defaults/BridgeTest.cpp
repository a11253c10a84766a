#include "Defaults/Bridge.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <deque>
#include <limits>
#include <map>
#include <set>
#include <string_view>

#include "Defaults/Defaults.h"
#include "Defaults/SetAlgebraBridge.h"

namespace {

using namespace defaults;
using foundation::Url;
using foundation::Uuid;

enum class Size { small, large, unstored };
enum class Side : std::uint8_t { left, right };

struct Days {
  using Element = std::int64_t;
  std::set<Element> days;
  [[nodiscard]] std::vector<Element> elements() const { return {days.begin(), days.end()}; }
  void insert(Element day) { days.insert(day); }
  bool operator==(const Days&) const = default;
};

Object integer(std::int64_t value) { return value; }
Object text(const char* value) { return std::string(value); }
template <typename... Objects>
Object list(Objects... objects) {
  return Object::List{std::move(objects)...};
}

}  // namespace

template <>
inline constexpr auto defaults::rawValues<Size> =
    std::to_array<std::pair<Size, std::string_view>>({{Size::small, "small"}, {Size::large, "large"}});
template <>
inline constexpr auto defaults::rawValues<Side> = std::to_array<std::pair<Side, std::uint8_t>>({{Side::left, 1},
                                                                                                {Side::right, 2}});
template <>
struct defaults::Bridge<Days> : defaults::SetAlgebraBridge<Days> {};

namespace {

/// The value is stored as the object and read from it again; the other objects, which are no stored form of such a
/// value, read as the default.
template <typename T>
void expectBridge(const T& value, const Object& stored, const T& defaultValue, const Object::List& unreadable) {
  UserDefaults store;
  Defaults settings(store);
  const Key<T> key("key", defaultValue);

  settings.set(key, value);
  EXPECT_EQ(store.objectForKey("key"), stored);
  EXPECT_EQ(settings[key], value);
  for (std::size_t index = 0; index < unreadable.size(); ++index) {
    store.setObject("key", unreadable[index]);
    EXPECT_EQ(settings[key], defaultValue) << "unreadable object " << index;
  }
}

TEST(NativeBridge, StoresEachKindAsItselfAndReadsNoOtherKind) {
  const foundation::Date moment(std::chrono::nanoseconds(1234567890123456789));

  expectBridge(true, true, false, {integer(1), text("true"), list(true)});
  expectBridge(std::int64_t{7}, integer(7), std::int64_t{1}, {7.0, 7.0F, true, text("7")});
  expectBridge(0.3F, 0.3F, 1.0F, {0.3, integer(1)});
  expectBridge(0.3, 0.3, 1.0, {0.3F, integer(1)});
  expectBridge<std::string>("a", text("a"), "b", {Bytes{'a'}, integer(1), list(text("a"))});
  expectBridge(moment, moment, foundation::Date(), {integer(1234567890123456789), text("2009-02-13")});
  expectBridge<Bytes>({0, 255}, Bytes{0, 255}, {1}, {text("AP8="), list(integer(0), integer(255))});
}

TEST(NativeBridge, KeepsANumberThatIsNotFinite) {
  UserDefaults store;
  Defaults settings(store);
  const Key<double> key("key", 1);

  settings.set(key, std::nan(""));
  EXPECT_TRUE(std::isnan(settings[key]));
  settings.set(key, -std::numeric_limits<double>::infinity());
  EXPECT_EQ(settings[key], -std::numeric_limits<double>::infinity());
}

TEST(IntegerBridge, StoresOtherWidthsAsIntegersAndReadsNoneThatDoesNotFit) {
  expectBridge<std::uint8_t>(255, integer(255), 3, {integer(256), integer(-1), true, 5.0});
  expectBridge<std::int8_t>(-128, integer(-128), 3, {integer(-129), integer(128)});
  expectBridge<std::int32_t>(-7, integer(-7), 3, {integer(std::int64_t{1} << 31U), text("1")});
  expectBridge<std::uint64_t>(7, integer(7), 3, {integer(-1)});
  expectBridge<unsigned>(7, integer(7), 3, {integer(std::int64_t{1} << 32U), integer(-1)});
}

TEST(IntegerBridge, StoresNothingForAnIntegerBeyondTheStoredWidth) {
  EXPECT_EQ(Bridge<std::uint64_t>::serialize(std::numeric_limits<std::uint64_t>::max()), std::nullopt);
}

TEST(RawRepresentableBridge, StoresTheRawValueAndReadsThatOfNoCaseAsTheDefault) {
  expectBridge(Size::large, text("large"), Size::small, {text("huge"), text(""), integer(1), list(text("large"))});
  expectBridge(Side::right, integer(2), Side::left, {integer(0), integer(3), integer(258), text("2")});
}

TEST(RawRepresentableBridge, StoresNothingForACaseWithoutARawValue) {
  EXPECT_EQ(Bridge<Size>::serialize(Size::unstored), std::nullopt);
}

TEST(OptionalBridge, StoresTheWrappedFormAndNothingForAnEmptyOptional) {
  expectBridge<std::optional<Size>>(Size::large, text("large"), Size::small, {text("huge"), integer(1)});
  EXPECT_EQ(Bridge<std::optional<Size>>::serialize(std::nullopt), std::nullopt);
}

TEST(ArrayBridge, StoresAListInItsOrder) {
  expectBridge<std::vector<std::string>>({"b", "a", "b"}, list(text("b"), text("a"), text("b")), {"x"},
                                         {text("b"), Object::Map{{"0", text("b")}}});
  expectBridge<std::vector<std::string>>({}, list(), {"x"}, {integer(0)});
  expectBridge<std::vector<bool>>({true, false}, list(true, false), {}, {list(integer(1))});
  expectBridge<std::vector<std::vector<float>>>({{1, 2}, {}}, list(list(1.0F, 2.0F), list()), {{9}}, {list(1.0F)});
}

TEST(ArrayBridge, ReadsAListWithOneUnreadableElementAsTheDefault) {
  UserDefaults store({{"key", list(text("a"), integer(1))}});

  EXPECT_EQ(Defaults(store)[Key<std::vector<std::string>>("key", {"x"})], std::vector<std::string>{"x"});
}

TEST(ArrayBridge, StoresNothingForAListWithAnElementWithoutAStoredForm) {
  UserDefaults store;
  Defaults settings(store);
  const Key<std::vector<std::optional<bool>>> key("key", {});
  settings.set(key, {true});

  settings.set(key, {true, std::nullopt});

  EXPECT_TRUE(store.storedObjects().empty());
}

TEST(DictionaryBridge, StoresAMapAndReadsOneWithAnUnreadableElementAsTheDefault) {
  using Counts = std::map<std::string, std::int64_t>;

  expectBridge<Counts>({{"a", 1}, {"", 2}}, Object::Map{{"a", integer(1)}, {"", integer(2)}}, {{"x", 9}},
                       {Object::Map{{"a", integer(1)}, {"b", text("2")}}, list(integer(1)), text("a")});
  expectBridge<std::map<std::string, Counts>>({{"a", {{"b", 1}}}}, Object::Map{{"a", Object::Map{{"b", integer(1)}}}},
                                              {}, {Object::Map{{"a", integer(1)}}});
}

TEST(DictionaryBridge, StoresNothingForAMapWithAnElementWithoutAStoredForm) {
  EXPECT_EQ((Bridge<std::map<std::string, Size>>::serialize({{"a", Size::unstored}})), std::nullopt);
}

TEST(SetBridge, StoresAListAndReadsAnElementThatIsThereTwiceOnce) {
  expectBridge<std::set<std::int64_t>>({2, 1}, list(integer(1), integer(2)), {9}, {integer(1), list(text("1"))});

  UserDefaults store({{"key", list(integer(1), integer(1))}});
  EXPECT_EQ(Defaults(store)[Key<std::set<std::int64_t>>("key", {})], std::set<std::int64_t>{1});
}

TEST(SetAlgebraBridge, StoresAnOptionSetAsAListOfItsElements) {
  expectBridge(Days{{1, 3}}, list(integer(1), integer(3)), Days{{7}}, {integer(1), list(integer(1), text("3"))});
}

TEST(CollectionBridge, StoresAnyOtherCollectionAsAList) {
  expectBridge<std::deque<double>>({2, 1}, list(2.0, 1.0), {9}, {2.0, list(2.0F)});
  expectBridge<std::multiset<Side>>({Side::left, Side::left}, list(integer(1), integer(1)), {}, {list(integer(3))});
}

TEST(RangeBridge, StoresAListOfTheLowerAndTheUpperBound) {
  expectBridge<Range<std::int64_t>>(
      {1, 5}, list(integer(1), integer(5)), {0, 0},
      {list(integer(1)), list(integer(1), integer(2), integer(3)), list(), list(integer(1), text("5")), integer(1)});
  expectBridge<Range<double>>({1, 1}, list(1.0, 1.0), {0, 0}, {list(std::nan(""), 1.0), list(1.0, std::nan(""))});
}

TEST(RangeBridge, ReadsAndStoresNoRangeWithALowerBoundAboveTheUpperOne) {
  EXPECT_EQ(Bridge<Range<std::int64_t>>::deserialize(list(integer(5), integer(1))), std::nullopt);
  EXPECT_EQ(Bridge<Range<std::int64_t>>::serialize({5, 1}), std::nullopt);
}

TEST(UUIDBridge, StoresTheStringForm) {
  const auto uuid = *Uuid::parse("12345678-9abc-4def-8123-456789abcdef");

  expectBridge(uuid, text("12345678-9ABC-4DEF-8123-456789ABCDEF"), Uuid(),
               {text("12345678"), text(""), integer(1), text("12345678-9ABC-4DEF-8123-456789ABCDEG")});
}

TEST(URLBridge, StoresTheAbsoluteString) {
  expectBridge(*Url::parse("https://example.org/a%20b"), text("https://example.org/a%20b"), *Url::parse("a:"),
               {text(""), text("a b"), text("\xff"), integer(1)});
}

TEST(AnyBridge, StoresWhatTheValuesOwnKindStores) {
  for (const Object& object : {Object(true), integer(1), list(text("a"), Object::Map{{"b", 0.5F}})}) {
    expectBridge<Object>(object, object, false, {});
  }
}

TEST(UserDefaults, StoresNothingThatIsNestedTooDeeplyAndSaysSo) {
  UserDefaults store;
  Object deep = list();
  for (int depth = 1; depth < Object::depthLimit; ++depth)
    deep = list(std::move(deep));
  store.setObject("key", deep);
  EXPECT_EQ(store.objectForKey("key"), deep);

  testing::internal::CaptureStdout();
  store.setObject("key", Object::Map{{"a", deep}});

  EXPECT_EQ(testing::internal::GetCapturedStdout(), "Defaults: a value is nested too deeply and is not stored: key\n");
  EXPECT_EQ(store.objectForKey("key"), std::nullopt);
}

}  // namespace
