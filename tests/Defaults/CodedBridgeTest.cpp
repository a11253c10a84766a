#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <stdexcept>

#include "Defaults/CodableBridge.h"
#include "Defaults/ColorBridge.h"
#include "Defaults/Defaults.h"
#include "Defaults/NSSecureCodingBridge.h"

namespace {

using defaults::Bytes;
using defaults::Defaults;
using defaults::Key;
using defaults::Object;
using defaults::UserDefaults;

/// Encodes to whatever JSON it holds.
struct Anything {
  nlohmann::json json;
  bool operator==(const Anything&) const = default;
};
void to_json(nlohmann::json& json, const Anything& value) { json = value.json; }
void from_json(const nlohmann::json& json, Anything& value) { value.json = json; }

struct Place {
  std::string name;
  int floor = 0;
  bool operator==(const Place&) const = default;
};
void to_json(nlohmann::json& json, const Place& place) {
  if (place.floor > 100) throw std::runtime_error("no such floor");
  json = {{"floor", place.floor}, {"name", place.name}};
}
void from_json(const nlohmann::json& json, Place& place) {
  json.at("name").get_to(place.name);
  json.at("floor").get_to(place.floor);
}

/// Two bytes, of which the second is the first one's complement.
struct Sealed {
  std::uint8_t value = 0;
  bool operator==(const Sealed&) const = default;
  [[nodiscard]] Bytes archived() const { return {value, static_cast<std::uint8_t>(~value)}; }
  [[nodiscard]] static std::optional<Sealed> unarchived(const Bytes& bytes) {
    if (bytes.size() != 2 || bytes[1] != static_cast<std::uint8_t>(~bytes[0])) return std::nullopt;
    return Sealed{bytes[0]};
  }
};

struct Color {
  double red, green, blue, alpha;
  bool operator==(const Color&) const = default;
};

}  // namespace

template <>
struct defaults::Bridge<Anything> : defaults::CodableBridge<Anything> {};
template <>
struct defaults::Bridge<Place> : defaults::CodableBridge<Place> {};
template <>
struct defaults::Bridge<Sealed> : defaults::NSSecureCodingBridge<Sealed> {};
template <>
struct defaults::Bridge<Color> : defaults::ColorBridge<Color> {};

namespace {

const Key<Place> place{"place", {"cellar", -1}};
const Key<Anything> anything{"anything", {"the default"}};

std::string nested(int depth) {
  const auto count = static_cast<std::size_t>(depth);
  return std::string(count, '[') + std::string(count, ']');
}

class CodableBridge : public testing::Test {
 protected:
  Anything reading(const std::string& text) {
    store.setObject("anything", text);
    return settings[anything];
  }
  std::string outputOfSetting(const auto& key, const auto& value) {
    testing::internal::CaptureStdout();
    settings.set(key, value);
    return testing::internal::GetCapturedStdout();
  }

  UserDefaults store;
  Defaults settings{store};
};

TEST_F(CodableBridge, StoresAJsonString) {
  settings.set(place, {"attic", 4});

  EXPECT_EQ(store.objectForKey("place"), Object(std::string(R"({"floor":4,"name":"attic"})")));
  EXPECT_EQ(settings[place], (Place{"attic", 4}));
}

TEST_F(CodableBridge, StoresAValueThatEncodesToABareNumberAsThatText) {
  settings.set(anything, {5});

  EXPECT_EQ(store.objectForKey("anything"), Object(std::string("5")));
  EXPECT_EQ(settings[anything], Anything{5});
}

TEST_F(CodableBridge, ReadsBackABareStringAndAList) {
  for (const auto& json : {nlohmann::json("a]b\"["), nlohmann::json::array({1, 2}), nlohmann::json(nullptr)}) {
    settings.set(anything, {json});
    EXPECT_EQ(settings[anything].json, json);
  }
}

TEST_F(CodableBridge, ReadsAStringThatDoesNotParseAsTheDefault) {
  for (const char* text : {"", "{", "5]", "5],[6", "1,2", "nan", "\"\xff\"", "\"a", "1e999", " "}) {
    EXPECT_EQ(reading(text), anything.defaultValue()) << text;
  }
}

TEST_F(CodableBridge, ReadsJsonOfAnotherTypeAsTheDefault) {
  for (const char* text : {"5", "{}", R"({"name":"attic"})", R"({"name":1,"floor":1})", "null"}) {
    store.setObject("place", std::string(text));
    EXPECT_EQ(settings[place], place.defaultValue()) << text;
  }
}

TEST_F(CodableBridge, ReadsAnObjectThatIsNoStringAsTheDefault) {
  store.setObject("place", Object::Map{{"name", std::string("attic")}, {"floor", std::int64_t{4}}});

  EXPECT_EQ(settings[place], place.defaultValue());
}

TEST_F(CodableBridge, ReadsATextThatIsNestedTooDeeplyAsTheDefault) {
  EXPECT_NE(reading(nested(Object::depthLimit)), anything.defaultValue());
  EXPECT_EQ(reading(nested(Object::depthLimit + 1)), anything.defaultValue());
  EXPECT_EQ(reading(nested(500000)), anything.defaultValue());
}

TEST_F(CodableBridge, ReadsATextThatIsTooLongAsTheDefault) {
  EXPECT_NE(reading("\"" + std::string(defaults::jsonSizeLimit - 2, 'a') + "\""), anything.defaultValue());
  EXPECT_EQ(reading("\"" + std::string(defaults::jsonSizeLimit - 1, 'a') + "\""), anything.defaultValue());
}

TEST_F(CodableBridge, PrintsALineAndStoresNothingWhenEncodingFails) {
  settings.set(place, {"attic", 4});

  EXPECT_EQ(outputOfSetting(place, Place{"heaven", 101}), "Defaults: can't encode a value: no such floor\n");

  EXPECT_TRUE(store.storedObjects().empty());
  EXPECT_EQ(settings[place], place.defaultValue());
}

TEST_F(CodableBridge, FailsToEncodeWhatItCouldNotReadAgain) {
  for (const auto& json : {nlohmann::json(std::nan("")), nlohmann::json::array({1, INFINITY}), nlohmann::json("\xff"),
                           nlohmann::json(std::string(defaults::jsonSizeLimit, 'a')),
                           nlohmann::json::parse(nested(Object::depthLimit + 1))}) {
    const auto output = outputOfSetting(anything, Anything{json});
    EXPECT_TRUE(output.starts_with("Defaults: can't encode a value: ")) << output;
    EXPECT_TRUE(store.storedObjects().empty());
  }
}

TEST(NSSecureCodingBridge, StoresBytesAndReadsOthersThanItsOwnAsTheDefault) {
  UserDefaults store;
  Defaults settings(store);
  const Key<Sealed> key("key", {9});

  settings.set(key, {5});
  EXPECT_EQ(store.objectForKey("key"), Object(Bytes{5, 250}));
  EXPECT_EQ(settings[key], Sealed{5});
  for (const Object& other : {Object(Bytes{5, 5}), Object(Bytes()), Object(Bytes(100000)), Object(std::string("a"))}) {
    store.setObject("key", other);
    EXPECT_EQ(settings[key], Sealed{9});
  }
}

class ColorBridge : public testing::Test {
 protected:
  UserDefaults store;
  Defaults settings{store};
  const Key<Color> key{"key", {0, 0, 0, 1}};
};

TEST_F(ColorBridge, StoresBytesAndGivesBackEveryComponentExactly) {
  settings.set(key, {0.1, 1, 0, 1.0 / 3});

  EXPECT_EQ(store.objectForKey("key")->as<Bytes>()->size(), 36U);
  EXPECT_EQ(settings[key], (Color{0.1, 1, 0, 1.0 / 3}));
}

TEST_F(ColorBridge, ReadsOtherBytesAsTheDefault) {
  const Bytes whole = *Object(*defaults::archivedColor({0.1, 1, 0, 0.5})).as<Bytes>();
  Bytes shorter = whole;
  shorter.pop_back();
  Bytes otherTag = whole;
  otherTag[0] = 'X';
  Bytes outside = whole;
  const double two = 2;
  std::memcpy(&outside[4], &two, sizeof two);
  Bytes noNumber = whole;
  std::fill(noNumber.begin() + 4, noNumber.end(), std::uint8_t{255});

  for (const Object& other : {Object(shorter), Object(otherTag), Object(outside), Object(noNumber), Object(Bytes()),
                              Object(std::string("RGBA"))}) {
    store.setObject("key", other);
    EXPECT_EQ(settings[key], key.defaultValue());
  }
}

TEST_F(ColorBridge, StoresNothingForAComponentOutside0To1) {
  for (const double component : {-0.1, 1.1, std::nan(""), static_cast<double>(INFINITY)}) {
    settings.set(key, {component, 0, 0, 1});
    EXPECT_TRUE(store.storedObjects().empty());
  }
}

}  // namespace
