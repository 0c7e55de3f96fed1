#!/usr/bin/python3
"""Makes "Kestrune Examples.xls": a sheet a topic, each with a start bookmark, and the macros that Kestrune runs in it.

    examples/make-examples-workbook.py KESTRUNE_COMPANION TARGET [TARGET_OF_EXCEL]

The first target is an Office Open XML workbook, which the embedded Excel opens, whatever its name ends in. Excel itself
warns when name and content differ: the second target is in the format that .xls stands for. LibreOffice writes it.
Needs python3-xlsxwriter, and soffice for the second target (scripts/setup examples install).
"""

import datetime
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

sys.dont_write_bytecode = True

import xlsxwriter  # noqa: E402

from example_topics import FIRST_ROW, TOPICS  # noqa: E402
from formulas import Evaluator  # noqa: E402

HERE = Path(__file__).resolve().parent
DATED = datetime.datetime(2026, 2, 16, 9, 0, 0)
# Below every example; mPublic.bas knows the place, too.
COMMANDS_ROW = 26


def commands(program):
    """{topic: [(number, name, description, key)]}, from the product's own table."""
    listed = subprocess.run([program, "commands"], check=True, capture_output=True, text=True).stdout
    by_topic = {}
    for line in listed.splitlines():
        number, name, description, key, topic = line.split("\t")
        by_topic.setdefault(topic, []).append((int(number), name, description, key))
    return by_topic


def project(program, folder, sheets):
    """The Visual Basic project as a file: the macros, and an empty module for each sheet."""
    modules = [HERE.parent / "addin" / "Examples" / name for name in ("ThisWorkbook.cls", "mPublic.bas")]
    template = (HERE.parent / "addin" / "Sheet1.cls").read_text()
    for number in range(1, sheets + 1):
        module = folder / f"Sheet{number}.cls"
        module.write_text(template.replace('"Sheet1"', f'"Sheet{number}"'))
        modules.insert(number, module)
    target = folder / "vbaProject.bin"
    subprocess.run([program, "project", "KestruneExamples", target, *modules], check=True)
    return target


def value_of(values, *place):
    try:
        return values.value(*place)
    except ZeroDivisionError:
        return "#DIV/0!"


def write_sheet(book, sheet, topic, listed, values, looks):
    sheet.hide_gridlines(2)
    sheet.set_column(0, 0, 34, looks["text"])
    sheet.set_column(1, 30, 9, looks["text"])
    sheet.write(0, 0, topic.title, looks["title"])
    sheet.write(1, 0, "Try it on the cells below. Closed without saving, the workbook is as before.", looks["text"])
    for row, step in enumerate(topic.steps, 3):
        sheet.write(row, 0, f"{row - 2}. {step}", looks["text"])
    sheet.write_row(COMMANDS_ROW - 2, 0, ("Command", "Number", "Key", "", ""), looks["heading"])
    for row, (number, name, _, key) in enumerate(listed, COMMANDS_ROW - 1):
        sheet.write(row, 0, name, looks["text"])
        sheet.write(row, 1, number, looks["number"])
        sheet.write(row, 2, key, looks["text"])
    for row, cells in enumerate(topic.cells, FIRST_ROW):
        for column, content in enumerate(cells, 1):
            if isinstance(content, str) and content.startswith("="):
                sheet.write_formula(row - 1, column - 1, content, looks["text"], value_of(values, topic.title, row, column))
            else:
                sheet.write(row - 1, column - 1, content, looks["text"])
    sheet.freeze_panes(1, 0)
    sheet.set_landscape()
    sheet.set_paper(9)
    sheet.fit_to_pages(1, 0)


def make(program, target, folder):
    by_topic = commands(program)
    missing = set(by_topic) ^ {topic.key for topic in TOPICS}
    if missing:
        sys.exit(f"make-examples-workbook: the command table and example_topics.py differ in {sorted(missing)}")
    cells = {(topic.title, row, column): content for topic in TOPICS
             for row, line in enumerate(topic.cells, FIRST_ROW) for column, content in enumerate(line, 1)}
    values = Evaluator(cells, {})
    book = xlsxwriter.Workbook(str(folder / "examples.xlsm"))
    book.set_properties({"title": "Kestrune Examples", "author": "Brannoch", "created": DATED})
    looks = {
        "text": book.add_format({"font_name": "Arial", "font_size": 10}),
        "number": book.add_format({"font_name": "Arial", "font_size": 10, "align": "left"}),
        "title": book.add_format({"font_name": "Arial", "font_size": 14, "bold": True}),
        "heading": book.add_format({"font_name": "Arial", "font_size": 10, "bold": True, "bottom": 1}),
    }
    book.add_vba_project(str(project(program, folder, len(TOPICS))))
    book.set_vba_name("ThisWorkbook")
    for number, topic in enumerate(TOPICS, 1):
        sheet = book.add_worksheet(topic.title)
        sheet.set_vba_name(f"Sheet{number}")
        write_sheet(book, sheet, topic, by_topic[topic.key], values, looks)
        book.define_name(f"bbr.kestrune.{topic.key}.start.ebr", f"='{topic.title}'!$A$1")
    book.close()
    shutil.move(folder / "examples.xlsm", target)


def convert(program, source, target, folder):
    """The same workbook in the format before 2007: cells, names and looks by LibreOffice, the macros by our own tool."""
    if not shutil.which("soffice"):
        sys.exit("make-examples-workbook: soffice is missing; scripts/setup install brings it")
    plain = folder / "plain.xlsm"
    shutil.copy(source, plain)
    subprocess.run(["soffice", "--headless", f"-env:UserInstallation={(folder / 'profile').as_uri()}", "--convert-to",
                    "xls:MS Excel 97", "--outdir", str(folder), str(plain)],
                   check=True, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    subprocess.run([program, "add-macros", folder / "plain.xls", folder / "vbaProject.bin", target], check=True)


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit("usage: make-examples-workbook.py KESTRUNE_COMPANION TARGET [TARGET_OF_EXCEL]")
    program = sys.argv[1]
    with tempfile.TemporaryDirectory() as name:
        make(program, sys.argv[2], Path(name))
        if len(sys.argv) == 4:
            convert(program, sys.argv[2], sys.argv[3], Path(name))


if __name__ == "__main__":
    main()
