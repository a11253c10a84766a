"""Plays the whole road once in a private desktop, tells each step, and leaves a screenshot."""

import sys
from pathlib import Path

from desktop import ROOT, Desktop, wait_until


def step(text):
    print(f"  • {text}", flush=True)


def main(build):
    picture = Path(build).resolve().parent / "quillmonger.png"
    print("No display here: playing the whole road in a private virtual desktop.", flush=True)
    with Desktop(build, size="1280x800x24") as desktop:
        desktop.run(["xsetroot", "-solid", "#3b4a5a"])
        desktop.start_app()
        ready = next(line for line in desktop.log.read_text().splitlines() if line.startswith("Quillmonger is ready"))
        step(ready)

        desktop.copy("The quick brown fox jumps over the lazy dog")
        desktop.wait_for_text("The quick brown fox jumps over the lazy dog")
        step("xclip copied a sentence; it stands in the history")

        terminal = desktop.home / "terminal.txt"
        desktop.spawn(["xterm", "-xrm", "XTerm*selectToClipboard: true", "-T", "terminal", "-geometry", "80x12+40+40",
                       "-e", "sh", "-c", f"echo keyboard; cat > {terminal}"])
        window = desktop.window("^terminal$")
        desktop.focus(window)

        def copied():
            desktop.run(["xdotool", "mousemove", "--window", window, "20", "10", "click", "--repeat", "2", "1"])
            return any("keyboard" in text for text in desktop.texts())
        wait_until(copied, "the terminal's selection in the history", step=0.3)
        step(f"a word selected in a terminal was copied from {desktop.records()[0]['sourceAppBundleIdentifier']}")

        file = desktop.home / "letter.txt"
        file.write_text("Dear reader,\n")
        desktop.spawn(["mousepad", file])
        editor = desktop.window("letter.txt")
        desktop.focus(editor)
        desktop.press("ctrl+End")
        step("an editor is in front")

        desktop.open_history()
        desktop.search("fox")
        desktop.screenshot(picture)
        step("Shift+Super+V opened the history, and typing “fox” found the sentence")

        desktop.press("Return")
        desktop.wait_hidden()

        def pasted():
            desktop.press("ctrl+s")
            return "The quick brown fox jumps over the lazy dog" in file.read_text()
        wait_until(pasted, "the sentence in the editor's file", step=0.2)
        step("Return pasted it into the editor, which saved it:")
        for line in file.read_text().splitlines():
            print(f"      {line}")
    try:
        shown = picture.relative_to(ROOT)
    except ValueError:
        shown = picture
    print(f"The screenshot of the search lies in {shown}")


if __name__ == "__main__":
    main(sys.argv[1])
