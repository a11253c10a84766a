"""The sounds in the tree are what their script makes, and are as short and as loud as they should be."""

import array
import subprocess
import sys
import tempfile
import unittest
import wave
from pathlib import Path

SOUNDS = Path(__file__).resolve().parents[3] / "Quillmonger/resources/sounds"


class TheSounds(unittest.TestCase):
    def test_they_are_what_their_script_makes(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, SOUNDS / "make_sounds.py", folder], check=True)
            made = {path.name: path.read_bytes() for path in Path(folder).iterdir()}
        self.assertEqual(made, {path.name: path.read_bytes() for path in SOUNDS.glob("*.wav")})
        self.assertEqual(len(made), 5)

    def test_they_are_short_end_in_silence_and_stay_below_full_scale_with_the_boost(self):
        for path in SOUNDS.glob("*.wav"):
            with self.subTest(path.name), wave.open(str(path)) as file:
                samples = array.array("h", file.readframes(file.getnframes()))
                self.assertTrue(0.08 <= len(samples) / file.getframerate() <= 0.3)
                self.assertLess(max(map(abs, samples)) * 1.6, 32767)
                self.assertEqual(samples[-1], 0)
                self.assertLess(abs(sum(samples) / len(samples)), 200, "nearly no constant part")
