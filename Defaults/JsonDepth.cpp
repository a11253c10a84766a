#include "Defaults/JsonDepth.h"

namespace defaults {

bool isDepthBounded(std::string_view text, int limit) {
  int depth = 0;
  bool isInString = false;
  for (std::size_t index = 0; index < text.size(); ++index) {
    const char character = text[index];
    if (isInString) {
      if (character == '\\') ++index;
      if (character == '"') isInString = false;
    } else if (character == '"') {
      isInString = true;
    } else if (character == '{' || character == '[') {
      if (++depth > limit) return false;
    } else if (character == '}' || character == ']') {
      --depth;
    }
  }
  return true;
}

}  // namespace defaults
