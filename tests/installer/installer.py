"""Installs Kestrune under Wine as a person does, uses it as Excel would, takes it out and looks for what is left.

    python3 installer.py WINE PACKAGES DLL_FOLDER

The prefix is that of the environment, and new. PACKAGES has what scripts/package-windows made, DLL_FOLDER the test host.
Prints a line for each thing that was tried; ends at the first that is not as it should be.
"""

import re
import subprocess
import sys
import time
from pathlib import Path

WINE, PACKAGES, HOST = sys.argv[1], Path(sys.argv[2]), Path(sys.argv[3])
PREFIX = Path(__import__("os").environ["WINEPREFIX"])
CLIENT = Path(__file__).resolve().parents[1] / "windows" / "companion.vbs"
PREFERENCES = Path(__file__).resolve().parents[1] / "settings" / "golden" / "UserPreferences.xml"

EXCEL = r"HKCU\Software\Microsoft\Office\16.0\Excel"
OTHERS = [r'"C:\Other\first.xlam"', r'"C:\Other\second.xlam"']
APP_PATH = r"HKLM\Software\Microsoft\Windows\CurrentVersion\App Paths\excel.exe"
# What Windows itself, played by Wine, writes down whenever a program runs.
OF_WINDOWS = re.compile(r"\\(Software\\Wine|Explorer|MuiCache|Fonts|Time Zones|Perflib|NetworkCards)\b", re.I)


def wine(*arguments, expect=0, timeout=180):
    result = subprocess.run([WINE, *map(str, arguments)], stdin=subprocess.DEVNULL, capture_output=True, timeout=timeout)
    if expect is not None and result.returncode != expect:
        output = (result.stdout + result.stderr).decode("utf-8", "replace")
        sys.exit(f"{' '.join(map(str, arguments))}: exit status {result.returncode}, not {expect}\n{output}")
    return result.stdout.decode("utf-8", "replace").replace("\r\n", "\n")


def said(what):
    print("ok     ", what, flush=True)


def check(what, holds, found=""):
    if not holds:
        sys.exit(f"FAILED  {what} {found}")
    said(what)


def registry():
    """{key: lines} of what programs write into; the rest of the machine's hive is Windows' own, its drivers and services."""
    keys = {}
    for number, hive in enumerate((r"HKLM\Software", "HKCU")):
        file = PREFIX / f"{number}.reg"
        wine("reg", "export", hive, f"Z:{file}", "/y")
        key = hive
        for line in file.read_text("utf-16").splitlines():
            if line.startswith("["):
                key = line
            if not OF_WINDOWS.search(key):
                keys.setdefault(key, []).append(line)
        file.unlink()
    return {key: sorted(lines) for key, lines in keys.items()}


def files():
    """Every file and its bytes, but for what Wine keeps of itself and what belongs to the person."""
    found = {}
    for path in (PREFIX / "drive_c").rglob("*"):
        name = path.relative_to(PREFIX).as_posix()
        if "/windows/" in name or "/Temp" in name or "/Brannoch" in name or path.is_symlink():
            continue
        found[name] = path.read_bytes() if path.is_file() else None
    return found


def state():
    return registry(), files()


def check_as_before(how, before):
    for name, was, now in zip(("registry", "files"), before, state()):
        differing = sorted(k for k in was.keys() | now.keys() if was.get(k) != now.get(k))
        details = "".join(f"\n    {key}: {was.get(key)!s:.300} -> {now.get(key)!s:.300}" for key in differing[:20])
        check(f"{name} as before {how}", not differing, details)


def query(key, value):
    match = re.search(rf"{re.escape(value)}\s+REG_\w+\s+(.*)", wine("reg", "query", key, "/v", value, expect=None))
    return match[1].strip() if match else None


def own_classes():
    """What the person's classes are, each as the key that holds all of it: CLSID\\{...}, KestruneXL.iPublic."""
    file = PREFIX / "classes.reg"
    wine("reg", "export", r"HKCU\Software\Classes", f"Z:{file}", "/y")
    keys = re.findall(r"^\[HKEY_CURRENT_USER\\Software\\Classes\\(.*)\]$", file.read_text("utf-16"), re.M)
    file.unlink()
    shared = ("CLSID", "Interface", "TypeLib")
    return sorted({"\\".join(key.split("\\")[:2 if key.split("\\")[0] in shared else 1]) for key in keys} - set(shared))


def use(where):
    """The client that plays the companion workbook and Excel's user: more than a hundred checks of its own."""
    wine("regsvr32", "/s", f"Z:{HOST / 'KestruneHost.dll'}")
    # Windows shows programs a person's classes and the machine's as one; Wine's COM knows the machine's only.
    classes = own_classes()
    check("classes are registered for the person", "KestruneXL.iPublic" in classes and len(classes) > 20, classes)
    for key in classes:
        wine("reg", "copy", rf"HKCU\Software\Classes\{key}", rf"HKLM\Software\Classes\{key}", "/s", "/f")
    output = wine("cscript", "/nologo", f"Z:{CLIENT}")
    for key in classes:
        wine("reg", "delete", rf"HKLM\Software\Classes\{key}", "/f")
    wine("regsvr32", "/s", "/u", f"Z:{HOST / 'KestruneHost.dll'}")
    count = re.search(r"(\d+) checks, 0 failed", output)
    check(f"the add-in runs {where}: {count and count[0]}", count, output)


def prepare():
    """A person who has Excel, with two add-ins of others, and preferences of Kestrune's."""
    for i, other in enumerate(OTHERS):
        wine("reg", "add", EXCEL + r"\Options", "/v", f"OPEN{i or ''}", "/d", other, "/f")
    # Any 64-bit program stands for Excel's.
    wine("reg", "add", APP_PATH, "/ve", "/d", r"C:\windows\system32\notepad.exe", "/f")
    wine("reg", "add", r"HKCU\Software\Classes", "/f")
    folder = PREFIX / "drive_c/users" / user() / "AppData/Roaming/Brannoch/Kestrune"
    folder.mkdir(parents=True)
    (folder / "UserPreferences.xml").write_bytes(PREFERENCES.read_bytes())
    nothing = PREFIX / "nothing.vbs"
    nothing.write_text("")
    wine("cscript", "/nologo", f"Z:{nothing}")  # registers a library of its own when it runs first
    return folder / "UserPreferences.xml"


def user():
    (name,) = [p.name for p in (PREFIX / "drive_c/users").iterdir() if p.name != "Public"]
    return name


def wait_until(what, holds):
    deadline = time.monotonic() + 60
    while not holds():
        if time.monotonic() > deadline:
            sys.exit(f"FAILED  {what}")
        time.sleep(0.2)


def forget_empty(folder, before):
    """A folder of Windows', which real machines have."""
    if folder.exists() and not any(folder.iterdir()) and folder.relative_to(PREFIX).as_posix() not in before[1]:
        folder.rmdir()


def try_installer(setup, preferences):
    home = PREFIX / "drive_c/users" / user() / "AppData/Local/Programs/Kestrune"
    add_in = rf'"C:\users\{user()}\AppData\Local\Programs\Kestrune\Kestrune.xlam"'
    before = state()
    wine(f"Z:{setup}", "/S", "/EXCEL=16", expect=2)
    check_as_before("a width that Excel does not have", before)
    if not (PREFIX / "drive_c/windows/syswow64/regsvr32.exe").exists():
        # Nothing here loads 32-bit DLLs: an installation that fails in the middle.
        wine(f"Z:{setup}", "/S", "/EXCEL=32", expect=2)
        forget_empty(home.parent, before)
        check_as_before("DLLs that cannot be registered", before)

    wine(f"Z:{setup}", "/S")
    for name in ("KestruneXL.dll", "BRVBLib.dll", "BRXLLib.dll", "Kestrune.xlam", "Kestrune Help.html", "LICENSE.txt",
                 "Files/Kestrune Examples.xls", "Uninstall.exe"):
        check(f"installed {name}", (home / name).is_file())
    check("Excel's width was found", query(r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Kestrune",
                                          "ExcelWidth") == "64")
    check("the add-in is on Excel's list, behind the others",
          [query(EXCEL + r"\Options", f"OPEN{i or ''}") for i in range(4)] == [*OTHERS, add_in, None])
    check("its folder is trusted",
          query(EXCEL + r"\Security\Trusted Locations\Kestrune", "Path") == add_in.strip('"').removesuffix("Kestrune.xlam"))
    use("as installed")

    # Others may come behind ours, and a newer version over it.
    wine("reg", "add", EXCEL + r"\Options", "/v", "OPEN3", "/d", OTHERS[0], "/f")
    wine(f"Z:{setup}", "/S")
    check("installed again, it is on the list once",
          [query(EXCEL + r"\Options", f"OPEN{i or ''}") for i in range(5)] == [*OTHERS, OTHERS[0], add_in, None])
    wine(f"Z:{setup}", "/S", r"/D=C:\Another")
    check("installed into another folder, it has left the first", not home.exists() and
          query(EXCEL + r"\Options", "OPEN3") == r'"C:\Another\Kestrune.xlam"')
    wine(f"Z:{setup}", "/S", rf"/D={add_in.strip(chr(34)).removesuffix(chr(92) + 'Kestrune.xlam')}")
    check("and back again", not (PREFIX / "drive_c/Another").exists() and
          query(EXCEL + r"\Options", "OPEN3") == add_in)
    # Somebody else's add-in goes, and Excel closes the gap.
    wine("reg", "add", EXCEL + r"\Options", "/v", "OPEN2", "/d", add_in, "/f")
    wine("reg", "delete", EXCEL + r"\Options", "/v", "OPEN3", "/f")

    text = preferences.read_bytes()
    wine(home / "Uninstall.exe", "/S")
    wait_until("the uninstaller ends", lambda: not home.exists())
    check("the person's preferences stay", preferences.read_bytes() == text)
    forget_empty(home.parent, before)
    check_as_before("the uninstaller", before)


def try_zip(archive):
    folder = PREFIX / "drive_c" / archive.stem.replace("kestrune", "Kestrune", 1)
    before = state()
    subprocess.run(["unzip", "-q", archive, "-d", PREFIX / "drive_c"], check=True)
    output = wine("cmd", "/c", folder / "register.cmd", "/q")
    check("register.cmd says what to do next", "Kestrune is registered for 64-bit Excel." in output and
          "Kestrune.xlam" in output, output)
    check("its folder is trusted", query(EXCEL + r"\Security\Trusted Locations\Kestrune", "Path") == rf"C:\{folder.name}" + "\\")
    use("from the zip file")
    output = wine("cmd", "/c", folder / "unregister.cmd", "/q")
    check("unregister.cmd says that it is out", "Kestrune is taken out." in output, output)
    (folder / "BRXLLib.dll").rename(folder / "BRXLLib.gone")
    # Wine's cmd does not hand on what a batch file exits with.
    output = wine("cmd", "/c", folder / "register.cmd", "/q", expect=None)
    check("register.cmd names a file that is missing", "BRXLLib.dll cannot be loaded" in output and "is registered" not in output, output)
    (folder / "BRXLLib.gone").rename(folder / "BRXLLib.dll")
    wine("cmd", "/c", folder / "unregister.cmd", "/q")
    subprocess.run(["rm", "-r", folder], check=True)
    wine("reg", "delete", EXCEL + r"\Security", "/f", expect=None)
    check_as_before("unregister.cmd and deleting the folder", before)


def main():
    (setup,) = (p for p in PACKAGES.glob("kestrune-*-setup.exe"))
    (archive,) = PACKAGES.glob("kestrune-*-excel64.zip")
    preferences = prepare()
    try_installer(setup, preferences)
    try_zip(archive)
    print("everything is as it should be")


if __name__ == "__main__":
    main()
