#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillmonger {

/// One entry of a status item's menu. One without an action shows as disabled.
struct StatusMenuItem {
  enum class Kind { entry, heading, separator };
  enum class State { none, off, on };

  Kind kind = Kind::entry;
  std::string title{};
  /// Runs on the main thread when the user chooses the entry.
  std::function<void()> action{};
  /// The character that chooses the entry with Command while the menu is open; empty without one.
  std::string keyEquivalent{};
  /// Its check mark; none where it can't have one.
  State state = State::none;
};

using StatusMenu = std::vector<StatusMenuItem>;

/// The program's face among the desktop's status items: a picture, whose click opens a menu. It is there as long as
/// this object. A desktop that shows such items only later shows it then, as it is by then. Main thread; nothing
/// blocks.
class StatusItem {
 public:
  StatusItem() = default;
  StatusItem(const StatusItem&) = delete;
  StatusItem& operator=(const StatusItem&) = delete;
  virtual ~StatusItem() = default;

  /// Whether there is a picture to change; false where the desktop has no status items at all.
  [[nodiscard]] virtual bool hasButton() const = 0;
  /// Takes the place of the former menu, also while it is open: entries are the same by their position.
  virtual void setMenu(StatusMenu menu) = 0;
  /// The picture by its name.
  virtual void setImage(const std::string& name) = 0;
  /// How far above its place the picture is drawn, in points.
  virtual void setImageOffset(double points) = 0;
};

/// The desktop's place for status items.
class StatusBar {
 public:
  StatusBar() = default;
  StatusBar(const StatusBar&) = delete;
  StatusBar& operator=(const StatusBar&) = delete;
  virtual ~StatusBar() = default;

  /// A new item, as wide as its picture. The bar outlives it.
  [[nodiscard]] virtual std::unique_ptr<StatusItem> statusItem() = 0;
};

}  // namespace quillmonger
