"""The same job in openpyxl: load a workbook, restyle one column, save.

    peer-openpyxl.py IN OUT
"""
import sys

import openpyxl
from openpyxl.styles import Font

book = openpyxl.load_workbook(sys.argv[1])
sheet = book["Data"]
font = Font(name="Arial", size=10, bold=True)
for (cell,) in sheet.iter_rows(min_col=5, max_col=5):
    cell.number_format = "[$$-409]#,##0_);([$$-409]#,##0)"
    cell.font = font
book.save(sys.argv[2])
