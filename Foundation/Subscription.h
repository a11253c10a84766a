#pragma once

#include <functional>
#include <utility>

namespace foundation {

/// The hold on something that goes on until it is ended: a subscription, a timer, an observation.
/// Move-only; ending is what its destructor does, so its owner declares it last and needs no other clean-up.
/// Thread: that of what it holds, which is the main thread wherever nothing else is said.
class [[nodiscard]] Subscription final {
 public:
  Subscription() = default;
  /// `end` runs exactly once: at `cancel`, at assignment of another hold, or at destruction.
  explicit Subscription(std::function<void()> end) : m_end(std::move(end)) {}
  Subscription(Subscription&& other) noexcept : m_end(std::exchange(other.m_end, nullptr)) {}
  Subscription& operator=(Subscription&& other) noexcept {
    if (this != &other) {
      cancel();
      m_end = std::exchange(other.m_end, nullptr);
    }
    return *this;
  }
  Subscription(const Subscription&) = delete;
  Subscription& operator=(const Subscription&) = delete;
  ~Subscription() { cancel(); }

  void cancel() {
    if (auto end = std::exchange(m_end, nullptr)) end();
  }
  [[nodiscard]] bool isActive() const { return static_cast<bool>(m_end); }

 private:
  std::function<void()> m_end;
};

}  // namespace foundation
