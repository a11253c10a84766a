"""The history through the command line."""

import json
import os
import signal
import stat
import subprocess

from desktop import wait_until
from roadcase import RoadCase

PNG = bytes.fromhex(
    "89504e470d0a1a0a0000000d4948445200000001000000010802000000907753de0000000c49444154789c63f8cfc000000301010018dd8db0"
    "0000000049454e44ae426082")


class TheCommand(RoadCase):
    def setUp(self):
        super().setUp()
        self.desktop.start_app()

    def copy(self, *texts):
        for text in texts:
            self.desktop.quillmonger("copy", text)
            self.desktop.wait_for_text(text)

    def copy_input(self, data, *words):
        subprocess.run([self.desktop.build / "bin/quillmonger", "copy", *words], env=self.desktop.environment, input=data,
                       check=True, timeout=20)

    def test_what_it_copies_is_on_the_clipboard_and_becomes_a_record(self):
        self.copy("by command")

        self.assertEqual(self.desktop.clipboard(), b"by command")

    def test_it_copies_standard_input_of_any_length(self):
        text = "0123456789" * 300_000

        self.copy_input(text.encode())

        wait_until(lambda: self.desktop.clipboard() == text.encode(), "the text on the clipboard")
        wait_until(self.desktop.texts, "the record")
        self.assertEqual(self.desktop.quillmonger("paste", "--print").stdout, text)

    def test_it_copies_a_picture(self):
        self.copy_input(PNG, "--type", "image/png")

        records = wait_until(self.desktop.records, "the record")
        self.assertIn("public.png", records[0]["types"])
        self.assertEqual(self.desktop.clipboard("image/png"), PNG)

    def test_it_pastes_the_numbered_record_into_the_editor(self):
        self.copy("older", "newer")
        file, _ = self.open_gtk_editor()

        self.desktop.quillmonger("paste", "2")

        self.save_until(file, "older")

    def test_it_finds_whatever_the_case(self):
        self.copy("An Apple", "pear")

        found = json.loads(self.desktop.quillmonger("search", "--json", "APPLE").stdout)

        self.assertEqual([(record["number"], record["text"]) for record in found], [(2, "An Apple")])

    def test_what_it_deletes_stays_away_after_a_restart(self):
        self.copy("one", "two", "three")

        self.desktop.quillmonger("delete", "1", self.desktop.records()[2]["id"])

        self.assertEqual(self.desktop.texts(), ["two"])
        self.desktop.stop_app()
        self.desktop.start_app()
        self.assertEqual(self.desktop.texts(), ["two"])

    def test_it_clears_only_with_a_yes(self):
        self.copy("one", "two")

        refused = self.desktop.quillmonger("clear", check=False)
        self.assertEqual(refused.returncode, 2)
        self.assertEqual(len(self.desktop.texts()), 2)
        self.desktop.quillmonger("clear", "--yes")

        self.assertEqual(self.desktop.texts(), [])

    def test_incognito_keeps_nothing(self):
        self.desktop.quillmonger("incognito", "on")
        self.desktop.copy("secret")
        wait_until(lambda: self.desktop.clipboard() == b"secret", "the copy on the clipboard")
        self.desktop.quillmonger("incognito", "toggle")
        self.copy("kept")

        self.assertEqual(self.desktop.texts(), ["kept"])
        self.assertEqual(self.desktop.quillmonger("incognito", "status").stdout, "off\n")

    def test_a_killed_application_leaves_no_stale_lock(self):
        self.copy("before the crash")
        self.desktop.stop_app(signal.SIGKILL)

        gone = self.desktop.quillmonger("list", check=False)
        self.assertEqual((gone.returncode, gone.stderr), (1, "Quillmonger is not running.\n"))
        self.desktop.start_app()

        self.assertEqual(self.desktop.quillmonger("incognito", "status").stdout, "off\n")

    def test_the_socket_is_its_users_alone(self):
        folder = self.desktop.home / "runtime/quillmonger"

        self.assertEqual(stat.S_IMODE(os.stat(folder).st_mode), 0o700)
        self.assertTrue(stat.S_ISSOCK(os.stat(folder / "socket").st_mode))

    def test_the_application_prints_nothing_of_what_passes_through(self):
        self.copy("a content of its own")
        self.desktop.quillmonger("search", "content of its")
        self.desktop.quillmonger("paste", "--print")

        self.assertNotIn("content of its", self.desktop.log.read_text())
