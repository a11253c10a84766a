#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "Quillmonger/detection/OculetManager.h"
#include "Quillmonger/history/ClipboardItemViewModel.h"
#include "tests/support/FakeApplicationNaming.h"
#include "tests/support/FakeClipboard.h"
#include "tests/support/FakePictureReading.h"
#include "tests/support/TestDefaults.h"

namespace testsupport {

/// The English texts of what is told of an item.
inline std::string englishText(std::string_view key) {
  if (key == "%lld lines") return "{0, plural, one {# line} other {# lines}}";
  if (key == "Pasted %lld times") return "Pasted {0, plural, one {# time} other {# times}}";
  if (key == "byte_count_zero") return "Zero KB";
  if (key == "byte_count_bytes") return "{0, plural, one {# byte} other {# bytes}}";
  if (key == "byte_count_kilobytes") return "{0} KB";
  if (key == "byte_count_megabytes") return "{0} MB";
  if (key == "byte_count_gigabytes") return "{0} GB";
  if (key == "byte_count_terabytes") return "{0} TB";
  return std::string(key);
}

/// What the items of a history need, without a desktop.
struct ItemServices {
  FakeClipboard clipboard;
  TestDefaults settings;
  FakeApplicationNaming naming;
  FakePictureReading pictures;
  std::shared_ptr<const quillmonger::OculetManager> oculetManager = quillmonger::makeOculetManager();
  std::shared_ptr<const quillmonger::ClipboardItemViewModel::Services> services =
      std::make_shared<const quillmonger::ClipboardItemViewModel::Services>(
          quillmonger::ClipboardItemViewModel::Services{clipboard, settings.defaults, naming, oculetManager, pictures,
                                                        englishText});
};

}  // namespace testsupport
