#include "Quillmonger/settings/TruncationMode.h"

using quillmonger::TruncationMode;

std::optional<defaults::Object> defaults::Bridge<TruncationMode>::serialize(TruncationMode value) {
  if (value == TruncationMode::head) return Object(std::string("head"));
  if (value == TruncationMode::middle) return Object(std::string("middle"));
  return Object(std::string("tail"));
}

std::optional<TruncationMode> defaults::Bridge<TruncationMode>::deserialize(const Object& object) {
  const auto* text = object.as<std::string>();
  if (text == nullptr) return std::nullopt;
  if (*text == "head") return TruncationMode::head;
  if (*text == "middle") return TruncationMode::middle;
  return TruncationMode::tail;
}
