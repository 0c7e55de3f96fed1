#!/usr/bin/python3
"""Writes three-statement-model.xlsx, the example that the demonstration formats; the same bytes every time.

    examples/make-three-statement-model.py [FILE]

Formulas are saved with their values. Number formats stay General nearly everywhere: the workbook is what a modeller
has before formatting. Needs python3-xlsxwriter (scripts/setup examples).
"""

import datetime
import re
import sys
from pathlib import Path

sys.dont_write_bytecode = True

import xlsxwriter  # noqa: E402
from xlsxwriter.utility import xl_cell_to_rowcol, xl_col_to_name  # noqa: E402

from formulas import Evaluator  # noqa: E402
from three_statement_model import (  # noqa: E402
    ACTUALS, FIRST_COLUMN, NAMED_LINES, SHEETS, YEARS, Heading, Line, Scalar,
)

FIRST_ROW = 4
FIRST, LAST = (xl_col_to_name(FIRST_COLUMN - 1 + year) for year in (0, YEARS - 1))
QUARTERLY_YEARS = 2
DATED = datetime.datetime(2026, 2, 16, 9, 0, 0)


class Layout:
    """Where each keyed line and each named scalar lies, and formulas with those places filled in."""

    def __init__(self, sheets):
        self.lines = {}
        self.names = {}
        for sheet in sheets:
            for row, line in enumerate(sheet.lines, FIRST_ROW):
                if isinstance(line, Line) and line.key:
                    self.lines[line.key] = (sheet.name, row)
                elif isinstance(line, Scalar):
                    self.names[line.name] = f"={self.quoted(sheet.name)}!$C${row}"
        for name, key in NAMED_LINES.items():
            self.names[name] = "=" + self.block(key)

    @staticmethod
    def quoted(sheet):
        return sheet if sheet.isalnum() else f"'{sheet}'"

    def block(self, key):
        """All years of a line, absolute, with its sheet."""
        sheet, row = self.lines[key]
        return f"{self.quoted(sheet)}!${FIRST}${row}:${LAST}${row}"

    def filled(self, formula, sheet, year):
        """The formula of one sheet and year, year counted from 0."""

        def place(match):
            key, mark = match.groups()
            if mark == "*":
                return self.block(key)
            there, row = self.lines[key]
            cell = f"{xl_col_to_name(FIRST_COLUMN - 1 + year - (mark == '<'))}{row}"
            return cell if there == sheet else f"{self.quoted(there)}!{cell}"

        return re.sub(r"\{(\w+)([<*]?)\}", place, formula)


def model_cells(layout):
    """Every cell of the timeline sheets: {(sheet, row, column): (content, bold)}, row and column 1-based."""
    cells = {}
    for sheet in SHEETS:
        cells[sheet.name, 1, 1] = ("=CompanyName", True)
        cells[sheet.name, 2, 1] = (f"{sheet.name}: {sheet.subtitle}", False)
        for row, line in enumerate(sheet.lines, FIRST_ROW):
            if line is None:
                continue
            cells[sheet.name, row, 1] = (line.label, isinstance(line, Heading) or getattr(line, "bold", False))
            if isinstance(line, Scalar):
                value = layout.filled(line.value, sheet.name, 0) if isinstance(line.value, str) else line.value
                cells[sheet.name, row, 2] = (line.unit, False)
                cells[sheet.name, row, 3] = (value, False)
            elif isinstance(line, Line):
                if line.unit:
                    cells[sheet.name, row, 2] = (line.unit, False)
                for year, entry in enumerate(line.entries()):
                    if entry is not None:
                        content = layout.filled(entry, sheet.name, year) if isinstance(entry, str) else entry
                        cells[sheet.name, row, FIRST_COLUMN + year] = (content, line.bold)
    return cells


def cover_cells(layout):
    """The title page: what runs, what comes out, and where to find it."""
    last, first = YEARS - 1, ACTUALS - 1
    facts = [
        ("Scenario running", "=ScenarioName"),
        ("Model status", "=ModelStatus"),
        ("Last actual period end", "=LastActual"),
        ("Version of", (DATED - datetime.datetime(1899, 12, 30)).days),
    ]
    results = [
        ("Revenue", "{revenue}"), ("EBITDA", "{ebitda}"), ("EBITDA margin", "{ebitda_margin}"),
        ("Net income", "{net_income}"), ("Free cash flow", "{free_flow}"), ("Net debt", "{net_debt}"),
        ("Net debt over EBITDA", "{leverage}"),
    ]
    rows = {1: ["=CompanyName"], 2: ["Three-statement model, $000 unless a line says otherwise"]}
    rows |= {row: list(fact) for row, fact in enumerate(facts, 4)}
    rows[9] = ["Results"] + [layout.filled("={fy}", "Cover", year) for year in (first, first + 1, last)]
    rows[9].append("Growth a year")
    for row, (label, key) in enumerate(results, 10):
        rows[row] = [label] + [layout.filled("=" + key, "Cover", year) for year in (first, first + 1, last)]
        if label in ("Revenue", "EBITDA", "Net income"):
            rows[row].append(f"=(D{row}/B{row})^(1/{last - first})-1")
    cells = {("Cover", r, c): (text, r in (1, 9)) for r, row in rows.items() for c, text in enumerate(row, 1)}
    cells["Cover", 18, 1] = ("Sheets", True)
    return cells


def quarterly_cells(layout):
    """The first forecast years by quarter; the fifth column of each year is the year."""
    cells = {
        ("Quarterly", 1, 1): ("=CompanyName", True),
        ("Quarterly", 2, 1): ("Quarterly: the forecast years by season, $000", False),
        ("Quarterly", 4, 1): ("Period", True),
        ("Quarterly", 5, 1): ("Period ending", False),
        ("Quarterly", 5, 2): ("date", False),
    }
    labels = {7: "Share of the year", 8: "Revenue", 9: "Gross profit", 10: "Operating expenses", 11: "EBITDA",
              12: "EBITDA margin", 13: "Revenue, running total of the year"}
    for row, label in labels.items():
        cells["Quarterly", row, 1] = (label, row in (8, 11))
        cells["Quarterly", row, 2] = ("%" if row in (7, 12) else "$000", False)
    for year in range(QUARTERLY_YEARS):
        position = ACTUALS + year + 1
        annual = FIRST_COLUMN + 5 * year + 4
        name = xl_col_to_name(annual - 1)
        first, last = (xl_col_to_name(annual - 1 - back) for back in (4, 1))
        column = {4: f"=INDEX(FiscalYears,{position})", 5: f"={last}5", 7: f"=SUM({first}7:{last}7)"}
        column |= {row: f"=SUM({first}{row}:{last}{row})" for row in (8, 9, 10)}
        column |= {11: f"={name}9-{name}10", 12: f"={name}11/{name}8", 13: f"={last}13"}
        for row, content in column.items():
            cells["Quarterly", row, annual] = (content, True)
        for quarter in range(1, 5):
            here = xl_col_to_name(annual - 6 + quarter)
            before = xl_col_to_name(annual - 7 + quarter)
            column = {
                4: f'="Q{quarter} "&${name}$4',
                5: f"=EOMONTH(LastActual,{12 * year + 3 * quarter})",
                7: f"=Season{quarter}",
                8: f"=INDEX(Revenue,{position})*{here}7",
                9: f"=INDEX(GrossProfit,{position})*{here}7",
                10: f"={layout.filled('{opex}', 'Quarterly', position - 1)}/4",
                11: f"={here}9-{here}10",
                12: f"={here}11/{here}8",
                13: f"={here}8" if quarter == 1 else f"={before}13+{here}8",
            }
            for row, content in column.items():
                cells["Quarterly", row, annual - 5 + quarter] = (content, False)
    return cells


LISTS = {("Lists", 1, 1): ("Scenarios", True), ("Lists", 1, 2): ("Number", True)} | {
    ("Lists", row, column): (content, False)
    for row, pair in enumerate([("Base", 1), ("Upside", 2), ("Downside", 3)], 2)
    for column, content in enumerate(pair, 1)
}


def dress(book, sheets, layout, title):
    """What a working model has before anybody formats it: panes, outlines, print set-up, a few guards."""
    alarm = book.add_format({"bg_color": "#FFC7CE", "font_color": "#9C0006"})
    grouped = {model.name: model.grouped_columns for model in SHEETS} | {"Quarterly": "CDEFHIJK"}
    for name, sheet in sheets.items():
        if name == "Lists":
            continue
        wide = "L" if name == "Quarterly" else "F" if name == "Cover" else LAST
        sheet.merge_range(f"A1:{wide}1", "", title)
        sheet.set_column("A:A", 30 if name == "Cover" else 46)
        sheet.set_column("B:B", 14 if name == "Cover" else 10)
        for column in range(FIRST_COLUMN - 1, xl_cell_to_rowcol(f"{wide}1")[1] + 1):
            level = {"level": 1} if xl_col_to_name(column) in grouped.get(name, "") else {}
            sheet.set_column(column, column, 12, None, level)
        sheet.set_landscape()
        sheet.set_paper(9)
        sheet.fit_to_pages(1, 1 if name == "Cover" else 0)
        sheet.set_footer("&L&F&C&A&RPage &P of &N")
        if name != "Cover":
            sheet.freeze_panes(5, 2)
            sheet.repeat_rows(0, 4)
    for model in SHEETS:
        sheet = sheets[model.name]
        sheet.print_area(f"A1:{LAST}{FIRST_ROW + len(model.lines) - 1}")
        for row, line in enumerate(model.lines, FIRST_ROW):
            if isinstance(line, Line) and line.level:
                sheet.set_row(row - 1, None, None, {"level": line.level})

    scenario = layout.names["Scenario"].rsplit("!", 1)[1].replace("$", "")
    sheets["Inputs"].data_validation(
        scenario,
        {"validate": "list", "source": "=Lists!$B$2:$B$4", "error_title": "Scenario", "error_message": "1, 2 or 3"},
    )
    sheets["Inputs"].write_comment(
        scenario, "Everything that depends on the scenario goes through CHOOSE on this cell.",
        {"author": "Calder Vale"},
    )
    rates = layout.lines["materials_rate"][1]
    sheets["Inputs"].data_validation(
        f"F{rates + 1}:{LAST}{rates + 3}", {"validate": "decimal", "criteria": "between", "minimum": 0, "maximum": 1}
    )
    flags = f"{FIRST}{layout.lines['flag_first'][1]}:{LAST}{layout.lines['flags'][1]}"
    sheets["Checks"].conditional_format(
        flags, {"type": "cell", "criteria": "not equal to", "value": 0, "format": alarm}
    )
    sheets["Cover"].conditional_format(
        "B5", {"type": "cell", "criteria": "not equal to", "value": '"OK"', "format": alarm}
    )
    for row, name in enumerate((name for name in sheets if name not in ("Cover", "Lists")), 19):
        sheets["Cover"].write_url(row - 1, 0, f"internal:'{name}'!A1", None, name)
    sheets["Lists"].hide()


def add_chart(book, sheet, layout):
    """Revenue as columns and the EBITDA margin as a line on an axis of its own."""
    chart = book.add_chart({"type": "column"})
    line = book.add_chart({"type": "line"})
    categories = "=" + layout.block("fy")
    for part, key, label in (
        (chart, "revenue", "Revenue"),
        (chart, "ebitda", "EBITDA"),
        (line, "ebitda_margin", "EBITDA margin"),
    ):
        values = "=" + layout.block(key)
        part.add_series({"name": label, "categories": categories, "values": values, "y2_axis": part is line})
    chart.combine(line)
    chart.set_title({"name": "Revenue and EBITDA, $000"})
    line.set_y2_axis({"num_format": "0%"})
    chart.set_legend({"position": "bottom"})
    chart.set_size({"width": 640, "height": 320})
    sheet.insert_chart("A29", chart)


def main():
    target = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).with_name("three-statement-model.xlsx")
    layout = Layout(SHEETS)
    cells = cover_cells(layout) | model_cells(layout) | quarterly_cells(layout) | LISTS
    values = Evaluator({place: content for place, (content, _) in cells.items()}, layout.names)
    sheet, cell = layout.names["ModelStatus"].lstrip("=").split("!$C$")
    if values.value(sheet, int(cell), FIRST_COLUMN) != "OK":
        sys.exit("the model does not pass its own checks; nothing was written")

    book = xlsxwriter.Workbook(str(target))
    book.set_properties({"title": "Three-statement model", "author": "Calder Vale", "created": DATED})
    title = book.add_format({"bold": True, "font_size": 14, "align": "left"})
    bold = book.add_format({"bold": True})
    sheets = {name: book.add_worksheet(name) for name in ["Cover", *(s.name for s in SHEETS), "Quarterly", "Lists"]}
    dress(book, sheets, layout, title)
    for (name, row, column), (content, is_bold) in cells.items():
        style = title if (row, column) == (1, 1) and name != "Lists" else bold if is_bold else None
        if isinstance(content, str) and content.startswith("="):
            value = values.value(name, row, column)
            whole = isinstance(value, float) and value.is_integer()
            sheets[name].write_formula(row - 1, column - 1, content, style, int(value) if whole else value)
        else:
            sheets[name].write(row - 1, column - 1, content, style)
    for name, place in layout.names.items():
        book.define_name(f"Checks!{name}" if name == "Tolerance" else name, place)
    add_chart(book, sheets["Cover"], layout)
    sheets["Cover"].activate()
    book.close()


if __name__ == "__main__":
    main()
