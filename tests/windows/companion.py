"""Registers the DLLs as an installer does, lets a VBScript client play the companion workbook, and takes them out again.

    python3 companion.py WINE DLL_FOLDER

Everything runs in the Wine prefix that the environment names. The registry must be afterwards what it was before.
"""

import subprocess
import sys
import tempfile
from pathlib import Path

WINE, FOLDER = sys.argv[1], Path(sys.argv[2])
LIBRARIES = ("KestruneHost", "BRVBLib", "BRXLLib", "KestruneXL")
HIVES = {"machine": r"HKLM\Software\Classes", "user": r"HKCU\Software\Classes"}


def wine(*arguments):
    return subprocess.run([WINE, *arguments], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, timeout=120)


def registry():
    """Every line of both hives, as text."""
    lines = []
    with tempfile.TemporaryDirectory() as folder:
        for name, hive in HIVES.items():
            file = Path(folder) / f"{name}.reg"
            # A user's hive has no classes until somebody registers one.
            if wine("reg", "export", hive, f"Z:{file}", "/y").returncode == 0:
                lines += file.read_text("utf-16").splitlines()
    return lines


def regsvr32(*switches):
    for library in LIBRARIES:
        status = wine("regsvr32", "/s", *switches, f"Z:{FOLDER / library}.dll").returncode
        if status:
            sys.exit(f"regsvr32 {' '.join(switches)} {library}.dll: exit status {status}")


def give_preferences():
    """The file of a user who is no newcomer: a newcomer would be shown a message, and nobody is there to press OK."""
    folder = r"%APPDATA%\Brannoch\Kestrune"
    golden = str(Path(__file__).resolve().parents[1] / "settings" / "golden" / "UserPreferences.xml").replace("/", "\\")
    if wine("cmd", "/c", rf"md {folder} & copy /y Z:{golden} {folder}\UserPreferences.xml").returncode:
        sys.exit("the preferences file cannot be put in its place")


def check_nothing_left(before, how):
    left = sorted(set(registry()) ^ set(before))
    if left:
        sys.exit("\n".join([f"the registry differs after {how}:", *left]))
    print(f"ok      the registry is as before after {how}")


def main():
    # A new user's hive has no classes at all.
    if wine("reg", "add", HIVES["user"], "/f").returncode:
        sys.exit("the registry cannot be written")
    # What a run that was stopped may have left.
    regsvr32("/u")
    regsvr32("/u", "/n", "/i:user")
    # Wine's cscript registers a type library of its own when a prefix runs it first.
    with tempfile.TemporaryDirectory() as folder:
        nothing = Path(folder) / "nothing.vbs"
        nothing.write_text("")
        wine("cscript", "/nologo", f"Z:{nothing}")
    before = registry()
    if len(before) < 100:
        sys.exit("the registry cannot be read")

    regsvr32("/n", "/i:user")
    if registry() == before:
        sys.exit("registering for the user left no trace")
    regsvr32("/u", "/n", "/i:user")
    check_nothing_left(before, "registering for the user and taking it back")

    give_preferences()
    regsvr32()
    try:
        script = Path(__file__).with_name("companion.vbs")
        client = wine("cscript", "/nologo", f"Z:{script}")
    finally:
        regsvr32("/u")
    sys.stdout.write(client.stdout.decode("utf-8", "replace").replace("\r\n", "\n"))
    check_nothing_left(before, "registering for the machine and taking it back")
    if client.returncode or b", 0 failed" not in client.stdout:
        sys.exit(f"the client ended with exit status {client.returncode}")


if __name__ == "__main__":
    main()
