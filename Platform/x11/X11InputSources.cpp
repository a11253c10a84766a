#include "Platform/x11/X11InputSources.h"

#include <utility>
#include <variant>

#include "Foundation/Output.h"
#include "Foundation/Stream.h"
#include "Platform/keyboard/XkbInputSources.h"
#include "Platform/x11/XkbConnection.h"

namespace platform {

namespace {

// One change of the keyboard comes as several events: the program that sets a keymap sets the names after it.
constexpr std::chrono::milliseconds changeTime{100};

XkbInputSources inputSources(XkbConnection& xkb) { return {xkb.keymap(), xkb.layoutIdentifiers(), xkb.group()}; }

}  // namespace

// What is known now, and who is told when that changes.
struct X11InputSources::Present {
  explicit Present(XkbInputSources initial) : sources(std::move(initial)) {}

  // The selected layout is told first, while its observers still know the layout before it.
  void replace(XkbInputSources next) {
    const bool isOtherLayout = next.selected() != sources.selected();
    const bool isOtherKeyboard = !next.isSameKeyboard(sources);
    sources = std::move(next);
    if (isOtherLayout) selectedChanged.send({});
    if (isOtherKeyboard) enabledChanged.send({});
  }

  void select(std::size_t group) {
    const auto before = sources.selected();
    sources.select(group);
    if (sources.selected() != before) selectedChanged.send({});
  }

  XkbInputSources sources;
  foundation::Stream<std::monostate> selectedChanged;
  foundation::Stream<std::monostate> enabledChanged;
};

// The server's events. On the thread alone once that is started.
class X11InputSources::Watch final {
 public:
  Watch(X11Thread& thread, foundation::RunLoop& runLoop)
      : m_thread(thread), m_runLoop(runLoop), m_xkb(thread.connection(), thread.screen().root) {}

  [[nodiscard]] XkbInputSources read() { return inputSources(m_xkb); }
  void tell(std::weak_ptr<Present> present) { m_present = std::move(present); }

  void handle(const xcb_generic_event_t& event) {
    if (m_xkb.isKeyboardChange(event)) {
      if (!m_reading.isActive()) m_reading = m_thread.after(changeTime, [this] { readAnew(); });
    } else if (const auto group = m_xkb.selectedGroup(event); group && !m_reading.isActive()) {
      post([group = *group](Present& present) { present.select(group); });
    }
  }

 private:
  void readAnew() {
    m_reading.cancel();
    // A server that sends no keymap now has not changed to the US layout by that.
    auto keymap = m_xkb.keymap();
    if (!keymap) return;
    const auto sources = std::make_shared<XkbInputSources>(std::move(keymap), m_xkb.layoutIdentifiers(), m_xkb.group());
    post([sources](Present& present) { present.replace(std::move(*sources)); });
  }

  void post(std::function<void(Present&)> change) {
    m_runLoop.post([weak = m_present, change = std::move(change)] {
      if (const auto present = weak.lock()) change(*present);
    });
  }

  X11Thread& m_thread;
  foundation::RunLoop& m_runLoop;
  XkbConnection m_xkb;
  std::weak_ptr<Present> m_present;
  foundation::Subscription m_reading;
};

std::unique_ptr<X11InputSources> X11InputSources::connect(foundation::RunLoop& runLoop, const std::string& display) {
  auto thread = X11Thread::connect(display);
  if (!thread) return nullptr;
  return std::unique_ptr<X11InputSources>(new X11InputSources(std::move(thread), runLoop));
}

X11InputSources::X11InputSources(std::unique_ptr<X11Thread> thread, foundation::RunLoop& runLoop)
    : m_watch(std::make_unique<Watch>(*thread, runLoop)), m_thread(std::move(thread)) {
  m_present = std::make_shared<Present>(m_watch->read());
  m_watch->tell(m_present);
  m_thread->start([this](const xcb_generic_event_t& event) { m_watch->handle(event); },
                  [] { foundation::printLine("The connection for keyboard layouts was lost."); });
}

X11InputSources::~X11InputSources() = default;

std::vector<sauce::InputSource> X11InputSources::enabledInputSources() const { return m_present->sources.enabled(); }

std::optional<sauce::InputSource> X11InputSources::currentKeyboardLayoutInputSource() const {
  return m_present->sources.selected();
}

std::optional<sauce::InputSource> X11InputSources::currentASCIICapableInputSource() const {
  return m_present->sources.asciiCapable();
}

bool X11InputSources::hasLayoutData(const sauce::InputSource& source) const {
  return m_present->sources.hasLayoutData(source);
}

std::optional<std::string> X11InputSources::translate(const sauce::InputSource& source, sauce::KeyCode keyCode,
                                                      std::uint32_t modifiers) const {
  return m_present->sources.translate(source, keyCode, modifiers);
}

foundation::Subscription X11InputSources::observeSelectedInputSource(Observer observer) {
  return m_present->selectedChanged.subscribe([observer = std::move(observer)](std::monostate) { observer(); });
}

foundation::Subscription X11InputSources::observeEnabledInputSources(Observer observer) {
  return m_present->enabledChanged.subscribe([observer = std::move(observer)](std::monostate) { observer(); });
}

}  // namespace platform
