"""What is heard of the program, in a sound server of the test's own."""

from pathlib import Path

from desktop import wait_until
from roadcase import RoadCase


class TheSound(RoadCase):
    def setUp(self):
        super().setUp()
        socket = self.desktop.home / "sound"
        self.desktop.spawn(["pulseaudio", "--daemonize=no", "--exit-idle-time=-1", "-n", "--use-pid-file=no",
                            "-L", "module-null-sink sink_name=nowhere",
                            "-L", f"module-native-protocol-unix auth-anonymous=1 socket={socket}"])
        self.desktop.environment["PULSE_SERVER"] = f"unix:{socket}"
        wait_until(lambda: self.desktop.run(["pactl", "info"], check=False).returncode == 0, "the sound server")
        self.recording = self.desktop.home / "heard.raw"
        with open(self.recording, "wb") as file:
            self.desktop.spawn(["parec", "--device=nowhere.monitor", "--latency-msec=10"], stdout=file)
        wait_until(lambda: self.recording.stat().st_size > 0, "the recording")

    def is_heard(self):
        return any(self.recording.read_bytes())

    def test_a_copy_is_heard(self):
        self.desktop.start_app()
        self.assertFalse(self.is_heard())

        self.desktop.copy("a puff")

        wait_until(self.is_heard, "the sound")

    def test_nothing_is_heard_and_no_player_runs_with_the_sounds_off(self):
        self.desktop.start_app()
        self.desktop.quillmonger("defaults", "write", "soundEffectsEnabled", "false")

        self.desktop.copy("silence")
        self.desktop.wait_for_text("silence")
        self.desktop.open_history()

        main_thread = Path(f"/proc/{self.desktop.app.pid}/task/{self.desktop.app.pid}")
        self.assertEqual((main_thread / "children").read_text(), "")
        self.assertFalse(self.is_heard())
