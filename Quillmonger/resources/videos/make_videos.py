#!/usr/bin/env python3
"""Makes the guide's videos and stills: plays each feature with real programs in a private virtual display.

    make_videos.py BUILD FOLDER [NAME…]

The program is driven a step at a time. Each step is pictured when the screen has come to rest, and stands in the video
as long as the scene says: a busy machine gives the same video as an idle one. What moves between two steps is blended.
Needs ffmpeg and hsetroot besides what the end-to-end tests need.
"""

import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[3] / "tests/endtoend"))
from desktop import Desktop  # noqa: E402
from scenes import SCENES  # noqa: E402

FRAMES_A_SECOND = 25
SCALE = 2
# The guide shows them 486 points wide at most.
SIZE = (972, 730)
BLEND = 4  # frames
CAPTION_FONT = "DejaVu-Sans-Bold"


def run(*words):
    subprocess.run([str(word) for word in words], check=True, stdout=subprocess.DEVNULL)


class Film:
    """The steps of one video, as frames in a folder."""

    def __init__(self, desktop, folder, view):
        self.desktop = desktop
        self.folder = folder
        self.view = view  # points: left, top, width, height
        self.frames = []
        self.still = None

    def show(self, seconds, caption="", view=None, cut=False, is_still=False):
        """The screen as it is now, for so long; `cut`: at once, without a blend from what was before."""
        self.view = view or self.view
        picture = self._picture(caption)
        if self.frames and not cut:
            self._blend(self.frames[-1], picture)
        self.frames += [picture] * round(seconds * FRAMES_A_SECOND)
        if is_still:
            self.still = picture

    def _picture(self, caption):
        screen = self._at_rest()
        picture = self.folder / f"{len(self.frames):05}.png"
        left, top, width, height = (round(number * SCALE) for number in self.view)
        words = ["convert", screen, "-crop", f"{width}x{height}+{left}+{top}", "+repage", "-filter", "Lanczos",
                 "-resize", f"{SIZE[0]}x{SIZE[1]}!"]
        if caption:
            words += [self._key(caption), "-gravity", "south", "-geometry", "+0+28", "-composite"]
        run(*words, picture)
        return picture

    def _key(self, caption):
        """A picture of the keys that are pressed, in words."""
        picture = self.folder / "key.png"
        run("convert", "-background", "none", "-fill", "white", "-font", CAPTION_FONT, "-pointsize", "36",
            f"label:{caption}", "-bordercolor", "none", "-border", "30x14", picture)
        width, height = subprocess.run(["identify", "-format", "%w %h", picture], check=True, capture_output=True,
                                       text=True).stdout.split()
        run("convert", "-size", f"{width}x{height}", "xc:none", "-fill", "#23252dF0",
            "-draw", f"roundrectangle 0,0 {int(width) - 1},{int(height) - 1} 18,18", picture, "-composite", picture)
        return picture

    def _at_rest(self):
        """A picture of the screen that is the same as the one before it, unless something never rests."""
        before = None
        for _ in range(8):
            screen = self.folder / "screen.png"
            self.desktop.screenshot(screen)
            now = subprocess.run(["identify", "-quiet", "-format", "%#", screen], check=True,
                                 capture_output=True).stdout
            if now == before:
                break
            before = now
        return screen

    def _blend(self, first, second):
        for step in range(1, BLEND + 1):
            picture = self.folder / f"{len(self.frames):05}-blend.png"
            run("composite", "-blend", f"{round(100 * step / (BLEND + 1))}", second, first, picture)
            self.frames.append(picture)

    def save(self, path):
        # The last step leads over into the first one, since it repeats.
        self._blend(self.frames[-1], self.frames[0])
        listing = self.folder / "frames.txt"
        listing.write_text("".join(f"file '{frame}'\nduration {1 / FRAMES_A_SECOND}\n" for frame in self.frames))
        run("ffmpeg", "-y", "-loglevel", "error", "-f", "concat", "-safe", "0", "-i", listing, "-an",
            "-r", FRAMES_A_SECOND, "-c:v", "libx264", "-preset", "veryslow", "-tune", "animation", "-crf", "23",
            "-pix_fmt", "yuv420p", "-movflags", "+faststart", "-fflags", "+bitexact", "-flags:v", "+bitexact",
            path.with_suffix(".mp4"))
        run("convert", self.still, "-strip", "-sampling-factor", "4:4:4", "-quality", "85", path.with_suffix(".jpg"))


def film(build, folder, name, scene):
    width, height = scene.size
    frames = Path(tempfile.mkdtemp(prefix="quillmonger-film-"))
    desktop = Desktop(build, size=f"{width * SCALE}x{height * SCALE}x24", window_manager=None, scale=SCALE)
    try:
        with desktop:
            stage = scene(desktop)
            stage.prepare()
            pictures = Film(desktop, frames, (0, 0, width, height))
            stage.play(pictures)
            pictures.save(folder / name)
    finally:
        shutil.rmtree(frames)
    print(f"{name}: {len(pictures.frames) / FRAMES_A_SECOND:.1f} s, "
          f"{(folder / name).with_suffix('.mp4').stat().st_size / 1000:.0f} kB")


def main(build, folder, names):
    for name, scene in SCENES.items():
        if not names or name in names:
            film(build, Path(folder).resolve(), name, scene)


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    main(sys.argv[1], sys.argv[2], sys.argv[3:])
