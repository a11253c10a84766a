"""A new version, from the feed to the desktop's installer."""

import json
import shutil
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
from desktop import wait_until  # noqa: E402
from roadcase import BUILD, RoadCase  # noqa: E402
from updateserver import UpdateServer, feed, item  # noqa: E402

UPDATES = 5
WINDOW = "^Software Update$"
PACKAGE = b"a package " * 20000
PROGRAMS = ("quillmonger", "quillmonger-app", "quillmonger-sound", "quillmonger-update")


class TheUpdates(RoadCase):
    def setUp(self):
        super().setUp()
        self.server = UpdateServer(str(self.desktop.home))
        self.server.__enter__()
        self.addCleanup(self.server.__exit__)
        self.install_with_feed()
        self.install_opener()
        self.desktop.environment.update(SSL_CERT_FILE=self.server.certificate, no_proxy="localhost")
        self.tray = self.desktop.spawn([Path(__file__).with_name("tray.py")],
                                       stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.assertEqual(self.tray.stdout.readline(), "ready\n")

    def install_with_feed(self):
        """The programs as a build with a feed has them, in a folder of the case's own."""
        programs = self.desktop.home / "build/bin"
        programs.mkdir(parents=True)
        for name in PROGRAMS:
            shutil.copy2(Path(BUILD) / "bin" / name, programs)
        (programs / "update-feed").write_text(f"{self.server.url('/feed.xml')}\n{self.server.public_key}\n")
        self.desktop.build = programs.parent

    def install_opener(self):
        """What the desktop opens packages with: it notes which."""
        self.opened = self.desktop.home / "opened"
        applications = self.desktop.home / ".local/share/applications"
        applications.mkdir(parents=True)
        script = self.desktop.home / "installer"
        script.write_text(f'#!/bin/sh\necho "$1" >> {self.opened}\n')
        script.chmod(0o700)
        (applications / "installer.desktop").write_text(
            f"[Desktop Entry]\nType=Application\nName=Installer\nExec={script} %f\n"
            "MimeType=application/vnd.debian.binary-package;\n")
        (applications / "mimeapps.list").write_text(
            "[Default Applications]\napplication/vnd.debian.binary-package=installer.desktop\n")

    def offer(self, version, content=PACKAGE):
        url = self.server.url(f"/quillmonger_{version}_amd64.deb")
        self.server.answers["/feed.xml"] = self.server.sign(feed(item(version, url, PACKAGE, "Much is new.")))
        self.server.answers[f"/quillmonger_{version}_amd64.deb"] = content

    def ask(self, words):
        self.tray.stdin.write(words + "\n")
        self.tray.stdin.flush()
        return json.loads(self.tray.stdout.readline())

    def can_check(self):
        return self.ask("menu")[UPDATES - 1]["enabled"]

    def start(self):
        self.desktop.start_app()
        wait_until(lambda: self.ask("items"), "the item in the tray")

    def check(self):
        self.ask(f"click {UPDATES}")
        window = self.desktop.window(WINDOW)
        self.desktop.focus(window)
        return window

    def wait_for_answer(self):
        wait_until(self.can_check, "the feed's answer")

    def wait_closed(self):
        wait_until(lambda: not self.desktop.run(["xdotool", "search", "--onlyvisible", "--name", WINDOW],
                                                check=False).stdout, "the end of the update window")

    def downloads(self):
        folder = self.desktop.home / ".cache/quillmonger/updates"
        return sorted(path.name for path in folder.iterdir()) if folder.exists() else []

    def test_the_user_checks_downloads_and_opens_the_installer(self):
        self.offer("99.0")
        self.start()

        self.check()
        self.wait_for_answer()
        self.desktop.press("Return")
        wait_until(lambda: self.downloads() == ["quillmonger_99.0_amd64.deb"], "the downloaded file")
        self.assertFalse(self.opened.exists(), "opened before the user agreed")
        wait_until(lambda: self.desktop.press("Return") or self.opened.exists(), "the installer", step=0.2)

        file = self.desktop.home / ".cache/quillmonger/updates/quillmonger_99.0_amd64.deb"
        self.assertEqual(self.opened.read_text().strip().removeprefix("file://"), str(file))
        self.assertEqual(file.read_bytes(), PACKAGE)
        self.wait_closed()

    def test_a_user_with_the_newest_version_is_told(self):
        self.offer("0.0.1")
        self.start()

        self.check()
        self.wait_for_answer()
        self.desktop.press("Escape")

        self.wait_closed()
        self.assertEqual(self.downloads(), [])
        self.assertTrue(self.can_check())

    def test_a_file_that_was_not_announced_is_never_opened(self):
        self.offer("99.0", content=PACKAGE.replace(b"a", b"b"))
        self.start()

        self.check()
        self.wait_for_answer()
        self.desktop.press("Return")
        wait_until(lambda: "/quillmonger_99.0_amd64.deb" in self.server.asked, "the download")
        wait_until(lambda: "not the one that was announced" in self.desktop.log.read_text(), "the refusal")
        self.desktop.press("Return")

        self.wait_closed()
        self.assertEqual(self.downloads(), [])
        self.assertFalse(self.opened.exists())

    def test_a_scheduled_check_downloads_first_if_that_is_on_and_leaves_the_keyboard_where_it_is(self):
        self.offer("99.0")
        self.desktop.quillmonger("defaults", "write", "firstLaunch", "false")
        settings = self.desktop.home / ".config/quillmonger/settings.json"
        content = json.loads(settings.read_text())
        content["values"]["automaticallyDownloadsUpdates"] = True
        settings.write_text(json.dumps(content))
        self.start()
        _, editor = self.open_gtk_editor()

        self.desktop.window(WINDOW)

        self.assertEqual(self.downloads(), ["quillmonger_99.0_amd64.deb"])
        self.assertFalse(self.opened.exists())
        self.assertEqual(self.desktop.focused(), editor)

    def test_nothing_is_asked_while_the_guide_is_up(self):
        self.offer("99.0")
        self.desktop.start_app(first_launch=True)
        self.desktop.window("Welcome to Quillmonger")

        self.assertEqual(self.server.asked, [])
        self.assertEqual(self.ask("items"), [])
