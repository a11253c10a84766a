#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Foundation/Data.h"
#include "Foundation/NotificationCenter.h"
#include "Foundation/RunLoop.h"
#include "Foundation/Subscription.h"
#include "Foundation/Uuid.h"
#include "Quillmonger/capture/BundleProviding.h"
#include "Quillmonger/capture/ClipboardManaging.h"
#include "Quillmonger/capture/IgnoredApps.h"
#include "Quillmonger/capture/PasteStep.h"
#include "Quillmonger/capture/Pasteboard.h"
#include "Quillmonger/capture/StoreContext.h"

namespace defaults {
class Defaults;
}

namespace quillmonger {

/// The name of the selection that the program watches: "ui-testing" when `arguments` hold "enable-ui-testing", so that
/// a driven run neither reads nor disturbs the user's clipboard; absent for the desktop's clipboard.
[[nodiscard]] std::optional<std::string_view> pasteboardName(const std::vector<std::string>& arguments);

/// The program's only contact with the clipboard: notices what is copied, decides what is kept, and writes items back.
/// It never changes the store; those who hear its streams do. Main thread.
class ClipboardManager final : public ClipboardManaging {
 public:
  struct Collaborators {
    Pasteboard& pasteboard;
    StoreContext& context;
    BundleProviding& bundleProvider;
    PasteStep& pasteStep;
    foundation::RunLoop& runLoop;
    foundation::NotificationCenter& notificationCenter;
    defaults::Defaults& defaults;
    const IgnoredApps& ignoredApps;
  };

  /// All collaborators outlive this object. What is on the pasteboard now is not captured later.
  explicit ClipboardManager(const Collaborators& collaborators);

  foundation::Stream<Record>& newItemPublisher() override { return m_newItemPublisher; }
  foundation::Stream<Record>& duplicateItemPublisher() override { return m_duplicateItemPublisher; }
  void startListening() override;
  void writeToPasteboard(const ClipboardItem& item, RemoveFormatting removeFormatting) override;
  void pasteIntoFrontmostApplication() override;

  /// Makes `text` the pasteboard's content: something derived from an item, such as another form of a date.
  void writeToPasteboard(const foundation::Data& text);

 private:
  using FoundRecord = foundation::Result<Record>;

  void followSettings();
  void updateTypeFilter();
  [[nodiscard]] TypeFilter typeFilter() const;
  void checkForChanges();
  void capture();
  [[nodiscard]] bool isIgnored(const BundleReference& source) const;
  [[nodiscard]] Record makeItem(const PasteboardContent& content, BundleReference source) const;
  foundation::Outcome addItem(const Record& item, std::int64_t count);
  FoundRecord findDuplicate(const ClipboardItem& item);
  FoundRecord findModified(const ClipboardItem& item);
  void startWriting();

  Collaborators m_with;
  foundation::Stream<Record> m_newItemPublisher;
  foundation::Stream<Record> m_duplicateItemPublisher;
  std::int64_t m_changeCount;
  bool m_isListening = false;
  // Which record was made of which content in this run, so that a content that says it modifies it can find it.
  std::map<std::int64_t, foundation::Uuid> m_itemLog;
  std::vector<foundation::Subscription> m_settings;
  foundation::Subscription m_listenTimer;
};

}  // namespace quillmonger
