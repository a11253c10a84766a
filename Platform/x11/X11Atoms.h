#pragma once

#include <xcb/xcb.h>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace platform {

/// The server's numbers for names, each asked for once. For the thread that uses the connection.
class X11Atoms final {
 public:
  /// `clipboard`: the name of the selection that stands for the clipboard.
  explicit X11Atoms(xcb_connection_t* connection, std::string clipboard = "CLIPBOARD")
      : m_connection(connection), m_clipboard(std::move(clipboard)) {}

  [[nodiscard]] xcb_atom_t clipboard() { return atom(m_clipboard); }

  /// The number of a name, which the server makes up when it is new; none when the connection is lost.
  [[nodiscard]] xcb_atom_t atom(std::string_view name);
  /// The same for many names, in one turn with the server.
  [[nodiscard]] std::vector<xcb_atom_t> atoms(const std::vector<std::string>& names);
  /// The names of numbers that another program sent, in one turn with the server. What is no number of a name is
  /// left out.
  [[nodiscard]] std::vector<std::string> names(const std::vector<xcb_atom_t>& atoms);

 private:
  void remember(const std::string& name, xcb_atom_t atom);

  xcb_connection_t* m_connection;
  std::string m_clipboard;
  std::map<std::string, xcb_atom_t, std::less<>> m_atoms;
  std::map<xcb_atom_t, std::string> m_names;
};

}  // namespace platform
