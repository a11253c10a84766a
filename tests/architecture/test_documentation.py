"""What the documents say of the tree is true."""

import re
import subprocess
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def tracked(*patterns):
    listed = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", *patterns],
                            cwd=ROOT, check=True, capture_output=True, text=True)
    return [ROOT / line for line in listed.stdout.splitlines() if (ROOT / line).exists()]


class Documentation(unittest.TestCase):
    def test_every_linked_file_exists(self):
        for document in tracked("*.md"):
            for link in re.findall(r"\]\(([^)#]+)(?:#[^)]*)?\)", document.read_text()):
                if "://" not in link:
                    self.assertTrue((document.parent / link).exists(), f"{document.name} links {link}")

    def test_every_named_path_exists(self):
        tops = ("Foundation|Defaults|Settings|Sauce|LaunchAtLogin|KeyboardShortcuts|Quillmonger|Platform|tests|bench|"
                "cmake|docs|packaging|script")
        for document in tracked("*.md"):
            for path in re.findall(rf"`((?:{tops})/[\w./-]*)`", document.read_text()):
                self.assertTrue((ROOT / path).exists(), f"{document.name} names {path}")

    def test_every_folder_of_the_map_is_there_and_every_top_folder_is_on_the_map(self):
        page = (ROOT / "docs/architecture.md").read_text()
        for source in tracked("*.cpp"):
            top = source.relative_to(ROOT).parts[0]
            self.assertIn(f"{top}/", page)


class Acknowledgements(unittest.TestCase):
    # What the build looks for, and the library that it is. The tests' own are not part of the program.
    LIBRARIES = {"Qt6": "Qt", "ICU": "ICU", "SQLite3": "SQLite", "nlohmann_json": "JSON for Modern C++",
                 "NETTLE": "Nettle", "HOGWEED": "Nettle", "CURL": "curl", "XCB": "XCB", "XKBCOMMON": "xkbcommon",
                 "XKBCOMMON_X11": "xkbcommon", "PULSE": "PulseAudio", "GLIB": "GLib", "GIO": "GLib",
                 "LIBAV": "FFmpeg", "rapidjson": "RapidJSON"}
    OF_THE_BUILD = {"PkgConfig", "Threads", "GTest", "benchmark"}

    def test_every_library_of_the_program_is_named_with_its_licence(self):
        outside = (ROOT / "cmake/QuillmongerOutside.cmake").read_text()
        found = set(re.findall(r"(?:find_package|pkg_check_modules)\((\w+)", outside)) - self.OF_THE_BUILD
        if "rapidjson" in outside:
            found.add("rapidjson")
        page = (ROOT / "Quillmonger/resources/acknowledgements.html").read_text()
        for name in found:
            self.assertIn(name, self.LIBRARIES, "a library without a name for people")
            self.assertRegex(page, rf"<dt>{re.escape(self.LIBRARIES[name])}</dt><dd>.*(License|Public domain)")


class Sources(unittest.TestCase):
    def test_every_file_is_formatted(self):
        files = [str(path) for path in tracked("*.h", "*.cpp")]
        checked = subprocess.run(["clang-format-14", "--dry-run", "--Werror", *files], capture_output=True, text=True)
        self.assertEqual(checked.returncode, 0, checked.stderr[:2000])

    def test_no_file_outside_the_tests_holds_a_path_of_somebodys_machine(self):
        for path in tracked("*.h", "*.cpp", "*.qml", "*.md", "*.txt", "*.cmake", "script/*"):
            if path.relative_to(ROOT).parts[0] != "tests":
                self.assertNotRegex(path.read_text(), r"/(home|Users)/[a-z]+/", str(path))


if __name__ == "__main__":
    unittest.main()
