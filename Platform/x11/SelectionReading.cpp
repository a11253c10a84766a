#include "Platform/x11/SelectionReading.h"

#include <algorithm>
#include <utility>

#include "Platform/x11/X11Atoms.h"
#include "Platform/x11/X11Thread.h"

namespace platform {

namespace {

xcb_window_t makeWindow(X11Thread& thread) {
  const xcb_window_t window = xcb_generate_id(thread.connection());
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_create_window(thread.connection(), XCB_COPY_FROM_PARENT, window, thread.screen().root, 0, 0, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
  return window;
}

// What an owner without a list of its types is asked for.
const std::vector<std::string>& textNames() {
  static const std::vector<std::string> names = {"UTF8_STRING", "STRING"};
  return names;
}

}  // namespace

SelectionReading::SelectionReading(X11Thread& thread, X11Atoms& atoms, xcb_timestamp_t time,
                                   const quillmonger::TypeFilter& filter, Completion completion)
    : m_thread(thread),
      m_atoms(atoms),
      m_time(time),
      m_filter(filter),
      m_completion(std::move(completion)),
      m_window(makeWindow(thread)) {}

SelectionReading::~SelectionReading() { xcb_destroy_window(m_thread.connection(), m_window); }

void SelectionReading::start() {
  m_patience = m_thread.after(patience, [this] { end(Streaming::end); });
  askForOffer();
}

// Into the same property each time: whichever question is answered first will do.
void SelectionReading::askForOffer() {
  ask({.target = m_atoms.atom("TARGETS"), .property = m_atoms.atom("QUILLMONGER_OFFER"), .patience = offerPatience},
      [this](Outcome outcome, const X11Property& answer) { takeOffer(outcome, answer); });
}

void SelectionReading::handleEvent(const xcb_generic_event_t& event) {
  if (!m_transfer) return;
  const int type = event.response_type & 0x7F;
  if (type == XCB_SELECTION_NOTIFY) {
    m_transfer->handleNotify(reinterpret_cast<const xcb_selection_notify_event_t&>(event));
  } else if (type == XCB_PROPERTY_NOTIFY) {
    m_transfer->handleProperty(reinterpret_cast<const xcb_property_notify_event_t&>(event));
  }
}

void SelectionReading::ask(const Asked& asked, IncomingTransfer::Completion completion) {
  const IncomingTransfer::Question question{.requestor = m_window,
                                            .property = asked.property,
                                            .selection = m_atoms.clipboard(),
                                            .target = asked.target,
                                            .time = m_time,
                                            .limit = byteLimit - m_byteCount,
                                            .patience = asked.patience};
  m_transfer = std::make_unique<IncomingTransfer>(
      m_thread, m_atoms, question, [this, completion = std::move(completion)](Outcome outcome, X11Property answer) {
        const auto done = std::move(m_transfer);
        if (outcome == Outcome::silent) m_isAnswerPending = true;
        completion(outcome, std::move(answer));
      });
}

void SelectionReading::takeOffer(Outcome outcome, const X11Property& answer) {
  if (outcome == Outcome::silent) return askForOffer();
  std::vector<std::string> names;
  const bool isList = answer.type == XCB_ATOM_ATOM || answer.type == m_atoms.atom("TARGETS");
  if (outcome == Outcome::answered && isList) {
    auto atoms = answer.numbers();
    // More than any program offers; a list made up to keep the server busy ends here.
    if (atoms.size() > 1024) atoms.resize(1024);
    names = m_atoms.names(atoms);
  }
  judge(OfferedTypes(names.empty() ? textNames() : names));
}

void SelectionReading::judge(OfferedTypes offered) {
  m_offered = std::move(offered);
  m_values.resize(m_offered->requests().size());
  m_isRejected = !m_filter.accepts(m_offered->types());
  if (m_isRejected) return finish();
  askNext();
}

void SelectionReading::askNext() {
  const auto& requests = m_offered->requests();
  while (m_request < requests.size() && m_name >= requests[m_request].names.size()) {
    ++m_request;
    m_name = 0;
  }
  if (m_isSuperseded || m_request == requests.size() || m_byteCount == byteLimit) return finish();
  const std::string property = "QUILLMONGER_ANSWER_" + std::to_string(m_silentQuestions);
  ask({.target = m_atoms.atom(requests[m_request].names[m_name]), .property = m_atoms.atom(property)},
      [this](Outcome outcome, X11Property answer) { takeValue(outcome, std::move(answer)); });
}

void SelectionReading::takeValue(Outcome outcome, X11Property answer) {
  if (outcome == Outcome::silent) {
    ++m_silentQuestions;
    if (!std::exchange(m_isAskedAgain, true)) return askNext();
  }
  m_isAskedAgain = false;
  const OfferedTypes::Request& request = m_offered->requests()[m_request];
  const std::string& name = request.names[m_name];
  std::optional<std::string> value;
  if (outcome == Outcome::answered && isOfUsableType(answer, name)) {
    value = OfferedTypes::decode(request, name, std::move(answer.bytes));
  }
  ++m_name;
  // Latin-1 text may have grown.
  if (value) m_byteCount = std::min(byteLimit, m_byteCount + value->size());
  // An owner that doesn't answer for one name of a type won't for another.
  if (value || outcome == Outcome::silent) m_name = request.names.size();
  m_values[m_request] = std::move(value);
  askNext();
}

bool SelectionReading::isOfUsableType(const X11Property& answer, const std::string& name) {
  return answer.format == 8 && (answer.type == m_atoms.atom(name) || answer.type == XCB_ATOM_STRING ||
                                answer.type == m_atoms.atom("UTF8_STRING"));
}

void SelectionReading::supersede(std::uint32_t sequence) {
  if (isFinished()) return;
  m_isSuperseded = true;
  const bool isForAnother = m_transfer && !m_transfer->isStreaming() && m_transfer->sequence() > sequence;
  // A list of types alone is of no use any more, since nothing can be asked.
  if (!m_offered || isForAnother) end(Streaming::end);
}

void SelectionReading::end(Streaming streaming) {
  if (isFinished()) return;
  if (m_transfer) {
    if (streaming == Streaming::letGoOn && m_transfer->isStreaming()) return;
    m_transfer.reset();
    m_isAnswerPending = true;
  }
  finish();
}

void SelectionReading::finish() {
  m_patience.cancel();
  if (!m_offered) m_offered = OfferedTypes({});
  Result result{.offered = *std::move(m_offered), .values = std::nullopt};
  if (!m_isRejected) result.values = std::move(m_values);
  const Completion completion = std::exchange(m_completion, nullptr);
  completion(std::move(result));
}

}  // namespace platform
