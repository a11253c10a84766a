#pragma once

#include <functional>
#include <memory>
#include <string>

#include "Foundation/BackgroundQueue.h"
#include "Foundation/Data.h"
#include "Foundation/RunLoop.h"
#include "Quillmonger/detection/OculetResults.h"
#include "Quillmonger/preview/LatestWork.h"

namespace quillmonger {

/// How a JSON text is rewritten.
enum class JsonForm { beautified, minified };

/// What the copy buttons of the pane do. Main thread.
class OculetCopying final {
 public:
  struct Collaborators {
    /// Makes a text the pasteboard's content.
    std::function<void(const foundation::Data&)> writeToPasteboard;
    /// Tells the user that the text can't be made.
    std::function<void()> showAlert;
    foundation::BackgroundQueue& backgroundQueue;
    foundation::RunLoop& runLoop;
  };

  /// All collaborators outlive this object.
  explicit OculetCopying(Collaborators collaborators);

  /// Hears what was copied, once it is the pasteboard's content.
  using Copied = std::function<void(const foundation::Data&)>;

  /// Copies what `text` gives, which runs beside the main thread.
  void copy(
      std::function<std::string()> text, Copied copied = [](const auto&) {});
  /// Copies the JSON text of `results` in another form, which is worked out now, beside the main thread. When that
  /// fails the alert is shown and the pasteboard stays as it is.
  void copyJson(
      std::shared_ptr<const OculetResults> results, JsonForm form, Copied copied = [](const auto&) {});

 private:
  void write(const foundation::Data& text, const Copied& copied);

  Collaborators m_with;
  LatestWork m_work;
};

}  // namespace quillmonger
