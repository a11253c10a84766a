#include <cstddef>
#include <cstdint>
#include <string_view>
#include <variant>

#include "Quillmonger/shell/command/CommandMessage.h"
#include "Quillmonger/shell/command/CommandSyntax.h"
#include "tests/fuzz/Check.h"

// A message that can be read is sent and read again as the same; words of any kind have a meaning or an answer.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace quillmonger;
  const std::string_view text(reinterpret_cast<const char*>(bytes), size);
  if (const auto request = commandmessage::decodeRequest(text)) {
    fuzz::check(commandmessage::decodeRequest(commandmessage::encode(*request)) == request);
    const auto parsed = parseCommand(request->words);
    const auto* answer = std::get_if<CommandResult>(&parsed);
    fuzz::check(answer == nullptr || !answer->output.empty() || answer->exitCode == 2);
  }
  if (const auto result = commandmessage::decodeResult(text))
    fuzz::check(commandmessage::decodeResult(commandmessage::encode(*result)) == result);
  return 0;
}
