#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Defaults/Object.h"
#include "Foundation/Subscription.h"

namespace defaults {

using Objects = Object::Map;

/// Which notices an observer wants besides those after each change. `initialAndPrior` acts as `initial`.
enum class ObservationOptions : std::uint8_t { none, initial, prior, initialAndPrior };

/// What was done to a key's value. A setting is only ever set as a whole.
enum class ChangeKind : std::uint8_t { setting };

/// One change, untyped. A removed entry's `newValue` is the registered default, if there is one.
struct BaseChange {
  ChangeKind kind = ChangeKind::setting;
  /// Ahead of the change: `newValue` is absent then.
  bool isPrior = false;
  std::optional<Object> newValue;
  std::optional<Object> oldValue;
};

/// The key-value store of one program's settings, in memory. Any thread may use it; observers are called on the thread
/// that made the change, before the call that made it returns, in the order in which they subscribed, and may use the
/// store, also to change the very key.
class UserDefaults {
 public:
  using Observer = std::function<void(const BaseChange&)>;

  UserDefaults();
  explicit UserDefaults(Objects values);
  UserDefaults(const UserDefaults&) = delete;
  UserDefaults& operator=(const UserDefaults&) = delete;
  virtual ~UserDefaults();

  /// The stored object, or the registered one.
  [[nodiscard]] std::optional<Object> objectForKey(std::string_view name) const;
  /// An object deeper than `Object::depthLimit` is not stored: a line on standard output says so, and the entry is
  /// removed.
  void setObject(std::string_view name, Object object);
  void removeObject(std::string_view name);
  /// What `objectForKey` answers for a name that nothing is stored under. Never written; observers aren't told.
  void registerDefaults(const Objects& objects);
  /// Everything that `objectForKey` answers.
  [[nodiscard]] Objects dictionaryRepresentation() const;
  /// Only what was stored.
  [[nodiscard]] Objects storedObjects() const;
  /// Removes each stored object.
  void removeAll();

  /// The hold may outlive the store.
  foundation::Subscription addObserver(std::string_view name, ObservationOptions options, Observer observer);

  /// Runs `body`; what it changes on this thread is told to no observer. Not nested: the end of an inner call ends the
  /// outer one too.
  static void withoutPropagation(const std::function<void()>& body);

 protected:
  /// Called after each change of a stored object, ahead of the observers, on the thread that made it.
  virtual void didChange(std::string_view name);

 private:
  struct Entry;
  void change(std::string_view name, std::optional<Object> object);
  void tell(std::string_view name, const BaseChange& change) const;
  [[nodiscard]] std::optional<Object> find(std::string_view name) const;

  mutable std::mutex m_mutex;
  Objects m_stored;
  Objects m_registered;
  std::shared_ptr<std::vector<std::shared_ptr<Entry>>> m_observers;
  std::shared_ptr<std::mutex> m_observersMutex = std::make_shared<std::mutex>();
};

}  // namespace defaults
