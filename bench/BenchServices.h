#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "KeyboardShortcuts/HotKeyService.h"
#include "KeyboardShortcuts/SymbolicHotKeys.h"
#include "Quillmonger/capture/ClipboardManaging.h"
#include "Quillmonger/input/LocalEventMonitoring.h"

/// A clipboard that the benchmark speaks for.
class BenchClipboard final : public quillmonger::ClipboardManaging {
 public:
  foundation::Stream<Record>& newItemPublisher() override { return m_newItems; }
  foundation::Stream<Record>& duplicateItemPublisher() override { return m_duplicates; }
  void startListening() override {}
  void writeToPasteboard(const quillmonger::ClipboardItem& /*item*/, RemoveFormatting /*removeFormatting*/) override {}
  void pasteIntoFrontmostApplication() override {}

 private:
  foundation::Stream<Record> m_newItems;
  foundation::Stream<Record> m_duplicates;
};

class NoHotKeys final : public keyboardshortcuts::HotKeyService {
 public:
  void setHotKeyHandler(HotKeyHandler /*handler*/) override {}
  void setRawKeyHandler(RawKeyHandler /*handler*/) override {}
  bool registerHotKey(const keyboardshortcuts::HotKeyIdentifier& /*identifier*/, std::uint32_t /*keyCode*/,
                      std::uint32_t /*modifiers*/) override {
    return false;
  }
  void unregisterHotKey(const keyboardshortcuts::HotKeyIdentifier& /*identifier*/) override {}
  [[nodiscard]] bool isHeldByAnother(std::uint32_t /*keyCode*/, std::uint32_t /*modifiers*/) override { return false; }
};

class NoSymbolicHotKeys final : public keyboardshortcuts::SymbolicHotKeys {
 public:
  [[nodiscard]] std::optional<std::vector<Entry>> copySymbolicHotKeys() const override { return std::nullopt; }
};

class NoKeyEvents final : public quillmonger::LocalEventMonitoring {
 public:
  foundation::Subscription addLocalMonitor(Handler /*handler*/) override { return {}; }
};

inline std::string noText(std::string_view key) { return std::string(key); }
