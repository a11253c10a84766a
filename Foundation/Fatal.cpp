#include "Foundation/Fatal.h"

#include <cstdlib>
#include <iostream>

namespace foundation {

void stopProcess(std::string_view message) {
  std::cout.flush();
  std::cerr << message << std::endl;
  std::abort();
}

}  // namespace foundation
