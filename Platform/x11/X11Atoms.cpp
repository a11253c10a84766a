#include "Platform/x11/X11Atoms.h"

#include <cstdint>

#include "Platform/x11/X11Reply.h"

namespace platform {

namespace {

// Other programs choose names: the memory of them is bounded.
constexpr std::size_t rememberedLimit = 4096;

xcb_intern_atom_cookie_t request(xcb_connection_t* connection, std::string_view name) {
  return xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
}

xcb_atom_t reply(xcb_connection_t* connection, xcb_intern_atom_cookie_t cookie) {
  const X11Reply<xcb_intern_atom_reply_t> answer(xcb_intern_atom_reply(connection, cookie, nullptr));
  return answer ? answer->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

}  // namespace

xcb_atom_t X11Atoms::atom(std::string_view name) {
  if (const auto known = m_atoms.find(name); known != m_atoms.end()) return known->second;
  return atoms({std::string(name)}).front();
}

std::vector<xcb_atom_t> X11Atoms::atoms(const std::vector<std::string>& names) {
  std::vector<xcb_atom_t> result(names.size(), XCB_ATOM_NONE);
  std::vector<std::pair<std::size_t, xcb_intern_atom_cookie_t>> asked;
  for (std::size_t index = 0; index < names.size(); ++index) {
    const auto known = m_atoms.find(names[index]);
    if (known != m_atoms.end()) {
      result[index] = known->second;
    } else {
      asked.emplace_back(index, request(m_connection, names[index]));
    }
  }
  for (const auto& [index, cookie] : asked) {
    result[index] = reply(m_connection, cookie);
    remember(names[index], result[index]);
  }
  return result;
}

std::vector<std::string> X11Atoms::names(const std::vector<xcb_atom_t>& atoms) {
  std::map<xcb_atom_t, xcb_get_atom_name_cookie_t> asked;
  for (const xcb_atom_t atom : atoms) {
    if (!m_names.contains(atom) && !asked.contains(atom)) asked.emplace(atom, xcb_get_atom_name(m_connection, atom));
  }
  std::map<xcb_atom_t, std::string> answered;
  for (const auto& [atom, cookie] : asked) {
    const X11Reply<xcb_get_atom_name_reply_t> answer(xcb_get_atom_name_reply(m_connection, cookie, nullptr));
    if (!answer) continue;
    answered[atom].assign(xcb_get_atom_name_name(answer.get()),
                          static_cast<std::size_t>(xcb_get_atom_name_name_length(answer.get())));
  }
  std::vector<std::string> result;
  for (const xcb_atom_t atom : atoms) {
    if (const auto now = answered.find(atom); now != answered.end()) {
      result.push_back(now->second);
    } else if (const auto known = m_names.find(atom); known != m_names.end()) {
      result.push_back(known->second);
    }
  }
  for (const auto& [atom, name] : answered)
    remember(name, atom);
  return result;
}

void X11Atoms::remember(const std::string& name, xcb_atom_t atom) {
  if (atom == XCB_ATOM_NONE) return;
  if (m_atoms.size() >= rememberedLimit) {
    m_atoms.clear();
    m_names.clear();
  }
  m_atoms[name] = atom;
  m_names[atom] = name;
}

}  // namespace platform
