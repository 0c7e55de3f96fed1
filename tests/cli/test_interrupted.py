"""Saving that is killed, or refused by the disk, at every call that changes files: the old workbook or the new one is
whole."""

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


if __name__ == "__main__":
    unittest.main()
