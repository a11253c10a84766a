#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include "Quillmonger/shell/command/CommandForm.h"

namespace {

using quillmonger::commandForms;

// What tells the user of the commands besides the program itself: each must know all of them.
class PackagedHelp : public testing::TestWithParam<const char*> {
 protected:
  [[nodiscard]] static std::string text() {
    std::ostringstream text;
    text << std::ifstream(std::string(QUILLMONGER_SOURCE "/") + GetParam()).rdbuf();
    return text.str();
  }
};

TEST_P(PackagedHelp, KnowsEachCommandAndEachOption) {
  const auto all = text();

  for (const auto& form : commandForms()) {
    EXPECT_NE(all.find(form.words[0]), std::string::npos) << form.words[0];
    EXPECT_NE(all.find(form.words[1]), std::string::npos) << form.words[1];
    for (const auto option : form.options)
      EXPECT_NE(all.find(option.substr(2)), std::string::npos) << option;
  }
}

INSTANTIATE_TEST_SUITE_P(Files, PackagedHelp,
                         testing::Values("docs/command-line.md", "packaging/quillmonger.1",
                                         "packaging/completions/quillmonger.bash", "packaging/completions/_quillmonger",
                                         "packaging/completions/quillmonger.fish"));

}  // namespace
