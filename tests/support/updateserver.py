"""An update feed on an HTTPS server of the test's own, on the loopback."""
import hashlib
import http.server
import os
import ssl
import subprocess
import threading

SIGN = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../packaging/sign-appcast")


def item(version, url, content, notes="What is new."):
    """A feed's item for a file of this content."""
    return (f'<item><title>Quillmonger {version}</title><description>{notes}</description>'
            f'<enclosure url="{url}" length="{len(content)}" type="application/octet-stream" '
            f'quillmonger:version="{version}" quillmonger:sha256="{hashlib.sha256(content).hexdigest()}"/></item>')


def feed(*items):
    """A feed without signature."""
    return ('<?xml version="1.0" encoding="utf-8"?>\n<rss version="2.0"><channel><title>Quillmonger</title>'
            + "".join(items) + "</channel></rss>\n").encode()


class Handler(http.server.BaseHTTPRequestHandler):
    """Answers each path as the test has set it."""

    def do_GET(self):  # pylint: disable=invalid-name
        """Of the base class."""
        self.server.asked.append(self.path)
        answer = self.server.answers.get(self.path)
        try:
            if answer is None:
                self.send_error(404)
            elif callable(answer):
                answer(self)
            else:
                self.send_content(answer)
        except OSError:
            pass  # the other side has gone, as some tests want it

    def send_content(self, content, length=None):
        """A whole answer; `length`: what its header says."""
        self.send_response(200)
        self.send_header("Content-Length", str(len(content) if length is None else length))
        self.end_headers()
        self.wfile.write(content)

    def redirect(self, address):
        """Sends the other side elsewhere."""
        self.send_response(302)
        self.send_header("Location", address)
        self.end_headers()

    def log_message(self, *_):
        """Of the base class."""


class UpdateServer(http.server.ThreadingHTTPServer):
    """Serves `answers` (contents, or functions of the handler, by path). Use as a context."""

    daemon_threads = True

    def __init__(self, folder):
        super().__init__(("127.0.0.1", 0), Handler)
        self.answers = {}
        self.asked = []
        self.certificate = os.path.join(folder, "certificate.pem")
        self.key = os.path.join(folder, "makers.pem")
        secret = os.path.join(folder, "server.pem")
        run = lambda *words: subprocess.run(words, check=True, capture_output=True).stdout
        run("openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes", "-days", "2",
            "-keyout", secret, "-out", self.certificate, "-subj", "/CN=localhost", "-addext",
            "subjectAltName=DNS:localhost")
        run("openssl", "genpkey", "-algorithm", "ed25519", "-out", self.key)
        self.public_key = run(SIGN, "--public", self.key).decode().strip()
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(self.certificate, secret)
        self.socket = context.wrap_socket(self.socket, server_side=True)
        self._thread = threading.Thread(target=self.serve_forever, kwargs={"poll_interval": 0.05}, daemon=True)

    def __enter__(self):
        self._thread.start()
        return self

    def __exit__(self, *_):
        self.shutdown()
        self._thread.join()
        self.server_close()

    def handle_error(self, request, client_address):
        """Of the base class: some tests break connections off."""

    def url(self, path):
        """The address of a path."""
        return f"https://localhost:{self.server_address[1]}{path}"

    def sign(self, content):
        """A feed with the makers' signature."""
        return subprocess.run([SIGN, self.key], input=content, check=True, capture_output=True).stdout
