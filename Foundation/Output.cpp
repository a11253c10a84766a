#include "Foundation/Output.h"

#include <iostream>
#include <string>

namespace foundation {

void printLine(std::string_view text) {
  // One write a line, so that lines of several threads do not mix.
  std::cout << std::string(text) + "\n" << std::flush;
}

void printLine(std::string_view fixedText, std::string_view detail) {
  printLine(std::string(fixedText) + std::string(detail));
}

}  // namespace foundation
