#pragma once

#include <functional>
#include <string>

#include "Defaults/Observable.h"

namespace defaults {

/// A switch bound to a setting that is on or off. Main thread only.
class Toggle final {
 public:
  using OnChange = std::function<void(bool isOn)>;

  /// `label`: what the switch is called, in the program's own terms. `onChange`, if any, is called with the new value
  /// whenever the value becomes another one, here or elsewhere. `defaults` outlives this object.
  Toggle(std::string label, Defaults& defaults, const Key<bool>& key, OnChange onChange = nullptr);

  [[nodiscard]] const std::string& label() const { return m_label; }
  [[nodiscard]] bool isOn() const { return m_observable.value(); }
  void flip() { m_observable.set(!isOn()); }

 private:
  void changed();

  std::string m_label;
  Observable<bool> m_observable;
  OnChange m_onChange;
  bool m_wasOn;
  foundation::Subscription m_subscription;
};

}  // namespace defaults
