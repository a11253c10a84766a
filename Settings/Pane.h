#pragma once

#include <memory>
#include <string>

#include "Settings/PaneIdentifier.h"
#include "Settings/PaneView.h"

namespace settings {

/// A picture of one colour, and what it is called where it can't be seen.
struct ToolbarIcon {
  /// Its place, without the colour: the toolbar appends "?" and the colour's name.
  std::string source;
  std::string description;

  bool operator==(const ToolbarIcon&) const = default;
};

/// One page of a settings window. A value that is moved.
struct Pane {
  PaneIdentifier identifier;
  /// In the user's language.
  std::string title;
  ToolbarIcon toolbarIcon;
  std::unique_ptr<PaneView> content;
};

}  // namespace settings
