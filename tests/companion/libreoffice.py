"""Has LibreOffice open workbooks with our Visual Basic, list their modules and run a macro of each.

    python3 libreoffice.py WORKBOOK MODULE.MACRO EXPECTED [WORKBOOK MODULE.MACRO EXPECTED]...

Ends with status 77, and one line that says what is missing, where LibreOffice or its bridge to Python is not installed.
"""

import re
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

NOT_HERE = 77


def skip(what):
    print(f"skipped: {what} is not installed; scripts/setup install brings it")
    sys.exit(NOT_HERE)


if not shutil.which("soffice"):
    skip("LibreOffice (soffice)")
try:
    import uno
    from com.sun.star.beans import PropertyValue
    from com.sun.star.connection import NoConnectException
except ImportError:
    skip("LibreOffice's bridge to Python (python3-uno)")

ALWAYS_EXECUTE = 4  # com.sun.star.document.MacroExecMode.ALWAYS_EXECUTE_NO_WARN
START_SECONDS = 90


def desktop(pipe, office):
    local = uno.getComponentContext()
    resolver = local.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", local)
    deadline = time.monotonic() + START_SECONDS
    while True:
        try:
            context = resolver.resolve(f"uno:pipe,name={pipe};urp;StarOffice.ComponentContext")
            return context.ServiceManager.createInstanceWithContext("com.sun.star.frame.Desktop", context)
        except NoConnectException:
            if office.poll() is not None or time.monotonic() > deadline:
                sys.exit("LibreOffice does not start")
            time.sleep(0.2)


def check(top, workbook, macro, expected):
    # LibreOffice goes by names, and knows neither .xlam nor an Office Open XML workbook that is called .xls.
    packed = Path(workbook).read_bytes().startswith(b"PK")
    wanted = {"Hidden": True, "MacroExecutionMode": ALWAYS_EXECUTE,
              "FilterName": "Calc MS Excel 2007 VBA XML" if packed else "MS Excel 97"}
    options = [PropertyValue(Name=name, Value=value) for name, value in wanted.items()]
    document = top.loadComponentFromURL(Path(workbook).resolve().as_uri(), "_blank", 0, tuple(options))
    if document is None:
        sys.exit(f"{workbook}: LibreOffice does not open it")
    try:
        libraries = document.BasicLibraries
        modules = {}
        for name in libraries.ElementNames:
            libraries.loadLibrary(name)
            library = libraries.getByName(name)
            modules.update({module: library.getByName(module) for module in library.ElementNames})
            if macro.split(".")[0] in library.ElementNames:
                home = name
        print(f"{Path(workbook).name}: {document.Sheets.Count} sheets, {document.NamedRanges.Count} names")
        for name, text in modules.items():
            procedures = re.findall(r"^(?:Public |Private )?(?:Sub|Function) (\w+)", text, re.M)
            print(f"    {name}: {', '.join(procedures) or 'no procedures'}")
        script = document.ScriptProvider.getScript(f"vnd.sun.star.script:{home}.{macro}?language=Basic&location=document")
        result, _, _ = script.invoke((), (), ())
        print(f"    {macro} gives {result!r}")
        if str(result) != expected:
            sys.exit(f"{workbook}: {macro} gives {result!r}, not {expected!r}")
    finally:
        document.close(True)


def main():
    wanted = sys.argv[1:]
    with tempfile.TemporaryDirectory() as profile:
        pipe = f"kestrune{Path(profile).name}"
        office = subprocess.Popen(
            ["soffice", "--headless", "--invisible", "--norestore", "--nologo", f"--accept=pipe,name={pipe};urp",
             f"-env:UserInstallation={Path(profile).as_uri()}"],
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        top = desktop(pipe, office)
        try:
            for i in range(0, len(wanted), 3):
                check(top, *wanted[i:i + 3])
        finally:
            try:
                top.terminate()
                office.wait(30)
            except Exception:  # it went with the connection
                office.kill()
                office.wait()


if __name__ == "__main__":
    main()
