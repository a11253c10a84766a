#include "Platform/x11/X11Pasteboard.h"

#include <algorithm>
#include <utility>

#include "Foundation/Output.h"

namespace platform {

using quillmonger::PasteboardItem;

std::unique_ptr<X11Pasteboard> X11Pasteboard::connect(foundation::RunLoop& runLoop,
                                                      const quillmonger::TypeFilter& filter, const std::string& display,
                                                      const std::string& selection) {
  auto thread = X11Thread::connect(display);
  if (!thread) return nullptr;
  std::unique_ptr<X11Pasteboard> pasteboard(new X11Pasteboard(runLoop, std::move(thread), selection, filter));
  if (!pasteboard->m_session->prepare()) return nullptr;
  pasteboard->m_thread->start(
      [session = pasteboard->m_session.get()](const xcb_generic_event_t& event) { session->handleEvent(event); },
      [] { foundation::printLine("the display has closed the clipboard's connection"); });
  return pasteboard;
}

X11Pasteboard::X11Pasteboard(foundation::RunLoop& runLoop, std::unique_ptr<X11Thread> thread,
                             const std::string& selection, const quillmonger::TypeFilter& filter)
    : m_runLoop(runLoop),
      m_thread(std::move(thread)),
      m_session(std::make_unique<X11ClipboardSession>(
          *m_thread, selection, filter, [&runLoop, line = std::weak_ptr(m_line)](ClipboardSnapshot snapshot) {
            runLoop.post([line, snapshot = std::move(snapshot)] {
              if (const auto present = line.lock()) present->push(snapshot);
            });
          })) {}

X11Pasteboard::~X11Pasteboard() { m_thread->stop(); }

void X11Pasteboard::setTypeFilter(const quillmonger::TypeFilter& filter) {
  m_thread->run([session = m_session.get(), filter] { session->setFilter(filter); });
}

void X11Pasteboard::clearContents() {
  const bool isScheduled = m_draft.has_value();
  m_draft.emplace();
  if (isScheduled) return;
  m_session->announceWrite();
  m_runLoop.post([this, line = std::weak_ptr(m_line)] {
    if (!line.expired()) commit();
  });
}

void X11Pasteboard::setString(std::string_view text, std::string_view type) {
  setData(foundation::Data(std::string(text)), type);
}

void X11Pasteboard::setData(const std::optional<foundation::Data>& data, std::string_view type) {
  if (!m_draft) return;
  auto& representations = m_draft->representations;
  const auto same = std::ranges::find(representations, type, &PasteboardItem::Representation::type);
  if (same != representations.end()) {
    same->data = data;
  } else {
    representations.push_back({std::string(type), data});
  }
}

void X11Pasteboard::commit() {
  std::vector<PasteboardItem> items{*std::move(m_draft)};
  m_draft.reset();
  m_thread->run([session = m_session.get(), items = std::move(items)] { session->write(items); });
}

}  // namespace platform
