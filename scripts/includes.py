"""The #include lines of the sources below one folder, for the scripts that reason about them."""

import re
from pathlib import Path

SOURCE_SUFFIXES = {".cpp", ".h", ".inc"}

_INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(?:"(?P<quoted>[^"\n]+)"|<(?P<angled>[^>\n]+)>)', re.MULTILINE)
_BLOCK_COMMENT = re.compile(r"/\*.*?\*/", re.DOTALL)


class Include:
    """One #include line: the line's number, the name between the marks, and which marks they are."""

    def __init__(self, line, name, quoted):
        self.line = line
        self.name = name
        self.quoted = quoted


def sources(root):
    """Every source below root, as paths relative to it with forward slashes, sorted."""
    return sorted(p.relative_to(root).as_posix() for p in Path(root).rglob("*") if p.suffix in SOURCE_SUFFIXES)


def includes_of(path):
    """The Include lines of one file, from the top; lines inside block comments do not count."""
    text = Path(path).read_text(encoding="utf-8", errors="replace")
    text = _BLOCK_COMMENT.sub(lambda comment: "\n" * comment.group().count("\n"), text)
    return [
        Include(text.count("\n", 0, match.start()) + 1, match["quoted"] or match["angled"], match["quoted"] is not None)
        for match in _INCLUDE.finditer(text)
    ]
