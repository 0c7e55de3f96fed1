"""Works out what the formulas of a workbook in the making come to, so that it can be saved with its values.

Knows as much of the formula language as the example uses: arithmetic, comparison, &, references within and across
sheets, names, and the functions listed at the end.
"""

import datetime
import re

_EPOCH = datetime.date(1899, 12, 30)
_TOKEN = re.compile(
    r"""(?P<text>"[^"]*")
      | (?P<ref>(?:(?P<sheet>'[^']+'|\w+)!)?(?P<first>\$?[A-Z]{1,2}\$?\d+)(?::(?P<last>\$?[A-Z]{1,2}\$?\d+))?(?![\w(]))
      | (?P<function>[A-Z]+)\(
      | (?P<name>[A-Za-z_]\w*)
      | (?P<number>\d+(?:\.\d+)?)
      | (?P<operator><>|<=|>=|[-+*/^&=<>(),])
      | \s+""",
    re.VERBOSE,
)
_OPERATORS = {"^": "**", "=": "==", "<>": "!="}


class Text(str):
    """A text that joins with & as in a formula; whole numbers lose their decimal point on the way."""

    def __and__(self, other):
        return Text(self + _plain(other))

    def __rand__(self, other):
        return Text(_plain(other) + self)


def _plain(value):
    return str(int(value)) if isinstance(value, float) and value.is_integer() else str(value)


def _split(reference):
    letters, digits = re.fullmatch(r"\$?([A-Z]+)\$?(\d+)", reference).groups()
    column = 0
    for letter in letters:
        column = column * 26 + ord(letter) - 64
    return int(digits), column


class Evaluator:
    """Values of the cells {(sheet, row, column): constant or "=formula"}, row and column 1-based."""

    def __init__(self, cells, names):
        self.cells = cells
        self.names = {name: target.lstrip("=") for name, target in names.items()}
        self.known = {}

    def value(self, sheet, row, column):
        """The value of one cell: a number, a text, or None when it is empty. A circle ends in RecursionError."""
        place = (sheet, row, column)
        if place not in self.known:
            content = self.cells.get(place)
            formula = isinstance(content, str) and content.startswith("=")
            self.known[place] = self._evaluate(content[1:], sheet) if formula else content
        return self.known[place]

    def _evaluate(self, formula, sheet):
        code, end = [], 0
        for token in _TOKEN.finditer(formula):
            if token.start() != end:
                raise ValueError(f"{sheet}: cannot read ={formula} at {formula[end:]}")
            end = token.end()
            if token["text"]:
                code.append(f"Text({token['text']})")
            elif token["ref"]:
                there = (token["sheet"] or sheet).strip("'")
                code.append(f"ref({there!r}, {token['first']!r}, {token['last']!r})")
            elif token["function"]:
                code.append(f"{token['function']}(")
            elif token["name"]:
                code.append(f"name({token['name']!r})")
            elif token["operator"]:
                code.append(_OPERATORS.get(token["operator"], token["operator"]))
            else:
                code.append(token["number"] or "")
        if end != len(formula):
            raise ValueError(f"{sheet}: cannot read ={formula} at {formula[end:]}")
        result = eval("".join(code), dict(_FUNCTIONS, Text=Text, ref=self._ref, name=self._name))
        return result if isinstance(result, (str, list)) else float(result) + 0.0  # no minus zero

    def _name(self, name):
        return self._evaluate(self.names[name], "")

    def _ref(self, sheet, first, last):
        """A number or a text for one cell, a flat list for a block."""
        top, left = _split(first)
        if last is None:
            value = self.value(sheet, top, left)
            return Text(value) if isinstance(value, str) else float(value or 0)
        bottom, right = _split(last)
        return [self.value(sheet, r, c) for r in range(top, bottom + 1) for c in range(left, right + 1)]


def _numbers(arguments):
    flat = [value for argument in arguments for value in (argument if isinstance(argument, list) else [argument])]
    return [value for value in flat if isinstance(value, (int, float))]


def _date(serial):
    return _EPOCH + datetime.timedelta(days=int(serial))


def _edate(serial, months):
    start = _date(serial)
    month = start.year * 12 + start.month - 1 + int(months)
    following = datetime.date((month + 1) // 12, (month + 1) % 12 + 1, 1)
    length = (following - datetime.timedelta(days=1)).day
    return (datetime.date(month // 12, month % 12 + 1, min(start.day, length)) - _EPOCH).days


_FUNCTIONS = {
    "__builtins__": {},
    "ABS": abs,
    "AND": lambda *a: all(a),
    "AVERAGE": lambda *a: sum(_numbers(a)) / len(_numbers(a)),
    "CHOOSE": lambda index, *options: options[int(index) - 1],
    "EDATE": _edate,
    "EOMONTH": lambda serial, months: _edate(serial - _date(serial).day + 1, months + 1) - 1,
    "IF": lambda condition, yes, no: yes if condition else no,
    "INDEX": lambda block, index: block[int(index) - 1],
    "MATCH": lambda value, block, exact: block.index(value) + 1,
    "MAX": lambda *a: max(_numbers(a)),
    "MIN": lambda *a: min(_numbers(a)),
    "SUM": lambda *a: sum(_numbers(a)),
    "SUMPRODUCT": lambda a, b: sum(x * y for x, y in zip(_numbers([a]), _numbers([b]))),
    "YEAR": lambda serial: _date(serial).year,
}
