#include "Platform/desktopshortcuts/DesktopShortcuts.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "Foundation/Text.h"
#include "Platform/desktopshortcuts/GSettingsAccelerators.h"
#include "Platform/desktopshortcuts/KdeAccelerators.h"
#include "Platform/desktopshortcuts/KeyPlaces.h"
#include "Platform/desktopshortcuts/OpenboxAccelerators.h"
#include "Platform/desktopshortcuts/Parts.h"
#include "Platform/desktopshortcuts/XfceAccelerators.h"
#include "Platform/freedesktop/SmallFile.h"

namespace platform {

namespace {

// Several times what a desktop writes.
constexpr std::size_t largestFile = std::size_t{256} << 10;

DesktopShortcuts::Entry entryOf(const Accelerator& accelerator, const KeyPlaces& places) {
  DesktopShortcuts::Entry entry{true, std::nullopt, accelerator.modifiers};
  const auto place = places.placeOf(accelerator.keysym);
  if (!place) return entry;
  entry.code = place->code;
  if (entry.modifiers) *entry.modifiers |= place->modifiers;
  return entry;
}

}  // namespace

DesktopShortcuts::DesktopShortcuts(const sauce::InputSourceService& inputSources,
                                   std::vector<std::filesystem::path> configFolders,
                                   const XdgFolders::Environment& environment)
    : m_inputSources(inputSources), m_configFolders(std::move(configFolders)) {
  const std::string desktops = foundation::lowercased(environment("XDG_CURRENT_DESKTOP").value_or(""));
  for (const auto desktop : parts(desktops, ':'))
    m_desktops.emplace_back(desktop);
}

std::optional<std::vector<DesktopShortcuts::Entry>> DesktopShortcuts::copySymbolicHotKeys() const {
  std::optional<std::vector<Entry>> entries;
  const KeyPlaces places(m_inputSources);
  for (const std::string& desktop : m_desktops) {
    const auto accelerators = acceleratorsOf(desktop);
    if (!accelerators) continue;
    if (!entries) entries.emplace();
    std::ranges::transform(*accelerators, std::back_inserter(*entries),
                           [&places](const Accelerator& accelerator) { return entryOf(accelerator, places); });
  }
  return entries;
}

DesktopShortcuts::Accelerators DesktopShortcuts::acceleratorsOf(const std::string& desktop) const {
  if (desktop == "xfce") return inXfce();
  if (desktop == "kde") return inPlasma();
  if (desktop == "lxde") return inOpenbox("openbox/lxde-rc.xml");
  if (desktop == "openbox" || desktop == "lxqt") return inOpenbox("openbox/rc.xml");
  auto accelerators = gSettingsAccelerators(desktop);
  return accelerators.empty() ? std::nullopt : Accelerators(std::move(accelerators));
}

DesktopShortcuts::Accelerators DesktopShortcuts::inXfce() const {
  return xfceAccelerators(read("xfce4/xfconf/xfce-perchannel-xml/xfce4-keyboard-shortcuts.xml"));
}

DesktopShortcuts::Accelerators DesktopShortcuts::inPlasma() const {
  const auto files = read("kglobalshortcutsrc");
  return files.empty() ? std::nullopt : Accelerators(kdeAccelerators(files.front()));
}

DesktopShortcuts::Accelerators DesktopShortcuts::inOpenbox(const char* file) const {
  const auto files = read(file);
  return files.empty() ? std::nullopt : openboxAccelerators(files.front());
}

std::vector<std::string> DesktopShortcuts::read(const char* file) const {
  std::vector<std::string> contents;
  for (const auto& folder : m_configFolders) {
    if (auto content = readSmallFile(folder / file, largestFile)) contents.push_back(std::move(*content));
  }
  return contents;
}

}  // namespace platform
