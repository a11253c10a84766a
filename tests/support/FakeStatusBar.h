#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Quillmonger/shell/StatusItem.h"

namespace testsupport {

/// A desktop's status items without a desktop: the test reads the one item, and chooses its entries.
class FakeStatusBar final : public quillmonger::StatusBar {
 public:
  [[nodiscard]] std::unique_ptr<quillmonger::StatusItem> statusItem() override {
    m_isItemThere = true;
    return std::make_unique<Item>(*this);
  }

  /// From now on the desktop shows no picture of the item.
  void removeButton() { m_hasButton = false; }
  /// The user chooses the entry at `position`; false when it is disabled.
  bool choose(std::size_t position) {
    const auto action = m_menu.at(position).action;
    if (action) action();
    return static_cast<bool>(action);
  }
  /// The user presses Command and `key` while the menu is open; false when no enabled entry has that chord.
  bool press(const std::string& key) {
    for (std::size_t position = 0; position < m_menu.size(); ++position) {
      if (m_menu[position].keyEquivalent == key) return choose(position);
    }
    return false;
  }

  [[nodiscard]] bool isItemThere() const { return m_isItemThere; }
  [[nodiscard]] const quillmonger::StatusMenu& menu() const { return m_menu; }
  /// Empty until the item has got one.
  [[nodiscard]] const std::string& image() const { return m_image; }
  /// Every offset that the picture was given.
  [[nodiscard]] std::vector<double>& offsets() { return m_offsets; }

 private:
  class Item final : public quillmonger::StatusItem {
   public:
    explicit Item(FakeStatusBar& bar) : m_bar(bar) {}
    ~Item() override { m_bar.m_isItemThere = false; }
    [[nodiscard]] bool hasButton() const override { return m_bar.m_hasButton; }
    void setMenu(quillmonger::StatusMenu menu) override { m_bar.m_menu = std::move(menu); }
    void setImage(const std::string& name) override { m_bar.m_image = name; }
    void setImageOffset(double points) override { m_bar.m_offsets.push_back(points); }

   private:
    FakeStatusBar& m_bar;
  };

  quillmonger::StatusMenu m_menu;
  std::string m_image;
  std::vector<double> m_offsets;
  bool m_isItemThere = false;
  bool m_hasButton = true;
};

}  // namespace testsupport
