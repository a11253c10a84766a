#pragma once

namespace defaults {

/// How a value type is stored. A bridge has two static operations, which any thread may call and which never throw:
///
///   std::optional<Object> serialize(const T&)     the stored form, or nothing when the value has none
///   std::optional<T> deserialize(const Object&)   the value, or nothing when the object is no stored form of one
///
/// Booleans, numbers, strings, dates, bytes, optionals, collections, maps, ranges, UUIDs, URLs and enumerations with
/// `rawValues` have one as soon as its header is included (`Bridges.h`). Any other type is given one:
///
///   template <>
///   struct defaults::Bridge<Place> : defaults::CodableBridge<Place> {};
template <typename T>
struct Bridge;

}  // namespace defaults
