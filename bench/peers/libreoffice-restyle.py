"""The same job in LibreOffice: load a workbook, restyle one column, save. Starting it is part of the job.

    libreoffice-restyle.py IN OUT
"""
import pathlib
import subprocess
import sys
import tempfile
import time

import uno
from com.sun.star.awt import FontWeight
from com.sun.star.beans import PropertyValue
from com.sun.star.connection import NoConnectException
from com.sun.star.lang import Locale


def desktop(pipe):
    resolver = uno.getComponentContext().ServiceManager.createInstance("com.sun.star.bridge.UnoUrlResolver")
    while True:
        try:
            context = resolver.resolve(f"uno:pipe,name={pipe};urp;StarOffice.ComponentContext")
            return context.ServiceManager.createInstanceWithContext("com.sun.star.frame.Desktop", context)
        except NoConnectException:
            time.sleep(0.05)


def options(**values):
    return tuple(PropertyValue(Name=name, Value=value) for name, value in values.items())


def restyle(top, source, target):
    book = top.loadComponentFromURL(source.as_uri(), "_blank", 0, options(Hidden=True))
    column = book.Sheets.getByName("Data").Columns.getByName("E")
    column.NumberFormat = book.NumberFormats.addNew("[$$-409]#,##0_);([$$-409]#,##0)", Locale())
    column.CharFontName = "Arial"
    column.CharHeight = 10
    column.CharWeight = FontWeight.BOLD
    book.storeToURL(target.as_uri(), options(FilterName="Calc MS Excel 2007 XML"))
    book.close(True)


def main():
    source, target = (pathlib.Path(name).resolve() for name in sys.argv[1:])
    with tempfile.TemporaryDirectory() as profile:
        pipe = pathlib.Path(profile).name
        office = subprocess.Popen(
            ["soffice", "--headless", "--invisible", "--norestore", "--nologo", f"--accept=pipe,name={pipe};urp",
             f"-env:UserInstallation={pathlib.Path(profile).as_uri()}"],
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        top = desktop(pipe)
        try:
            restyle(top, source, target)
        finally:
            try:
                top.terminate()
            except Exception:  # the connection goes with it
                pass
            office.wait(60)


main()
