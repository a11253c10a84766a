#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "Quillmonger/detection/JsonWriter.h"

namespace quillmonger {

/// Deeper documents are refused.
constexpr std::size_t deepestJson = 512;

/// What is wrong with `text`, and at which byte, without a word of it; nothing if it is one JSON document, white space
/// around it included. A lone surrogate, ill-formed UTF-8 and a number beyond 64-bit floats are wrong. Any thread.
[[nodiscard]] std::optional<std::string> checkJson(std::string_view text);

/// The same, and hands what it reads to `writer`.
[[nodiscard]] std::optional<std::string> rewriteJson(std::string_view text, JsonWriter& writer);

}  // namespace quillmonger
