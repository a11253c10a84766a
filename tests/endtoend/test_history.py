"""The history as it is used: full, searched, and set to another pace."""

from desktop import wait_until
from roadcase import RoadCase


class TheHistory(RoadCase):
    def fill(self, *texts):
        for text in texts:
            self.desktop.copy(text)
            self.desktop.wait_for_text(text)

    def test_the_excess_over_its_size_goes_and_stays_away_after_a_restart(self):
        self.desktop.start_app()
        self.fill(*(f"copy {number}" for number in range(12)))

        self.desktop.quillmonger("defaults", "write", "historySize", "10")

        kept = [f"copy {number}" for number in reversed(range(2, 12))]
        wait_until(lambda: self.desktop.texts() == kept, "the ten newest copies alone")
        self.desktop.stop_app()
        self.desktop.start_app()
        self.assertEqual(self.desktop.texts(), kept)

    def test_each_further_letter_narrows_the_rows(self):
        self.desktop.start_app()
        self.fill("pearl grey", "pear", "apple")
        file, _ = self.open_gtk_editor()
        self.desktop.open_history()
        self.desktop.search("pea")
        self.desktop.search("rl")
        self.desktop.press("Return")
        self.desktop.wait_hidden()

        self.save_until(file, "pearl grey")

    def test_a_changed_pause_of_the_search_counts_at_once(self):
        self.desktop.start_app()
        self.fill("needle", "hay")
        self.desktop.quillmonger("defaults", "write", "searchDebounceInterval", "3600")
        file, _ = self.open_gtk_editor()
        self.paste_from_history("needle")
        self.save_until(file, "hay")  # Return took the row that an unfiltered list has on top

        self.desktop.quillmonger("defaults", "write", "searchDebounceInterval", "0.0")
        self.paste_from_history("needle")

        self.save_until(file, "hayneedle")
