#include "Defaults/UserDefaults.h"

#include <atomic>
#include <utility>

#include "Foundation/Output.h"

namespace defaults {

namespace {

thread_local bool isHoldingBack = false;

struct HoldingBack {
  HoldingBack() { isHoldingBack = true; }
  HoldingBack(const HoldingBack&) = delete;
  HoldingBack& operator=(const HoldingBack&) = delete;
  ~HoldingBack() { isHoldingBack = false; }
};

bool wantsPrior(ObservationOptions options) { return options == ObservationOptions::prior; }

bool wantsInitial(ObservationOptions options) {
  return options == ObservationOptions::initial || options == ObservationOptions::initialAndPrior;
}

}  // namespace

struct UserDefaults::Entry {
  std::string name;
  ObservationOptions options;
  Observer observer;
  std::atomic<bool> isActive = true;
};

UserDefaults::UserDefaults() : UserDefaults(Objects()) {}

UserDefaults::UserDefaults(Objects values)
    : m_stored(std::move(values)), m_observers(std::make_shared<std::vector<std::shared_ptr<Entry>>>()) {}

UserDefaults::~UserDefaults() = default;

std::optional<Object> UserDefaults::find(std::string_view name) const {
  if (const auto stored = m_stored.find(name); stored != m_stored.end()) return stored->second;
  if (const auto registered = m_registered.find(name); registered != m_registered.end()) return registered->second;
  return std::nullopt;
}

std::optional<Object> UserDefaults::objectForKey(std::string_view name) const {
  const std::lock_guard lock(m_mutex);
  return find(name);
}

void UserDefaults::setObject(std::string_view name, Object object) {
  if (object.isDeeperThan(Object::depthLimit)) {
    foundation::printLine("Defaults: a value is nested too deeply and is not stored: ", name);
    removeObject(name);
  } else {
    change(name, std::move(object));
  }
}

void UserDefaults::removeObject(std::string_view name) { change(name, std::nullopt); }

void UserDefaults::registerDefaults(const Objects& objects) {
  const std::lock_guard lock(m_mutex);
  for (const auto& [name, object] : objects)
    m_registered.insert_or_assign(name, object);
}

Objects UserDefaults::dictionaryRepresentation() const {
  const std::lock_guard lock(m_mutex);
  Objects all = m_stored;
  all.insert(m_registered.begin(), m_registered.end());
  return all;
}

Objects UserDefaults::storedObjects() const {
  const std::lock_guard lock(m_mutex);
  return m_stored;
}

void UserDefaults::removeAll() {
  for (const auto& entry : storedObjects())
    removeObject(entry.first);
}

void UserDefaults::change(std::string_view name, std::optional<Object> object) {
  BaseChange told;
  told.oldValue = objectForKey(name);
  told.isPrior = true;
  tell(name, told);
  {
    const std::lock_guard lock(m_mutex);
    told.oldValue = find(name);
    if (object.has_value()) {
      m_stored.insert_or_assign(std::string(name), *std::move(object));
    } else if (const auto stored = m_stored.find(name); stored != m_stored.end()) {
      m_stored.erase(stored);
    }
    told.newValue = find(name);
  }
  didChange(name);
  told.isPrior = false;
  tell(name, told);
}

void UserDefaults::tell(std::string_view name, const BaseChange& change) const {
  if (isHoldingBack) return;
  std::vector<std::shared_ptr<Entry>> entries;
  {
    const std::lock_guard lock(*m_observersMutex);
    entries = *m_observers;
  }
  for (const auto& entry : entries) {
    if (entry->name != name || !entry->isActive) continue;
    if (!change.isPrior || wantsPrior(entry->options)) entry->observer(change);
  }
}

foundation::Subscription UserDefaults::addObserver(std::string_view name, ObservationOptions options,
                                                   Observer observer) {
  auto entry = std::make_shared<Entry>();
  entry->name = name;
  entry->options = options;
  entry->observer = std::move(observer);
  {
    const std::lock_guard lock(*m_observersMutex);
    m_observers->push_back(entry);
  }
  if (wantsInitial(options) && !isHoldingBack) {
    entry->observer({.newValue = objectForKey(name), .oldValue = std::nullopt});
  }
  // The store alone owns the observer, so that one which holds its own subscription goes with the store.
  return foundation::Subscription(
      [weak = std::weak_ptr(entry), observers = std::weak_ptr(m_observers), mutex = m_observersMutex] {
        const auto ended = weak.lock();  // until after the lock: what the observer holds may use the store as it goes
        if (!ended) return;
        ended->isActive = false;
        const std::lock_guard lock(*mutex);
        if (const auto present = observers.lock()) std::erase(*present, ended);
      });
}

void UserDefaults::withoutPropagation(const std::function<void()>& body) {
  const HoldingBack hold;
  body();
}

void UserDefaults::didChange(std::string_view) {}

}  // namespace defaults
