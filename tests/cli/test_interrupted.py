"""Saving that is killed, or refused by the disk, at every call that changes files, that goes through links, or that others
do at the same time: the old workbook or the new one is whole."""

import errno
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import unittest

KESTRUNE = pathlib.Path(os.environ["KESTRUNE"])
STOP = os.environ["STOP_AT_WRITE"]
EXAMPLE = pathlib.Path(__file__).resolve().parents[2] / "examples" / "three-statement-model.xlsx"
MOST_CALLS = 500


class Interrupted(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.book = self.folder / "books" / "model.xlsx"
        self.book.parent.mkdir()
        self.old = EXAMPLE.read_bytes()
        self.book.write_bytes(self.old)
        self.assertEqual(self.save(self.book).returncode, 0)
        self.new = self.book.read_bytes()
        self.assertNotEqual(self.new, self.old)

    def save(self, book, **stop):
        environment = {
            **os.environ,
            "XDG_CONFIG_HOME": str(self.folder / "config"),
            # The sanitizers want to be loaded first; what is loaded before them calls them.
            "ASAN_OPTIONS": "verify_asan_link_order=0",
            **{name: str(value) for name, value in stop.items()},
        }
        if stop:
            environment["LD_PRELOAD"] = STOP
        command = [KESTRUNE, "run", book, "--in-place", "@Inputs!B2:C9", "20", "RunAutoColor"]
        return subprocess.run(command, env=environment, capture_output=True, text=True, timeout=120)

    def each_call(self, **stop):
        """What came of a save that was stopped at each call, until one ran to its end."""
        for call in range(1, MOST_CALLS):
            self.book.write_bytes(self.old)
            result = self.save(self.book, STOP_AT=call, **stop)
            if result.returncode == 0:
                self.assertEqual(self.book.read_bytes(), self.new)
                self.assertGreater(call, 4)  # create, write, flush, rename
                return
            yield call, result
        self.fail("there is no end to it")

    def test_a_killed_save_leaves_the_old_file_or_the_new_one(self):
        for call, result in self.each_call():
            self.assertEqual(result.returncode, -signal.SIGKILL, result.stderr)
            self.assertIn(self.book.read_bytes(), (self.old, self.new), f"killed at call {call}")

    def test_a_disk_that_refuses_leaves_the_old_file_and_nothing_beside_it(self):
        for call, result in self.each_call(STOP_WITH=errno.ENOSPC):
            self.assertEqual(result.returncode, 1, result.stderr)
            self.assertIn("model.xlsx: cannot be written: No space left on device", result.stderr)
            self.assertEqual(self.book.read_bytes(), self.old, f"refused at call {call}")
            self.assertEqual([path.name for path in self.book.parent.iterdir()], ["model.xlsx"])

    def test_the_same_file_under_another_name(self):
        folder = self.book.parent
        (folder / "deeper").mkdir()
        (self.folder / "elsewhere").symlink_to(folder / "deeper")
        for name, target in (("link.xlsx", "model.xlsx"), ("to link.xlsx", "link.xlsx"), ("../up.xlsx", "books/link.xlsx")):
            (folder / name).symlink_to(target)
        there_and_back = self.folder / "elsewhere" / ".." / "model.xlsx"
        for name in ("model.xlsx", "link.xlsx", "to link.xlsx", "../up.xlsx", there_and_back):
            for saving in (lambda place: ["--in-place"], lambda place: ["-o", place]):
                place = folder / name
                self.book.write_bytes(self.old)
                with self.subTest(place=place, saving=saving(place)[0]):
                    done = self.run_on(place, *saving(place))
                    self.assertEqual(done.returncode, 0, done.stderr)
                    self.assertEqual(self.book.read_bytes(), self.new)
                    self.assertFalse(self.book.is_symlink())
                    self.assertTrue((folder / "link.xlsx").is_symlink() and (folder / "to link.xlsx").is_symlink())
        self.assertEqual(sorted(path.name for path in folder.iterdir()), ["deeper", "link.xlsx", "model.xlsx", "to link.xlsx"])

    def test_who_has_the_file_open_or_under_a_hard_link_keeps_the_old_one(self):
        self.book.write_bytes(self.old)
        other = self.book.parent / "other.xlsx"
        other.hardlink_to(self.book)
        with self.book.open("rb") as reader:
            self.assertEqual(self.save(self.book).returncode, 0)
            self.assertEqual(reader.read(), self.old)
        self.assertEqual(other.read_bytes(), self.old)
        self.assertEqual(self.book.read_bytes(), self.new)

    def test_of_several_that_save_at_once_one_is_last(self):
        self.book.write_bytes(self.old)
        step = [KESTRUNE, "run", self.book, "--in-place", "@Inputs!B2:C9", "20", "RunAutoColor"]
        environment = {**os.environ, "XDG_CONFIG_HOME": str(self.folder / "config")}
        several = [subprocess.Popen(step, env=environment, stdout=subprocess.DEVNULL) for _ in range(6)]
        self.assertEqual([process.wait(timeout=120) for process in several], [0] * 6)
        again = self.run_on(self.book)
        self.assertEqual(again.returncode, 0, again.stderr)
        self.assertEqual([path.name for path in self.book.parent.iterdir()], ["model.xlsx"])

    def test_a_link_that_leads_nowhere(self):
        link = self.book.parent / "link.xlsx"
        link.symlink_to("made.xlsx")
        self.assertEqual(self.run_on(self.book, "-o", link).returncode, 0)
        self.assertTrue(link.is_symlink() and (link.parent / "made.xlsx").is_file())
        link.unlink()
        link.symlink_to("nowhere/made.xlsx")
        done = self.run_on(self.book, "-o", link)
        self.assertEqual(done.returncode, 1)
        self.assertIn("link.xlsx: cannot be written: No such file or directory", done.stderr)

    def run_on(self, book, *saving):
        environment = {**os.environ, "XDG_CONFIG_HOME": str(self.folder / "config")}
        command = [KESTRUNE, "run", book, *saving, "@Inputs!B2:C9", "20", "RunAutoColor"]
        return subprocess.run(command, env=environment, capture_output=True, text=True, timeout=120)


if __name__ == "__main__":
    unittest.main()
