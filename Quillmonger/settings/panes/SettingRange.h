#pragma once

#include <algorithm>
#include <cmath>
#include <concepts>
#include <functional>
#include <utility>

#include "Defaults/Defaults.h"

namespace quillmonger {

/// A setting that takes the numbers of a range. Main thread.
class SettingRange final {
 public:
  struct Bounds {
    double from = 0;
    double to = 1;
    /// From one number to the next; 0 where every number of the range is taken.
    double step = 0;
  };

  /// `changed` is called after each change of the setting, whoever made it. `defaults` outlives this object.
  template <std::floating_point T>
  SettingRange(defaults::Defaults& defaults, const defaults::Key<T>& key, const Bounds& bounds,
               std::function<void()> changed)
      : m_bounds(bounds),
        m_value([&defaults, key] { return static_cast<double>(defaults[key]); }),
        m_set([&defaults, key](double value) { defaults.set(key, static_cast<T>(value)); }),
        m_updates(defaults.updates<T>(key, defaults::Defaults::Initial::no,
                                      [changed = std::move(changed)](const T&) { changed(); })) {}

  [[nodiscard]] const Bounds& bounds() const { return m_bounds; }
  /// Within the bounds, whatever is stored.
  [[nodiscard]] double value() const { return std::clamp(m_value(), m_bounds.from, m_bounds.to); }
  /// Stores the step that is next to `value` and within the bounds.
  void set(double value) { m_set(nearestStep(std::clamp(value, m_bounds.from, m_bounds.to))); }

 private:
  [[nodiscard]] double nearestStep(double value) const {
    if (m_bounds.step <= 0) return value;
    const double last = std::floor((m_bounds.to - m_bounds.from) / m_bounds.step);
    const double step = std::min(std::round((value - m_bounds.from) / m_bounds.step), last);
    return m_bounds.from + step * m_bounds.step;
  }

  Bounds m_bounds;
  std::function<double()> m_value;
  std::function<void(double)> m_set;
  foundation::Subscription m_updates;
};

}  // namespace quillmonger
