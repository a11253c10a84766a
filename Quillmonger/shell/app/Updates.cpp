#include "Quillmonger/shell/app/Updates.h"

#include <QCoreApplication>
#include <optional>
#include <string>

#include "Platform/freedesktop/SmallFile.h"
#include "Platform/update/UpdateProcess.h"
#include "Quillmonger/update/FeedUpdater.h"
#include "Quillmonger/update/UpdateFeed.h"
#include "Quillmonger/update/view/UpdateWindow.h"

namespace quillmonger {

namespace {

std::filesystem::path besideProgram(const char* name) {
  return std::filesystem::path(QCoreApplication::applicationDirPath().toStdString()) / name;
}

// As the build was configured.
std::optional<UpdateFeed> installedFeed() {
  const auto text = platform::readSmallFile(besideProgram("update-feed"), UpdateFeed::sizeLimit);
  return text ? UpdateFeed::parse(*text) : std::nullopt;
}

}  // namespace

class Updates::Configured final {
 public:
  Configured(const UpdateFeed& feed, const Collaborators& with)
      : m_service({besideProgram("quillmonger-update"), feed, QCoreApplication::applicationVersion().toStdString(),
                   with.folder}),
        m_window(with.model, with.window),
        m_updater({with.defaults, with.runLoop, m_service, m_window,
                   [&opening = with.opening](const auto& file, const auto& failed) {
                     opening.open(foundation::Url::fromFilePath(file.string()), failed);
                   }}) {
    with.model.answered = [this](UpdateContent::Answer answer) { take(answer); };
  }

  [[nodiscard]] Updater& updater() { return m_updater; }

 private:
  void take(UpdateContent::Answer answer) {
    switch (answer) {
      case UpdateContent::Answer::download:
        return m_updater.download();
      case UpdateContent::Answer::install:
        return m_updater.install();
      case UpdateContent::Answer::skip:
        return m_updater.skip();
      case UpdateContent::Answer::close:
        return m_updater.close();
    }
  }

  platform::UpdateProcess m_service;
  UpdateWindow m_window;
  FeedUpdater m_updater;
};

Updates::Updates(const Collaborators& collaborators) {
  if (const auto feed = installedFeed()) m_configured = std::make_unique<Configured>(*feed, collaborators);
}

Updates::~Updates() = default;

Updater& Updates::updater() { return m_configured ? m_configured->updater() : m_unconfigured; }

}  // namespace quillmonger
