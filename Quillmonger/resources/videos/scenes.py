"""What the guide's videos show. All of the content is invented."""

import os
import subprocess
import time

from desktop import wait_until

WINDOW_MANAGER = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfwm4" version="1.0">
  <property name="general" type="empty">
    <property name="theme" type="string" value="Default-xhdpi"/>
    <property name="title_font" type="string" value="Noto Sans Bold 11"/>
    <property name="use_compositing" type="bool" value="true"/>
    <property name="workspace_count" type="int" value="1"/>
    <property name="vblank_mode" type="string" value="off"/>
  </property>
</channel>
"""
EDITOR = """[org/xfce/mousepad/preferences/window]
path-in-title=false
[org/xfce/mousepad/preferences/view]
use-default-monospace-font=false
font-name='Noto Sans 13'
word-wrap=true
"""
# An editor warns of the root user, whom it would then show for all of the video.
AS_USER = ["unshare", "--user", "--map-user=1000"] if os.geteuid() == 0 else []
COPIES = [
    "Plum cake: 500 g flour, 250 g butter, 1 kg plums, a little cinnamon",
    "https://www.example.org/birds/spring-migration",
    '{"garden": {"beds": 4, "roses": ["Aurora", "Bella"]}}',
    "#e07a5f",
    "The lighthouse tour starts at ten. Bring a warm coat!",
    "2026-05-16T15:30:00Z",
    "Anna’s train arrives at 18:42 on platform 7",
    "12 Harbour Street, second floor",
]
LETTER = "Dear Tom,\n\nwe are so glad that you can come on Saturday!\n\n"

# Whatever the screen is to show has been pictured by then.
SHORT, USUAL, LONG = 0.5, 1.0, 2.0


class Scene:
    size = (720, 540)
    copies = COPIES

    def __init__(self, desktop):
        self.desktop = desktop

    def prepare(self):
        desktop = self.desktop
        desktop.environment.update(GDK_SCALE="2", XCURSOR_SIZE="48", GSETTINGS_BACKEND="keyfile")
        self._write(".config/xfce4/xfconf/xfce-perchannel-xml/xfwm4.xml", WINDOW_MANAGER)
        self._write(".config/gtk-3.0/settings.ini", "[Settings]\ngtk-cursor-blink=0\ngtk-font-name=Noto Sans 11\n")
        self._write(".config/glib-2.0/settings/keyfile", EDITOR)
        desktop.spawn(["xfwm4", "--compositor=on"])
        wait_until(desktop._has_window_manager, "the window manager")
        desktop.run(["hsetroot", "-add", "#8fb0d6", "-add", "#4f6f9c", "-gradient", "180"])
        desktop.run(["xdotool", "mousemove", *(str(2 * side - 1) for side in self.size)])
        desktop.start_app()
        self.set_up()
        for text in self.copies:
            self.copy(text)

    def set_up(self):
        """Opens what stands on the screen before the first copy is made."""
        self.open_letter()

    def copy(self, text):
        self.desktop.copy(text)
        self.desktop.wait_for_text(text)

    def _write(self, place, text):
        file = self.desktop.home / place
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text)

    # ---- programs

    def open_letter(self, text=LETTER, place=(40, 50, 640, 440)):
        file = self.desktop.home / "Letter.txt"
        file.write_text(text)
        self.desktop.spawn([*AS_USER, "mousepad", file])
        self.letter = self.desktop.window("Letter.txt")
        self._place(self.letter, place)
        self.desktop.focus(self.letter)
        self.desktop.press("ctrl+End")

    def _place(self, window, place):
        left, top, width, height = (str(2 * number) for number in place)
        self.desktop.run(["xdotool", "windowmove", window, left, top, "windowsize", window, width, height])

    # ---- Quillmonger

    def open_history(self):
        self.desktop.open_history()

    def press(self, *chords):
        self.desktop.press(*chords)

    def paste(self, chord):
        self.desktop.press(chord)
        self.desktop.wait_hidden()
        time.sleep(0.5)  # for the program in front to show it


class Launch(Scene):
    def play(self, film):
        film.show(USUAL)
        film.show(SHORT, "Shift + Super + V", cut=True)
        self.open_history()
        film.show(SHORT, "Shift + Super + V")
        film.show(LONG, cut=True, is_still=True)
        film.show(SHORT, "Escape", cut=True)
        self.press("Escape")
        self.desktop.wait_hidden()
        film.show(SHORT, "Escape")
        film.show(USUAL, cut=True)


class Paste(Scene):
    def play(self, film):
        self.desktop.type("Where to find us: ")
        film.show(USUAL)
        self.open_history()
        film.show(USUAL, "Shift + Super + V")
        self.press("Down")
        film.show(SHORT, "↓", cut=True)
        self.press("Up")
        film.show(USUAL, "↑", cut=True, is_still=True)
        self.paste("Return")
        film.show(LONG, "Return")
        self.press("Return", "Return")
        self.open_history()
        film.show(USUAL, "Shift + Super + V")
        self.paste("ctrl+3")
        film.show(LONG, "Ctrl + 3")


class Search(Scene):
    def play(self, film):
        self.desktop.type("And this is what the cake needs. ")
        film.show(USUAL)
        self.open_history()
        film.show(USUAL, "Shift + Super + V")
        for letter in "plum":
            self.desktop.search(letter)
            film.show(0.3, cut=True)
        film.show(LONG, cut=True, is_still=True)
        self.paste("Return")
        film.show(LONG, "Return")


class Preview(Scene):
    size = (980, 735)
    near = (130, 98, 720, 540)
    far = (0, 0, 980, 735)
    copies = [COPIES[1], COPIES[4], COPIES[0], COPIES[2], COPIES[3]]

    def set_up(self):
        self.open_letter(place=(130, 120, 720, 560))

    def prepare(self):
        super().prepare()
        self.copy_picture()
        self.copy(COPIES[7])

    def copy_picture(self):
        file = self.desktop.home / "lake.png"
        subprocess.run(["convert", "-size", "1200x800", "gradient:#7fb2e5-#fbe3c4",
                        "-fill", "#f7c873", "-draw", "circle 850,300 850,380",
                        "-fill", "#5b6d8f", "-draw", "polygon 0,520 300,260 560,520",
                        "-fill", "#4a5b7c", "-draw", "polygon 350,520 700,200 1050,520",
                        "-fill", "#3d7a8c", "-draw", "rectangle 0,520 1200,800",
                        "-fill", "#f4f1ea", "-draw", "polygon 560,650 640,650 600,520", file], check=True)
        before = len(self.desktop.records())
        self.desktop.copy(file.read_bytes(), "image/png")
        wait_until(lambda: len(self.desktop.records()) > before, "the picture in the history")

    def play(self, film):
        film.show(0.6, view=self.near)
        self.open_history()
        film.show(USUAL, "Shift + Super + V")
        film.show(SHORT, "Ctrl + P", cut=True)
        self.press("ctrl+p")
        film.show(USUAL, "Ctrl + P", view=self.far)
        for is_still in (True, False, False):
            self.press("Down")
            film.show(1.6, "↓", is_still=is_still)


class Settings(Scene):
    copies = COPIES[-5:]

    def play(self, film):
        film.show(SHORT)
        self.open_history()
        film.show(USUAL, "Shift + Super + V")
        film.show(SHORT, "Ctrl + Comma", cut=True)
        self.press("ctrl+comma")
        self.desktop.wait_hidden()
        settings = wait_until(self._settings, "the settings")
        self.desktop.focus(settings)
        film.show(USUAL, "Ctrl + Comma")
        self.press("ctrl+Next")
        film.show(LONG, "Ctrl + Page Down", is_still=True)
        self.press("Tab", "Tab", "Tab")
        film.show(SHORT)
        self.press("space")
        film.show(LONG, "Space")

    def _settings(self):
        window = self.desktop.focused()
        return window if window not in ("", self.letter) else None


class Accessibility(Scene):
    """Two programs, each with its own way of pasting."""

    def set_up(self):
        self.open_letter("Dear Tom,\n\n", place=(30, 40, 400, 300))
        self.desktop.spawn(["stterm", "-t", "Terminal", "-f", "DejaVu Sans Mono:pixelsize=28", "-g", "52x12",
                            "-e", "sh", "-c", "PS1='$ ' exec sh"])
        self.terminal = self.desktop.window("^Terminal$")
        self._place(self.terminal, (250, 270, 440, 230))
        self.desktop.focus(self.letter)

    def play(self, film):
        film.show(USUAL)
        self.open_history()
        film.show(USUAL, "Shift + Super + V")
        self.paste("Return")
        film.show(LONG, "Return", is_still=True)
        self.desktop.focus(self.terminal)
        self.desktop.type("ping ")
        film.show(USUAL)
        self.open_history()
        self.desktop.search("example.net")
        film.show(USUAL, "Shift + Super + V")
        self.paste("Return")
        film.show(LONG, "Return")

    copies = ["harbour.example.net", *COPIES]


class Formatting(Scene):
    page = """<!doctype html><meta charset="utf-8"><title>Invitation</title>
        <style>
          body { font: 17px "Noto Sans"; line-height: 1.6; margin: 26px 34px; color: #22252e; background: #fff }
          [contenteditable] { outline: none; min-height: 40px }
          h1 { color: #c2452d; font: italic bold 34px "Noto Serif", serif; margin: 0 }
          #letter { display: none }
        </style>
        <div id="source" contenteditable><h1>Summer party</h1><b style="color:#2b6cb0">Saturday at seven, in the
        garden</b></div>
        <div id="letter">
          Dear Anna, this is what the invitation says:<div id="first" contenteditable></div><br>
          And for your diary:<div contenteditable></div>
        </div>
        <script>
          // An invisible character more for each paste tells that it has arrived.
          document.addEventListener("input", () => { document.title += "\u200b" })
          source.focus()
          getSelection().selectAllChildren(source)
          document.addEventListener("copy", () => setTimeout(() => {
            source.remove()
            letter.style.display = "block"
            first.focus()
            document.title = "Letter"
          }, 500))
        </script>"""
    copies = COPIES

    def set_up(self):
        file = self.desktop.home / "letter.html"
        file.write_text(self.page)
        self.desktop.spawn(["chromium", "--no-sandbox", "--no-first-run", "--disable-gpu", "--password-store=basic", "--test-type",
                            "--force-device-scale-factor=2", "--window-size=640,440",
                            f"--user-data-dir={self.desktop.home}/browser", f"--app=file://{file}"])
        self.window = self.desktop.window("^Invitation$", seconds=90)
        self._place(self.window, (40, 50, 640, 440))
        self.desktop.focus(self.window)

    def prepare(self):
        super().prepare()
        before = len(self.desktop.records())
        def copied():
            self.press("ctrl+c")
            return len(self.desktop.records()) > before
        wait_until(copied, "the formatted text in the history", step=0.3)
        self.desktop.window("^Letter$")
        time.sleep(1)

    def wait_for_paste(self, number):
        self.desktop.wait_hidden()
        self.desktop.window("^Letter" + "\u200b" * number + "$")
        time.sleep(0.5)

    def play(self, film):
        film.show(USUAL)
        self.open_history()
        film.show(USUAL, "Shift + Super + V")
        self.press("Return")
        self.wait_for_paste(1)
        film.show(LONG, "Return")
        self.press("Tab")
        self.open_history()
        film.show(USUAL, "Shift + Super + V")
        self.desktop.run(["xdotool", "keydown", "alt"])
        film.show(USUAL, "Alt", cut=True)
        self.desktop.run(["xdotool", "key", "Return", "keyup", "alt"])
        self.wait_for_paste(2)
        film.show(LONG, "Alt + Return", is_still=True)


SCENES = {
    "launch_quillmonger": Launch,
    "paste_quillmonger": Paste,
    "formatting_quillmonger": Formatting,
    "search_quillmonger": Search,
    "preview_quillmonger": Preview,
    "settings_quillmonger": Settings,
    "accessibility_quillmonger": Accessibility,
}
