#include "Quillmonger/capture/ClipboardManager.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "Defaults/Defaults.h"
#include "Foundation/Fatal.h"
#include "Foundation/Output.h"
#include "Quillmonger/capture/PasteboardContent.h"
#include "Quillmonger/capture/PasteboardTypes.h"
#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

namespace {

constexpr foundation::Seconds timerInterval{0.15};

}  // namespace

std::optional<std::string_view> pasteboardName(const std::vector<std::string>& arguments) {
  const bool isDriven = std::find(arguments.begin(), arguments.end(), "enable-ui-testing") != arguments.end();
  return isDriven ? std::optional<std::string_view>("ui-testing") : std::nullopt;
}

ClipboardManager::ClipboardManager(const Collaborators& collaborators)
    : m_with(collaborators), m_changeCount(collaborators.pasteboard.changeCount()) {
  followSettings();
}

void ClipboardManager::followSettings() {
  for (const auto* key : {&keys::isIncognitoMode, &keys::ignoreSensitiveData, &keys::ignoreImages}) {
    m_settings.push_back(
        m_with.defaults.updates(*key, defaults::Defaults::Initial::no, [this](bool) { updateTypeFilter(); }));
  }
  updateTypeFilter();
}

void ClipboardManager::updateTypeFilter() { m_with.pasteboard.setTypeFilter(typeFilter()); }

TypeFilter ClipboardManager::typeFilter() const {
  return {.ignoreSensitiveData = m_with.defaults[keys::ignoreSensitiveData],
          .ignoreImages = m_with.defaults[keys::ignoreImages],
          .isIncognitoMode = m_with.defaults[keys::isIncognitoMode]};
}

void ClipboardManager::startListening() {
  if (m_isListening) foundation::stopProcess("startListening may only be called once");
  m_listenTimer = m_with.runLoop.every(timerInterval, [this] { checkForChanges(); });
  m_isListening = true;
}

void ClipboardManager::checkForChanges() {
  m_with.pasteboard.advance();
  if (m_with.pasteboard.changeCount() == m_changeCount) return;
  capture();
  m_changeCount = m_with.pasteboard.changeCount();
}

void ClipboardManager::capture() {
  if (!typeFilter().accepts(m_with.pasteboard.types())) return;
  const auto content = m_with.pasteboard.pasteboardItems();
  if (!content || content->isEmpty()) return;
  auto source = m_with.bundleProvider.frontmostBundle();
  if (isIgnored(source)) return;
  const auto outcome = addItem(makeItem(*content, std::move(source)), m_with.pasteboard.changeCount());
  if (!outcome) foundation::printLine("could not add new item: ", outcome.error().message);
}

bool ClipboardManager::isIgnored(const BundleReference& source) const {
  if (!source.identifier || !m_with.ignoredApps.contains(*source.identifier)) return false;
  foundation::printLine("ignoring clip from ignored app ", *source.identifier);
  return true;
}

// The content brings its digest along, so that nothing of its bytes is read here.
ClipboardManager::Record ClipboardManager::makeItem(const PasteboardContent& content, BundleReference source) const {
  return std::make_shared<ClipboardItem>(
      content.payload(), ClipboardItem::Attributes{.id = foundation::Uuid::random(),
                                                   .hashedData = content.digest(),
                                                   .sourceAppBundleIdentifier = std::move(source.identifier),
                                                   .sourceAppBundleURL = std::move(source.url),
                                                   .creationDate = m_with.runLoop.date()});
}

foundation::Outcome ClipboardManager::addItem(const Record& item, std::int64_t count) {
  const auto duplicate = findDuplicate(*item);
  if (!duplicate) return duplicate.error();
  if (duplicate.value()) {
    item->merge(*duplicate.value(), ClipboardItem::IncludingData::yes);
    m_duplicateItemPublisher.send(duplicate.value());
  }
  const auto modified = findModified(*item);
  if (!modified) return modified.error();
  if (modified.value()) {
    item->merge(*modified.value(), ClipboardItem::IncludingData::no);
    m_duplicateItemPublisher.send(modified.value());
  }
  m_newItemPublisher.send(item);
  m_itemLog.insert_or_assign(count, item->id());
  if (!modified.value()) m_with.notificationCenter.post("ItemCopied");
  return foundation::success();
}

ClipboardManager::FoundRecord ClipboardManager::findDuplicate(const ClipboardItem& item) {
  auto candidate = m_with.context.fetchByDigest(item.hashedData());
  if (candidate && candidate.value() && !(*candidate.value() == item)) return Record();
  return candidate;
}

ClipboardManager::FoundRecord ClipboardManager::findModified(const ClipboardItem& item) {
  const auto changeCount = item.modifiedChangeCount();
  if (!changeCount) return Record();
  const auto logged = m_itemLog.find(*changeCount);
  if (logged == m_itemLog.end()) return Record();
  return m_with.context.fetchById(logged->second);
}

void ClipboardManager::writeToPasteboard(const ClipboardItem& item, RemoveFormatting removeFormatting) {
  startWriting();
  const auto text = item.data(pasteboardtype::NSPasteboardTypeString);
  if (removeFormatting == RemoveFormatting::yes && text) {
    m_with.pasteboard.setData(text, pasteboardtype::NSPasteboardTypeString);
    return;
  }
  for (const auto& [type, data] : item.data())
    m_with.pasteboard.setData(data, type);
}

void ClipboardManager::writeToPasteboard(const foundation::Data& text) {
  startWriting();
  m_with.pasteboard.setData(text, pasteboardtype::NSPasteboardTypeString);
}

void ClipboardManager::startWriting() {
  m_with.pasteboard.clearContents();
  m_with.pasteboard.setString("", pasteboardtype::appMarker);
}

void ClipboardManager::pasteIntoFrontmostApplication() { m_with.pasteStep.pasteIntoFrontmostApplication(this); }

}  // namespace quillmonger
