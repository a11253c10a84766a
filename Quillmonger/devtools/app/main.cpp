// quillmonger-synthesize numbers|colours [SECONDS [COUNT]]: writes made-up content to the clipboard again and again, by
// default a hundred times, one each second.

#include <QCoreApplication>
#include <charconv>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <string_view>

#include "Platform/qt/QtRunLoop.h"
#include "Platform/x11/X11Pasteboard.h"
#include "Quillmonger/devtools/SyntheticDataGenerator.h"

namespace {

using quillmonger::SyntheticDataGenerator;

// What word stands for; absent unless it is a number in the range.
template <typename Number>
std::optional<Number> number(std::string_view word, Number least, Number most) {
  Number value{};
  const auto [end, failure] = std::from_chars(word.data(), word.data() + word.size(), value);
  const bool isNumber = failure == std::errc() && end == word.data() + word.size();
  return isNumber && value >= least && value <= most ? std::optional(value) : std::nullopt;
}

SyntheticDataGenerator::EntryPoint entryPoint(std::string_view word) {
  if (word == "numbers") return &SyntheticDataGenerator::writeSequential;
  if (word == "colours") return &SyntheticDataGenerator::writeToClipboard;
  return nullptr;
}

int run(SyntheticDataGenerator::EntryPoint entry, double seconds, std::int64_t count) {
  platform::QtRunLoop runLoop;
  const auto pasteboard = platform::X11Pasteboard::connect(runLoop, quillmonger::TypeFilter());
  if (!pasteboard) {
    std::cerr << "quillmonger-synthesize needs an X11 display.\n";
    return EXIT_FAILURE;
  }
  SyntheticDataGenerator generator(*pasteboard);
  generator.repeat(runLoop, entry, foundation::Seconds(seconds), count, [] { QCoreApplication::quit(); });
  return QCoreApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  const auto entry = argc >= 2 && argc <= 4 ? entryPoint(argv[1]) : nullptr;
  const auto seconds = argc >= 3 ? number(argv[2], 0.01, 86400.0) : std::optional(1.0);
  const auto count = argc >= 4 ? number<std::int64_t>(argv[3], 1, 1'000'000'000) : std::optional<std::int64_t>(100);
  if (entry == nullptr || !seconds || !count) {
    std::cerr << "usage: quillmonger-synthesize numbers|colours [SECONDS [COUNT]]\n";
    return 2;
  }
  QCoreApplication application(argc, argv);
  return run(entry, *seconds, *count);
}
