#include "Defaults/Toggle.h"

#include <utility>

namespace defaults {

Toggle::Toggle(std::string label, Defaults& defaults, const Key<bool>& key, OnChange onChange)
    : m_label(std::move(label)),
      m_observable(defaults, key),
      m_onChange(std::move(onChange)),
      m_wasOn(m_observable.value()),
      m_subscription(m_observable.objectWillChange().subscribe([this](const auto&) { changed(); })) {}

void Toggle::changed() {
  const bool isNowOn = isOn();
  if (std::exchange(m_wasOn, isNowOn) != isNowOn && m_onChange) m_onChange(isNowOn);
}

}  // namespace defaults
