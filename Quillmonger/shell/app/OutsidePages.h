#pragma once

#include "Quillmonger/settings/view/AboutModel.h"

namespace quillmonger {

/// Opens a page in the user's browser. What is not installed, or can't be shown, is told on standard output. Main
/// thread.
void openOutsidePage(AboutModel::Page page);

}  // namespace quillmonger
