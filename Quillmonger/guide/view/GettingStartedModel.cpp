#include "Quillmonger/guide/view/GettingStartedModel.h"

#include <utility>

namespace quillmonger {

GettingStartedModel::GettingStartedModel(QString chord, std::function<void()> finish)
    : m_chord(std::move(chord)), m_finish(std::move(finish)) {}

void GettingStartedModel::setChord(const QString& chord) {
  m_chord = chord;
  emit chordChanged();
}

}  // namespace quillmonger
