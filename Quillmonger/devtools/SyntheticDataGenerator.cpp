#include "Quillmonger/devtools/SyntheticDataGenerator.h"

#include <limits>
#include <memory>
#include <random>
#include <string>
#include <utility>

#include "Foundation/Fatal.h"
#include "Quillmonger/capture/PasteboardTypes.h"

namespace quillmonger {

namespace {

// The high word of the product of the value and 256. Since 256 divides the number of values, each result is as likely
// as the others and none has to be drawn again.
std::string component(std::uint64_t value) { return std::to_string(value >> 56); }

}  // namespace

SyntheticDataGenerator::SyntheticDataGenerator(Pasteboard& pasteboard, RandomSource random, std::int64_t first)
    : m_pasteboard(pasteboard), m_random(std::move(random)), m_n(first) {}

void SyntheticDataGenerator::writeSequential() {
  write(std::to_string(m_n));
  if (m_n == std::numeric_limits<std::int64_t>::max()) foundation::stopProcess("There is no next number.");
  ++m_n;
}

void SyntheticDataGenerator::writeToClipboard() {
  const std::string red = component(m_random());
  const std::string green = component(m_random());
  const std::string blue = component(m_random());
  write("rgb(" + red + ", " + green + ", " + blue + ")");
}

void SyntheticDataGenerator::repeat(foundation::RunLoop& runLoop, EntryPoint entryPoint, foundation::Seconds interval,
                                    std::int64_t count, std::function<void()> done) {
  const auto left = std::make_shared<std::int64_t>(count);
  m_timer = runLoop.every(interval, [this, entryPoint, left, done = std::move(done)] {
    if ((*left)-- > 0) {
      (this->*entryPoint)();
      return;
    }
    m_timer.cancel();
    done();
  });
}

std::uint64_t SyntheticDataGenerator::systemRandom() {
  static std::random_device device;
  return std::uniform_int_distribution<std::uint64_t>()(device);
}

void SyntheticDataGenerator::write(const std::string& text) {
  m_pasteboard.clearContents();
  m_pasteboard.setString(text, pasteboardtype::NSPasteboardTypeString);
}

}  // namespace quillmonger
