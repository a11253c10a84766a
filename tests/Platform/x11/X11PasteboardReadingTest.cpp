#include "Platform/x11/X11Pasteboard.h"

#include "tests/Platform/x11/X11PasteboardFixture.h"

namespace testsupport {

TEST_F(X11PasteboardTest, ReadsWhatXclipCopies) {
  ChildProcess xclip = copyWithXclip("words");

  ASSERT_TRUE(advanceToNext());

  EXPECT_EQ(presentText(), "words");
}

}  // namespace testsupport
