"""The committed example workbook is what its script writes, part by part."""

import subprocess
import sys
import tempfile
import unittest
import zipfile
from pathlib import Path

EXAMPLES = Path(__file__).resolve().parents[2] / "examples"


def parts(workbook):
    with zipfile.ZipFile(workbook) as package:
        return {name: package.read(name) for name in package.namelist()}


class Example(unittest.TestCase):
    def test_is_what_its_script_writes(self):
        with tempfile.TemporaryDirectory() as folder:
            fresh = Path(folder) / "fresh.xlsx"
            subprocess.run([sys.executable, EXAMPLES / "make-three-statement-model.py", fresh], check=True)
            written, committed = parts(fresh), parts(EXAMPLES / "three-statement-model.xlsx")
        self.assertEqual(list(written), list(committed))
        self.assertEqual([], [name for name in written if written[name] != committed[name]])


if __name__ == "__main__":
    unittest.main()
