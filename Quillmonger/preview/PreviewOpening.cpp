#include "Quillmonger/preview/PreviewOpening.h"

#include <utility>

#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

PreviewOpening::PreviewOpening(Collaborators collaborators) : m_with(std::move(collaborators)) {
  m_selection = m_with.selectedItem.subscribe([this](const Item& item) { takeSelection(item); });
  m_activation = m_with.notificationCenter.observe("ClipboardActivated", [this](const auto&) { openIfWanted(); });
  m_findings = m_with.inspection.found().subscribe([this](const Item& item) {
    // A picture's colour is no reason: the preview was opened for the picture itself, and may have been closed since.
    if (item == m_with.selectedItem.value() && hasWantedResults(item)) openIfWanted();
  });
}

void PreviewOpening::takeSelection(const Item& item) {
  if (item == m_selectedItem.lock()) return;
  m_selectedItem = item;
  openIfWanted();
}

void PreviewOpening::openIfWanted() const {
  const Item item = m_with.selectedItem.value();
  // A hidden history's items are not examined.
  if (!item || !m_with.isMainWindowVisible()) return;
  if (deservesPreview(item)) m_with.showPreview();
}

bool PreviewOpening::deservesPreview(const Item& item) const {
  if (m_with.defaults[keys::autoOpenImagePreview] && item->isImage()) return true;
  return hasWantedResults(item);
}

bool PreviewOpening::hasWantedResults(const Item& item) const {
  return m_with.defaults[keys::autoOpenOculet] && m_with.inspection.hasOculetResults(item);
}

}  // namespace quillmonger
