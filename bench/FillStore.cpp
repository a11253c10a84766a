// Fills a store with text records for the measurements: fill_store FOLDER COUNT SMALLEST LARGEST, sizes in bytes.

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <iostream>
#include <memory>
#include <random>
#include <string>

#include "Quillmonger/capture/PasteboardTypes.h"
#include "Quillmonger/capture/SqliteStoreContext.h"
#include "bench/IdleRunLoop.h"

namespace {

// Words and numbers that differ from record to record, as copies do.
std::string text(std::size_t size, std::mt19937_64& random) {
  std::string words = "record " + std::to_string(random()) + ": ";
  while (words.size() < size)
    words += std::to_string(random() % 100000) + " lorem ipsum ";
  words.resize(size, 'x');
  return words;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 5) {
    std::cerr << "usage: fill_store FOLDER COUNT SMALLEST LARGEST\n";
    return 2;
  }
  const std::size_t count = std::stoul(argv[2]);
  std::uniform_int_distribution<std::size_t> sizes(std::stoul(argv[3]), std::stoul(argv[4]));
  std::mt19937_64 random(1);
  IdleRunLoop runLoop;
  auto opened = quillmonger::SqliteStoreContext::open(std::filesystem::path(argv[1]), runLoop);
  if (!opened) {
    std::cerr << opened.error().message << "\n";
    return 1;
  }
  auto& context = *opened.value();
  const auto start = std::chrono::system_clock::now() - std::chrono::hours(24 * 30);
  for (std::size_t i = 0; i < count; ++i) {
    quillmonger::Payload payload;
    payload.emplace(quillmonger::pasteboardtype::NSPasteboardTypeString, foundation::Data(text(sizes(random), random)));
    context.insert(std::make_shared<quillmonger::ClipboardItem>(std::move(payload), std::nullopt, std::nullopt,
                                                                start + std::chrono::seconds(i)));
    if (i % 1000 == 999 && !context.save()) return 1;
  }
  return context.save() ? 0 : 1;
}
