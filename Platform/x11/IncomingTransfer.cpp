#include "Platform/x11/IncomingTransfer.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "Platform/x11/X11Atoms.h"
#include "Platform/x11/X11Thread.h"

namespace platform {

namespace {

// The announced size is the owner's word alone: it spares some copying and commits to nothing.
constexpr std::size_t largestReserve = std::size_t{64} << 20;

}  // namespace

IncomingTransfer::IncomingTransfer(X11Thread& thread, X11Atoms& atoms, const Question& question, Completion completion)
    : m_thread(thread), m_atoms(atoms), m_question(question), m_completion(std::move(completion)) {
  m_sequence = xcb_convert_selection(thread.connection(), question.requestor, question.selection, question.target,
                                     question.property, question.time)
                   .sequence;
  restartPatience();
}

void IncomingTransfer::handleNotify(const xcb_selection_notify_event_t& event) {
  // An answer that came too late for an earlier question does not answer this one.
  if (m_isStreaming || event.selection != m_question.selection || event.target != m_question.target) return;
  if (event.property == XCB_ATOM_NONE) return finish(Outcome::refused);
  if (event.property != m_question.property) return;
  std::optional<X11Property> answer = readProperty(m_thread.connection(), m_question.requestor, m_question.property,
                                                   m_question.limit, AfterReading::deleteProperty);
  if (!answer) return finish(Outcome::unusable);
  if (answer->type == m_atoms.atom("INCR")) return beginStream(*answer);
  finish(Outcome::answered, *std::move(answer));
}

void IncomingTransfer::beginStream(const X11Property& announcement) {
  const auto sizes = announcement.numbers();
  if (!sizes.empty()) {
    m_received.bytes.reserve(std::min({std::size_t{sizes.front()}, m_question.limit, largestReserve}));
  }
  m_isStreaming = true;
  restartPatience();
}

void IncomingTransfer::handleProperty(const xcb_property_notify_event_t& event) {
  const bool isPiece = event.state == XCB_PROPERTY_NEW_VALUE && event.atom == m_question.property;
  if (m_isStreaming && isPiece) receivePiece();
}

void IncomingTransfer::receivePiece() {
  std::optional<X11Property> piece =
      readProperty(m_thread.connection(), m_question.requestor, m_question.property,
                   m_question.limit - m_received.bytes.size(), AfterReading::deleteProperty);
  if (!piece) return finish(Outcome::unusable);
  const bool isFirst = m_received.format == 0;
  if (piece->bytes.empty()) {
    if (isFirst) std::swap(m_received.type, piece->type), std::swap(m_received.format, piece->format);
    return finish(Outcome::answered, std::move(m_received));
  }
  if (!isFirst && (piece->type != m_received.type || piece->format != m_received.format)) {
    return finish(Outcome::unusable);
  }
  m_received.type = piece->type;
  m_received.format = piece->format;
  m_received.bytes += piece->bytes;
  restartPatience();
}

void IncomingTransfer::restartPatience() {
  m_patience = m_thread.after(m_question.patience, [this] { finish(Outcome::silent); });
}

void IncomingTransfer::finish(Outcome outcome, X11Property answer) {
  m_patience.cancel();
  // The completion may end this object: nothing of it is used any more.
  const Completion completion = std::move(m_completion);
  completion(outcome, std::move(answer));
}

}  // namespace platform
