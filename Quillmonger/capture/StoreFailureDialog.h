#pragma once

namespace quillmonger {

/// Tells the user that the program can't go on. Main thread.
class StoreFailureDialog {
 public:
  StoreFailureDialog() = default;
  StoreFailureDialog(const StoreFailureDialog&) = delete;
  StoreFailureDialog& operator=(const StoreFailureDialog&) = delete;
  virtual ~StoreFailureDialog() = default;

  /// Returns when the user has dismissed it.
  virtual void showGenericErrorAlert() = 0;
};

}  // namespace quillmonger
