#pragma once

#include <string>

#include "Foundation/RunLoop.h"

namespace quillmonger {

/// A moment as seen from another one: "3 hours ago", "in 1 year".
struct RelativeDate {
  std::string text;
  /// The unit of the text: it stands for no longer than that.
  foundation::Seconds unit;
};

/// In the user's language, with the full names of the units, and always with a number. The largest unit of which there
/// is a whole one is used, from seconds to years; one month is a twelfth of a mean year.
[[nodiscard]] RelativeDate relativeDate(foundation::Date date, foundation::Date now);

}  // namespace quillmonger
