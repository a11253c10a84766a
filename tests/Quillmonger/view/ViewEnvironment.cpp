#include "Quillmonger/resources/EmojiFont.h"
#include "Quillmonger/resources/Texts.h"
#include "tests/support/qt/QtEnvironment.h"

namespace {

// What every view needs besides: the texts, and a font for emoji.
class ViewEnvironment final : public testsupport::QtEnvironment {
 public:
  void SetUp() override {
    QtEnvironment::SetUp();
    quillmonger::preferColourEmoji();
    QCoreApplication::installTranslator(&m_texts);
  }

 private:
  quillmonger::Texts m_texts;
};

[[maybe_unused]] const auto* const environment = testing::AddGlobalTestEnvironment(new ViewEnvironment);

}  // namespace
