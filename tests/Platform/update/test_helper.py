"""The program that asks the feed, against servers that are sound, broken and hostile."""
import hashlib
import os
import socket
import subprocess
import sys
import tempfile
import threading
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../support"))
from updateserver import UpdateServer, feed, item  # pylint: disable=wrong-import-position

HELPER = os.environ["QUILLMONGER_UPDATE_HELPER"]
NOT_UNDERSTOOD, UNREACHABLE, UNTRUSTED, DAMAGED, NOT_WRITTEN = 2, 10, 11, 12, 13
PACKAGE = b"a package " * 100


class HelperCase(unittest.TestCase):
    """A server, and the program to ask it."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.server = UpdateServer(self.folder)
        self.server.__enter__()
        self.addCleanup(self.server.__exit__)
        self.environment = {**os.environ, "SSL_CERT_FILE": self.server.certificate, "no_proxy": "localhost"}

    def run_helper(self, *words):
        """Runs it to its end."""
        return subprocess.run([HELPER, *words], capture_output=True, env=self.environment, timeout=30, check=False)


class Checking(HelperCase):
    """"quillmonger-update check"."""

    def check(self, own="1.0", path="/feed.xml", key=None):
        """Asks the feed."""
        return self.run_helper("check", self.server.url(path), key or self.server.public_key, own)

    def offer(self, version):
        """Has the server offer it."""
        url = self.server.url("/package.deb")
        self.server.answers["/feed.xml"] = self.server.sign(feed(item(version, url, PACKAGE)))

    def assert_fails(self, result, code):
        """Nothing is offered, and the reason is told."""
        self.assertEqual(result.returncode, code, result.stderr)
        self.assertEqual(result.stdout, b"")
        self.assertIn(b"quillmonger-update: ", result.stderr)

    def test_offers_a_newer_version(self):
        self.offer("1.1")
        result = self.check()
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(result.stdout.decode().split("\n"),
                         ["update", "1.1", self.server.url("/package.deb"), str(len(PACKAGE)),
                          hashlib.sha256(PACKAGE).hexdigest(), "What is new."])

    def test_offers_nothing_that_is_the_same_or_older(self):
        for version in ("1.0", "1.0.0", "0.9", "1.0-rc"):
            with self.subTest(version):
                self.offer(version)
                result = self.check()
                self.assertEqual((result.returncode, result.stdout), (0, b"none\n"), result.stderr)

    def test_refuses_a_feed_without_signature(self):
        self.server.answers["/feed.xml"] = feed(item("1.1", self.server.url("/package.deb"), PACKAGE))
        self.assert_fails(self.check(), UNTRUSTED)

    def test_refuses_a_feed_that_another_key_signed(self):
        self.offer("1.1")
        self.assert_fails(self.check(key="11qYAYKxCrfVS/7TyWQHOg7hcvPapiMlrwIaaPcHURo="), UNTRUSTED)

    def test_refuses_a_feed_that_was_changed_after_signing(self):
        self.offer("1.1")
        self.server.answers["/feed.xml"] = self.server.answers["/feed.xml"].replace(b"1.1", b"9.9")
        self.assert_fails(self.check(), UNTRUSTED)

    def test_refuses_a_signed_feed_that_is_no_xml(self):
        self.server.answers["/feed.xml"] = self.server.sign(b"<rss>\n")
        self.assert_fails(self.check(), UNTRUSTED)

    def test_refuses_a_feed_that_is_cut_off(self):
        self.offer("1.1")
        content = self.server.answers["/feed.xml"]
        self.server.answers["/feed.xml"] = lambda handler: handler.send_content(content[:-20], len(content))
        self.assert_fails(self.check(), UNREACHABLE)

    def test_ends_a_feed_without_end(self):
        ended = threading.Event()

        def endless(handler):
            handler.send_response(200)
            handler.end_headers()
            try:
                while True:
                    handler.wfile.write(b"<rss>" * 10000)
            finally:
                ended.set()

        self.server.answers["/feed.xml"] = endless
        self.assert_fails(self.check(), UNTRUSTED)
        self.assertTrue(ended.wait(10))

    def test_follows_a_redirection_to_https(self):
        self.offer("1.1")
        self.server.answers["/old.xml"] = lambda handler: handler.redirect("/feed.xml")
        result = self.check(path="/old.xml")
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertIn(b"1.1", result.stdout)

    def test_follows_no_redirection_away_from_https(self):
        file = os.path.join(self.folder, "feed.xml")
        self.offer("1.1")
        with open(file, "wb") as feed_file:
            feed_file.write(self.server.answers["/feed.xml"])
        for address in ("http://localhost/feed.xml", "file://" + file):
            with self.subTest(address):
                self.server.answers["/old.xml"] = lambda handler, to=address: handler.redirect(to)
                self.assert_fails(self.check(path="/old.xml"), UNREACHABLE)

    def test_gives_up_on_redirections_in_a_circle(self):
        self.server.answers["/a"] = lambda handler: handler.redirect("/a")
        self.assert_fails(self.check(path="/a"), UNREACHABLE)

    def test_asks_by_nothing_but_https(self):
        for address in ("http://localhost/feed.xml", "file:///etc/passwd", "ftp://localhost/", "nonsense"):
            with self.subTest(address):
                self.assert_fails(self.run_helper("check", address, self.server.public_key, "1.0"), UNREACHABLE)

    def test_trusts_no_certificate_of_a_stranger(self):
        self.offer("1.1")
        del self.environment["SSL_CERT_FILE"]
        self.assert_fails(self.check(), UNREACHABLE)
        self.assertEqual(self.server.asked, [])

    def test_trusts_no_certificate_for_another_name(self):
        self.offer("1.1")
        address = self.server.url("/feed.xml").replace("localhost", "127.0.0.1")
        self.assert_fails(self.run_helper("check", address, self.server.public_key, "1.0"), UNREACHABLE)

    def test_fails_where_there_is_no_feed(self):
        self.assert_fails(self.check(path="/nowhere"), UNREACHABLE)

    def test_fails_where_there_is_no_server(self):
        with socket.socket() as unused:
            unused.bind(("127.0.0.1", 0))
            address = f"https://localhost:{unused.getsockname()[1]}/"
            self.assert_fails(self.run_helper("check", address, self.server.public_key, "1.0"), UNREACHABLE)

    def test_understands_no_other_call(self):
        url, key = self.server.url("/"), self.server.public_key
        for words in ((), ("check",), ("check", url, "no key", "1.0"), ("check", url, key, "no version"),
                      ("check", url, key, "1.0", "more"), ("download", url, "many", "0" * 64, "file"), ("other",)):
            with self.subTest(words):
                self.assertEqual(self.run_helper(*words).returncode, NOT_UNDERSTOOD)


class Downloading(HelperCase):
    """"quillmonger-update download"."""

    def setUp(self):
        super().setUp()
        self.downloads = os.path.join(self.folder, "downloads")
        os.mkdir(self.downloads)
        self.file = os.path.join(self.downloads, "package.deb")
        self.server.answers["/package.deb"] = PACKAGE

    def words(self, content=PACKAGE):
        """The call for a file that was announced with this content."""
        return ("download", self.server.url("/package.deb"), str(len(content)), hashlib.sha256(content).hexdigest(),
                self.file)

    def assert_leaves_nothing(self, result, code):
        """It fails, and nothing of the download stays."""
        self.assertEqual(result.returncode, code, result.stderr)
        self.assertEqual(os.listdir(self.downloads), [])

    def test_stores_the_announced_file(self):
        result = self.run_helper(*self.words())
        self.assertEqual(result.returncode, 0, result.stderr)
        with open(self.file, "rb") as file:
            self.assertEqual(file.read(), PACKAGE)
        self.assertEqual(os.listdir(self.downloads), ["package.deb"])

    def test_tells_how_much_is_there(self):
        result = self.run_helper(*self.words())
        numbers = [int(line) for line in result.stdout.split()]
        self.assertEqual(numbers, sorted(numbers))
        self.assertEqual(numbers[-1], len(PACKAGE))

    def test_takes_a_file_that_is_there_already(self):
        self.run_helper(*self.words())
        self.server.asked.clear()
        self.assertEqual(self.run_helper(*self.words()).returncode, 0)
        self.assertEqual(self.server.asked, [])

    def test_replaces_a_file_that_is_another_one(self):
        with open(self.file, "wb") as file:
            file.write(b"another")
        self.assertEqual(self.run_helper(*self.words()).returncode, 0)
        with open(self.file, "rb") as file:
            self.assertEqual(file.read(), PACKAGE)

    def test_removes_a_file_that_was_not_announced(self):
        self.server.answers["/package.deb"] = PACKAGE.replace(b"a", b"b")
        self.assert_leaves_nothing(self.run_helper(*self.words()), DAMAGED)

    def test_removes_a_file_that_is_shorter(self):
        self.server.answers["/package.deb"] = PACKAGE[:-1]
        self.assert_leaves_nothing(self.run_helper(*self.words()), DAMAGED)

    def test_removes_a_file_that_is_cut_off(self):
        self.server.answers["/package.deb"] = lambda handler: handler.send_content(PACKAGE[:-1], len(PACKAGE))
        self.assert_leaves_nothing(self.run_helper(*self.words()), UNREACHABLE)

    def test_ends_a_file_without_end(self):
        def endless(handler):
            handler.send_response(200)
            handler.end_headers()
            while True:
                handler.wfile.write(PACKAGE)

        self.server.answers["/package.deb"] = endless
        self.assert_leaves_nothing(self.run_helper(*self.words()), DAMAGED)

    def test_follows_no_redirection_away_from_https(self):
        self.server.answers["/package.deb"] = lambda handler: handler.redirect("http://localhost/package.deb")
        self.assert_leaves_nothing(self.run_helper(*self.words()), UNREACHABLE)

    def test_says_that_it_cannot_write(self):
        os.rmdir(self.downloads)
        self.assertEqual(self.run_helper(*self.words()).returncode, NOT_WRITTEN)

    def test_ends_when_nobody_reads_it_any_more(self):
        gone = threading.Event()

        def hanging(handler):
            handler.send_response(200)
            handler.send_header("Content-Length", str(len(PACKAGE)))
            handler.end_headers()
            handler.wfile.write(PACKAGE[:10])
            handler.wfile.flush()
            handler.connection.settimeout(20)
            if handler.connection.recv(1) == b"":
                gone.set()

        self.server.answers["/package.deb"] = hanging
        with subprocess.Popen([HELPER, *self.words()], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                              env=self.environment) as process:
            self.assertEqual(process.stdout.readline(), b"10\n")
            process.stdout.close()
            self.assertTrue(gone.wait(20))
            self.assertEqual(process.wait(20), UNREACHABLE)
        self.assertEqual(os.listdir(self.downloads), [])


if __name__ == "__main__":
    unittest.main()
