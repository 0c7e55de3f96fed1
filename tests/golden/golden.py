#!/usr/bin/env python3
"""Golden sessions: each file NAME.steps is a session on the example model, and NAME.diff what it must change.

    golden.py            compares; prints what differs and fails
    golden.py --approve  writes the files anew, for a reviewed change of behaviour
"""
import difflib
import os
import pathlib
import shlex
import subprocess
import sys
import tempfile

here = pathlib.Path(__file__).resolve().parent
example = here.parents[1] / "examples" / "three-statement-model.xlsx"
kestrune = os.environ.get("KESTRUNE") or str(here.parents[1] / "build" / "release" / "kestrune")


def changes_of(steps: pathlib.Path) -> str:
    with tempfile.TemporaryDirectory() as folder:
        out = pathlib.Path(folder) / "out.xlsx"
        os.environ["XDG_CONFIG_HOME"] = folder  # the settings of a fresh installation
        session = shlex.split(steps.read_text(), comments=True)
        subprocess.run([kestrune, "run", example, "-o", out, *session], check=True, stdout=subprocess.DEVNULL)
        return subprocess.run([kestrune, "diff", example, out], check=True, text=True, capture_output=True).stdout


def main() -> int:
    cases = sorted(here.glob("*.steps"))
    wrong = 0
    for steps in cases:
        golden = steps.with_suffix(".diff")
        found = changes_of(steps)
        if "--approve" in sys.argv:
            golden.write_text(found)
            continue
        expected = golden.read_text() if golden.exists() else ""
        if found != expected:
            wrong += 1
            sys.stdout.writelines(difflib.unified_diff(expected.splitlines(True), found.splitlines(True), golden.name, "found"))
    print(f"{len(cases)} golden sessions, {wrong} differ")
    return 1 if wrong or not cases else 0


if __name__ == "__main__":
    sys.exit(main())
