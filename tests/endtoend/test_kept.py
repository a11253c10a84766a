"""What the history keeps of what real programs copy, and for how long."""

import signal
import subprocess
import time

from desktop import wait_until
from roadcase import RoadCase


class WhatIsKept(RoadCase):
    def test_every_type_of_a_rich_copy_with_its_source(self):
        self.desktop.start_app()
        self.open_qt_editor("plain")
        self.desktop.press("ctrl+a", "ctrl+c")

        record = self.desktop.wait_for_text("plain")

        self.assertIn("public.utf8-plain-text", record["types"])

    def test_the_same_copy_twice_is_one_row_on_top(self):
        self.desktop.start_app()
        for text in ("twice", "between", "twice"):
            self.desktop.copy(text)
            wait_until(lambda text=text: self.desktop.texts()[:1] == [text], "the copy on top")

        self.assertEqual(self.desktop.texts(), ["twice", "between"])

    def test_a_password_is_never_kept(self):
        self.desktop.start_app()
        self.desktop.copy("secret", target="x-kde-passwordManagerHint")
        self.desktop.copy("open")

        self.desktop.wait_for_text("open")

        self.assertEqual(self.desktop.texts(), ["open"])

    def test_nothing_while_incognito_is_on(self):
        self.desktop.start_app()
        self.desktop.quillmonger("defaults", "write", "isIncognitoMode", "true")
        self.desktop.copy("unseen")
        wait_until(lambda: self.desktop.clipboard() == b"unseen", "the copy on the clipboard")
        self.desktop.quillmonger("defaults", "write", "isIncognitoMode", "false")
        self.desktop.copy("seen")

        self.desktop.wait_for_text("seen")

        self.assertEqual(self.desktop.texts(), ["seen"])

    def test_everything_after_a_restart(self):
        self.desktop.start_app()
        self.desktop.copy("before the restart")
        self.desktop.wait_for_text("before the restart")

        self.desktop.stop_app()
        self.assertEqual(self.desktop.app.returncode, 0)
        self.desktop.start_app()

        self.assertEqual(self.desktop.texts(), ["before the restart"])

    def test_everything_a_second_old_after_a_kill(self):
        self.desktop.start_app()
        for number in range(20):
            self.desktop.copy(f"copy {number}")
            self.desktop.wait_for_text(f"copy {number}")
        wait_until(lambda: b"copy 19" in b"".join(file.read_bytes() for file in self.desktop.data.iterdir()),
                   "the last copy in the store's files", 1.5)

        self.desktop.stop_app(signal.SIGKILL)
        self.desktop.start_app()

        self.assertEqual(self.desktop.texts(), [f"copy {number}" for number in reversed(range(20))])

    def test_nothing_of_the_last_run_without_persistent_history(self):
        self.desktop.start_app()
        self.desktop.copy("of the last run")
        self.desktop.wait_for_text("of the last run")
        self.desktop.quillmonger("defaults", "write", "persistHistory", "false")
        self.desktop.stop_app()

        with open(self.desktop.log, "ab") as log:
            self.desktop.app = self.desktop.spawn([self.desktop.build / "bin/quillmonger-app"], stdout=log, stderr=log)
        wait_until(self.desktop.answers, "the application's start")

        self.assertEqual(self.desktop.texts(), [])

    def test_a_large_copy_whole(self):
        self.desktop.start_app()
        text = "0123456789abcde\n" * (20 * 1024 * 1024 // 16)
        self.desktop.copy(text)
        record = wait_until(lambda: next(iter(self.desktop.records()), None), "the large copy", 20)
        self.assertEqual(record["size"], len(text))
        self.desktop.copy("small")
        self.desktop.wait_for_text("small")

        self.desktop.open_history()
        self.desktop.press("Down", "Return")
        self.desktop.wait_hidden()

        wait_until(lambda: len(self.desktop.clipboard()) == len(text), "the large copy on the clipboard", 20)
        self.assertEqual(self.desktop.clipboard(), text.encode())

    def test_the_next_copy_while_an_owner_hangs_and_the_program_never_with_it(self):
        self.desktop.start_app()
        self.desktop.open_history()
        self.desktop.press("Escape")
        self.desktop.wait_hidden()
        hanging = ("import ctypes, time; x = ctypes.CDLL('libX11.so.6'); x.XOpenDisplay.restype = ctypes.c_void_p; "
                   "d = ctypes.c_void_p(x.XOpenDisplay(None)); "
                   "w = x.XCreateSimpleWindow(d, x.XDefaultRootWindow(d), 0, 0, 1, 1, 0, 0, 0); "
                   "x.XSetSelectionOwner(d, x.XInternAtom(d, b'CLIPBOARD', 0), w, 0); x.XSync(d, 0); "
                   "print('owned', flush=True); time.sleep(600)")
        owner = self.desktop.spawn(["python3", "-c", hanging], stdout=subprocess.PIPE, text=True)
        self.assertEqual(owner.stdout.readline(), "owned\n")

        begin = time.monotonic()
        self.desktop.quillmonger("list")
        self.assertLess(time.monotonic() - begin, 1)
        self.desktop.copy("after the hanging one")
        self.desktop.wait_for_text("after the hanging one", 1)

    def test_a_paste_into_the_search_field_searches_for_it(self):
        self.desktop.start_app()
        for text in ("apple tree", "plum", "tree"):
            self.desktop.copy(text)
            self.desktop.wait_for_text(text)
        file, _ = self.open_gtk_editor()

        self.desktop.open_history()
        self.desktop.press("ctrl+v")
        time.sleep(0.5)
        self.desktop.press("Down", "Return")
        self.desktop.wait_hidden()

        self.save_until(file, "apple tree")

    def test_the_clipboard_after_its_owner_has_quit(self):
        self.desktop.start_app()
        owner = self.desktop.spawn(["xclip", "-selection", "clipboard", "-in", "-quiet", self._file("left behind")])
        self.desktop.wait_for_text("left behind")

        owner.kill()
        owner.wait()

        wait_until(lambda: self.desktop.clipboard() == b"left behind", "the content offered on")
        self.assertEqual(self.desktop.texts(), ["left behind"])

    def _file(self, text):
        file = self.desktop.home / "source.txt"
        file.write_text(text)
        return file
