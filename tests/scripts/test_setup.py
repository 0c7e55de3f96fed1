"""Runs scripts/setup on made-up machines: dpkg-query, apt-get, sudo and id are stand-ins that keep a journal."""

import subprocess
import tempfile
import unittest
from pathlib import Path

SETUP = Path(__file__).resolve().parents[2] / "scripts" / "setup"

DPKG_QUERY = """#!/bin/bash
for name in "${@:3}"; do
    case " $ABSENT " in *" $name "*) status=1 ;; *) echo "installed $name" ;; esac
    case " $REMOVED " in *" $name "*) echo "config-files $name" ;; esac
done
exit ${status:-0}
"""
APT_GET = """#!/bin/bash
[ "$DEBIAN_FRONTEND" = noninteractive ] || echo "asks questions" >>"$JOURNAL"
case " $* " in *" install "*) verb=install ;; *" update "*) verb=update ;; esac
echo "apt-get $verb ${*: -2}" >>"$JOURNAL"
echo "noise of apt-get $verb"
[ $verb = update ] || [ "$(grep -c 'apt-get install' "$JOURNAL")" -gt "$FAILING_INSTALLS" ]
"""
SUDO = """#!/bin/bash
echo sudo >>"$JOURNAL"
exec "$@"
"""


def run(groups, absent="", removed="", user=0, sudo=True, dpkg=True, failing_installs=0):
    """What setup did: exit status, output, errors and the journal of the stand-ins."""
    with tempfile.TemporaryDirectory() as folder:
        machine = Path(folder)
        programs = {"apt-get": APT_GET, "id": f"#!/bin/bash\necho {user}\n"}
        programs |= {"sudo": SUDO} if sudo else {}
        programs |= {"dpkg-query": DPKG_QUERY} if dpkg else {}
        for name, text in programs.items():
            (machine / name).write_text(text)
            (machine / name).chmod(0o755)
        for name in ("bash", "env", "mktemp", "rm", "tail", "grep"):
            (machine / name).symlink_to(f"/usr/bin/{name}")
        journal = machine / "journal"
        journal.touch()
        environment = {"PATH": folder, "JOURNAL": str(journal), "ABSENT": absent, "REMOVED": removed}
        environment["FAILING_INSTALLS"] = str(failing_installs)
        done = subprocess.run(["bash", SETUP, *groups], env=environment, capture_output=True, text=True)
        return done.returncode, done.stdout, done.stderr, journal.read_text().splitlines()


class Setup(unittest.TestCase):
    def test_is_silent_and_offline_when_nothing_is_missing(self):
        for groups in ([], ["build"], ["build", "test", "bench", "examples"]):
            self.assertEqual(run(groups, user=1000), (0, "", "", []))

    def test_installs_what_is_missing_and_nothing_else(self):
        status, output, errors, journal = run(["build", "test"], absent="cmake clang-tidy-16", removed="cmake")
        self.assertEqual((status, output, errors), (0, "", "setup: installing cmake clang-tidy-16\n"))
        self.assertEqual(journal[-1], "apt-get install cmake clang-tidy-16")
        self.assertEqual(run(["build"], absent="clang-tidy-16 time python3-xlsxwriter")[3], [])

    def test_goes_through_sudo_when_not_root(self):
        status, _, _, journal = run(["build"], absent="cmake g++", user=1000)
        self.assertEqual((status, journal[-2:]), (0, ["sudo", "apt-get install g++ cmake"]))
        self.assertNotIn("sudo", run(["build"], absent="cmake g++", user=0)[3])

    def test_updates_the_lists_when_the_first_try_fails(self):
        status, _, errors, journal = run(["build"], absent="cmake", failing_installs=1)
        if not any(Path("/var/lib/apt/lists").glob("*_Packages*")):
            self.assertEqual(status, 1)  # the lists were new already: a second try would fail the same way
            return
        self.assertEqual((status, errors), (0, "setup: installing cmake\n"))
        self.assertEqual([line.split()[1] for line in journal], ["install", "update", "install"])

    def test_says_what_it_could_not_do(self):
        rows = [
            (dict(absent="cmake", failing_installs=9), "setup: could not install: cmake"),
            (dict(absent="cmake", user=1000, sudo=False), "setup: needs root or sudo; as root, run: apt-get install"),
            (dict(dpkg=False), "setup: this is not a Debian system"),
        ]
        for machine, answer in rows:
            with self.subTest(answer=answer):
                status, _, errors, _ = run(["build"], **machine)
                self.assertEqual(status, 1)
                self.assertIn(answer, errors.splitlines()[-1])
        status, _, errors, journal = run(["biuld"])
        self.assertEqual((status, journal), (1, []))
        self.assertIn("unknown group 'biuld'", errors)


if __name__ == "__main__":
    unittest.main()
