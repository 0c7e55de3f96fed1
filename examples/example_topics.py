"""What the sheets of the examples workbook show: a topic's title, what to do, and cells to do it on.

Cells begin in row 12, so that formulas can say where they are; texts that begin with = are formulas.
"""

from dataclasses import dataclass

FIRST_ROW = 12


@dataclass
class Topic:
    key: str      # of the command table, and of the start bookmark
    title: str    # of the sheet
    steps: list
    cells: list


def across(formula):
    """A formula of column B, and its copies in C to E."""
    return [formula.replace("$", column) for column in "BCDE"]


YEARS = ["", 2024, 2025, 2026, 2027]
INCOME = [
    YEARS,
    ["Revenue", 1200, 1350, 1485, 1610],
    ["Cost of goods sold", -700, -770, -835, -890],
    ["Gross profit", *across("=$13+$14")],
    ["Gross margin", *across("=$15/$13")],
    ["Operating expenses", -260, -275, -290, -305],
    ["Operating profit", *across("=$15+$17")],
]
NUMBERS = [
    ["Price", 1234.5, 99.95, -12.5, 0],
    ["Growth", 0.0825, 0.1, -0.035, 0],
    ["Multiple", 7.5, 11.25, 0.8, 3],
    ["Flag", 1, 0, 1, 1],
    ["Day", 45291, 45322, 45351, 45382],
]
SECTIONS = [
    ["Income statement"],
    ["Revenue", 1200, 1350, 1485, 1610],
    ["Products", 800, 900, 985, 1060],
    ["Services", 400, 450, 500, 550],
    ["Costs", -960, -1045, -1125, -1195],
    ["Materials", -700, -770, -835, -890],
    ["People", -260, -275, -290, -305],
    ["Profit", *across("=$13+$16")],
]

TOPICS = [
    Topic("StyleCycles", "Style SmartCycles", [
        "Select the cells of a line and press the key of a SmartCycle: the first style of the cycle is applied.",
        "Press it again for the next style, until the first one comes round again.",
        "What the cell shows decides which style comes next, not what you pressed last.",
    ], NUMBERS),
    Topic("MyCycles", "My SmartCycles", [
        "Fifteen cycles are yours: put the styles into them that your house uses.",
        "My SmartCycle 1 and 4 are filled to begin with; an empty one does nothing.",
    ], NUMBERS),
    Topic("ColorCycles", "Color SmartCycles", [
        "Select cells and press a color cycle's key: the font takes the first color, then the next.",
        "AutoColor leaves the colors of the cycle alone that you name in the settings.",
    ], INCOME),
    Topic("SizeCycles", "Indents and sizes", [
        "Select labels and press the indent cycle: they move in, one level a press, and back.",
        "Row heights and column widths step through their lists in the same way.",
    ], INCOME),
    Topic("AutoColor", "AutoColor", [
        "Select everything below and press the key: inputs become blue, formulas black, links to other sheets green.",
        "Numbers typed into formulas, as in the last line, are shown apart: they are easily overlooked.",
    ], INCOME + [["Plan", *across("=$13*1.05")], ["Price on another sheet", "='Style SmartCycles'!B12"]]),
    Topic("SmartCopy", "Smart Copy", [
        "Select the formulas in B20:B21 and run Smart Copy Right: they go to the columns that have a year on top.",
        "Select B18:E18 and run Smart Copy Down: rows without a label stay empty.",
    ], INCOME + [[], ["Profit a day", "=B18/365"], ["Profit share", "=B18/B13"]]),
    Topic("SmartFill", "Smart Fill", [
        "Select B12 and run Smart Fill Dates: choose the first and the last date and the step.",
        "Smart Fill Numbers fills a series of numbers, with a style of your choice.",
    ], [["Period ending"], ["Period"], ["Days", 30]]),
    Topic("SmartSpacing", "Smart formula spacing", [
        "The quarters stand below each other, the years beside each other.",
        "Select B13:E13 and run Smart Formula Column Spacing: every formula moves on by four columns of quarters.",
    ], [
        ["Year", 2024, 2025, 2026, 2027],
        ["Revenue of the year", "=SUM(B16:E16)"],
        [],
        ["Quarter", *range(1, 17)],
        ["Revenue", *range(280, 360, 5)],
    ]),
    Topic("SmartAnchor", "Smart Anchor", [
        "Select B18:E18 and press the key: the references become absolute, then mixed, then relative again.",
    ], INCOME),
    Topic("SmartTrace", "Precedents and dependents", [
        "Select B18 and run Smart Precedents: the list shows the cells that its formula refers to.",
        "Select B13 and run Smart Dependents: it shows the formulas that refer to it, on every sheet.",
    ], INCOME),
    Topic("Paintbrush", "BR Paintbrush", [
        "Select B12 and capture its formatting, then select other cells and apply it.",
        "The captured style stays until the next one is captured; the last five are in the style library.",
    ], NUMBERS),
    Topic("SheetStyle", "Sheet style", [
        "Apply Sheet Style gives the whole sheet the style that the settings name, after asking.",
    ], INCOME),
    Topic("Borders", "Borders", [
        "Select B18:E18 and put a line on top of it; the same key takes it away again.",
    ], INCOME),
    Topic("Decimals", "Decimals and thousands", [
        "Select numbers and add or remove a decimal place: every section of the number format follows.",
        "Thousands shows large numbers without their last three digits; the values stay.",
    ], NUMBERS),
    Topic("FontsAndText", "Fonts and text", [
        "Select cells and make their font larger or smaller along Excel's own list of sizes.",
    ], INCOME),
    Topic("ErrorTrap", "Error trap", [
        "Select B14:E14, one of whose formulas divides by zero, and run the command: errors show as NA.",
    ], [["Profit", 120, 80, 95, 130], ["Shares", 40, 40, 0, 50], ["Profit a share", *across("=$12/$13")]]),
    Topic("Separator", "Separator line", [
        "Select B19:E19, the empty row below the figures, and run the command: it becomes a thin line of dashes.",
    ], INCOME + [[], ["Total", *across("=$18")]]),
    Topic("RowsAndColumns", "Rows and columns", [
        "Select a row's cells and insert or delete rows; with several rows selected, as many are inserted.",
        "Undo gives back what was deleted, formulas included.",
    ], INCOME),
    Topic("Grouping", "Grouping and hiding", [
        "Select rows 14 and 15 and group them, then show the outline level by level.",
        "Groups leave a sign where rows are hidden; rows that are hidden the old way leave none.",
    ], SECTIONS),
    Topic("Bookmarks", "Bookmarks", [
        "Set a bookmark on B13, another one on a cell of another sheet, and go from one to the next.",
        "Bookmarks are saved with the workbook.",
    ], INCOME),
    Topic("Worksheets", "Worksheets", [
        "Go to the next or the previous visible worksheet without the mouse, and come back.",
    ], [["This workbook has a sheet for each topic."]]),
    Topic("View", "Zoom and windows", [
        "Zoom in and out, switch the gridlines off and on, and place Excel's window on the screen.",
    ], INCOME),
    Topic("Optimization", "Clean-up", [
        "Remove the custom number formats that no cell uses, and the names whose cells are gone.",
        "Try it on a copy of an old model: thousands of them make workbooks slow.",
    ], NUMBERS),
]
