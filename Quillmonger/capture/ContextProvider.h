#pragma once

#include <filesystem>
#include <memory>

#include "Foundation/RunLoop.h"
#include "Quillmonger/capture/StoreContext.h"
#include "Quillmonger/capture/StoreFailureDialog.h"

namespace quillmonger {

/// Owns the one store context of the process. The program has no mode without a store: when it can't be opened, the
/// user is told and the process stops. Main thread.
class ContextProvider final {
 public:
  enum class InMemory : bool { no, yes };

  /// `folder` is where the store lies. `inMemory` is kept and not consulted: the store is always on the disk.
  ContextProvider(StoreFailureDialog& dialogManager, std::filesystem::path folder, foundation::RunLoop& runLoop,
                  InMemory inMemory = InMemory::no);

  [[nodiscard]] InMemory inMemory() const { return m_inMemory; }
  /// Opens the store at the first call.
  [[nodiscard]] StoreContext& context();

 private:
  StoreFailureDialog& m_dialogManager;
  std::filesystem::path m_folder;
  foundation::RunLoop& m_runLoop;
  InMemory m_inMemory;
  std::unique_ptr<StoreContext> m_context;
};

}  // namespace quillmonger
