#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace sauce {

/// A keyboard layout or another way of typing that the desktop offers. The service that gave it knows it again by
/// `id` and `modeID`, which also are what equality and the hash go by.
struct InputSource {
  /// Without an identifier of the desktop's, a new one is made up.
  explicit InputSource(std::optional<std::string> identifier = std::nullopt);

  std::string id;
  /// Which mode of an input method; absent for a plain layout.
  std::optional<std::string> modeID;
  /// Whether the letters a to z can be typed with it.
  bool isASCIICapable = false;
  bool isEnableCapable = false;
  bool isSelectCapable = false;
  bool isEnabled = false;
  bool isSelected = false;
  /// As the user reads it.
  std::optional<std::string> localizedName;

  bool operator==(const InputSource& other) const { return id == other.id && modeID == other.modeID; }
};

}  // namespace sauce

template <>
struct std::hash<sauce::InputSource> {
  std::size_t operator()(const sauce::InputSource& source) const noexcept;
};
