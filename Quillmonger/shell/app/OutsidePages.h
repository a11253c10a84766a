#pragma once

#include "Foundation/Url.h"
#include "Quillmonger/settings/view/AboutModel.h"

namespace quillmonger {

/// The address of a page. Main thread.
[[nodiscard]] foundation::Url outsidePage(AboutModel::Page page);

}  // namespace quillmonger
