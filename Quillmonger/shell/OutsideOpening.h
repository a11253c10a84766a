#pragma once

#include <functional>
#include <string>
#include <utility>

#include "Foundation/RunLoop.h"
#include "Foundation/TextLookup.h"
#include "Foundation/Url.h"
#include "Quillmonger/shell/Alert.h"

namespace quillmonger {

/// Opens addresses with the programs that the user has for them, and says so where that fails. Main thread.
class OutsideOpening final {
 public:
  /// A program that gives up later than this had opened the address.
  static constexpr foundation::Seconds giveUpTime{10};
  using Failed = std::function<void()>;

  struct Collaborators {
    /// Whether the desktop's opener could be started. `failed` is called later if the address could not be opened.
    std::function<bool(const foundation::Url&, Failed failed)> open;
    Alert& alert;
    foundation::TextLookup texts;
    foundation::RunLoop& runLoop;
    /// Makes a text the pasteboard's content.
    std::function<void(const std::string&)> copy;
  };

  /// All collaborators outlive this object, and it outlives the last turn of the main queue.
  explicit OutsideOpening(Collaborators collaborators) : m_with(std::move(collaborators)) {}

  /// Where nothing opens it, an alert has the address, which can be copied there.
  void open(const foundation::Url& url);
  /// Where nothing opens it, `failed` is called in a later turn.
  void open(const foundation::Url& url, const Failed& failed);

 private:
  void tellFailure(const std::string& address);

  Collaborators m_with;
};

}  // namespace quillmonger
