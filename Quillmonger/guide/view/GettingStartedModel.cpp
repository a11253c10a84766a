#include "Quillmonger/guide/view/GettingStartedModel.h"

#include <utility>

namespace quillmonger {

GettingStartedModel::GettingStartedModel(const Collaborators& collaborators) : m_with(collaborators) {
  m_screenSubscription = m_with.guide.currentScreen().subscribe([this](LaunchScreen) { emit currentScreenChanged(); });
  m_permissionSubscription =
      m_with.accessibility.permissionsGranted().subscribe([this](bool) { emit permissionsGrantedChanged(); });
}

int GettingStartedModel::currentScreen() const { return static_cast<int>(m_with.guide.currentScreen().value()); }

bool GettingStartedModel::permissionsGranted() const { return m_with.accessibility.permissionsGranted().value(); }

std::unique_ptr<VideoLooper> GettingStartedModel::makeVideoLooper(const std::string& name, VideoSize size,
                                                                  VideoReceiver receiver) const {
  return m_with.makeVideoLooper(name, size, std::move(receiver));
}

void GettingStartedModel::setChord(const QString& chord) {
  m_chord = chord;
  emit chordChanged();
}

}  // namespace quillmonger
