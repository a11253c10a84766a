#include "Quillmonger/capture/ContextProvider.h"

#include <utility>

#include "Foundation/Fatal.h"
#include "Quillmonger/capture/SqliteStoreContext.h"

namespace quillmonger {

ContextProvider::ContextProvider(StoreFailureDialog& dialogManager, std::filesystem::path folder,
                                 foundation::RunLoop& runLoop, InMemory inMemory)
    : m_dialogManager(dialogManager), m_folder(std::move(folder)), m_runLoop(runLoop), m_inMemory(inMemory) {}

StoreContext& ContextProvider::context() {
  if (!m_context) {
    auto opened = SqliteStoreContext::open(m_folder, m_runLoop);
    if (!opened) {
      m_dialogManager.showGenericErrorAlert();
      foundation::stopProcess("Error initializing model context: " + opened.error().message);
    }
    m_context = std::move(opened.value());
  }
  return *m_context;
}

}  // namespace quillmonger
