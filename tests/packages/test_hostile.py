"""Nothing is let in: damaged and lying packages are refused in one line or come out right; nothing crashes, hangs or swells.

    HOSTILE_PACKAGES    how many random ones; 60 unless told
    HOSTILE_SEED        where their numbers begin
"""
import io
import os
import pathlib
import random
import re
import struct
import subprocess
import tempfile
import time
import unittest
import zipfile

from packages import FEATURES, package

KESTRUNE = os.environ["KESTRUNE"]
COUNT = int(os.environ.get("HOSTILE_PACKAGES", "60"))
SEED = int(os.environ.get("HOSTILE_SEED", "1"))
SECONDS, MEBIBYTES = 20, 600  # a build with sanitizers takes several times what it needs
SHEET = "xl/worksheets/sheet1.xml"
EVIL = ("", "-1", "0", "99999999999", "4294967295", "1e309", "NaN", "../../../etc/passwd", "A1048577", "XFE1", "A1:XFD1048576", "B2:A1",
        "&#0;", "&lol;", "\ud7ff" * 40, "rId1", "x" * 70_000, "&amp;" * 9, "#REF!", "true")


def parts_of(bytes_):
    with zipfile.ZipFile(io.BytesIO(bytes_)) as archive:
        return {name: archive.read(name) for name in archive.namelist()}


def broken_entries(file):
    broken = set()
    try:
        archive = zipfile.ZipFile(file)
    except NotImplementedError:  # it asks for a newer zip than Python has
        return {"all of it"}
    with archive:
        for entry in archive.infolist():
            try:
                archive.read(entry)
            except Exception:  # whatever zipfile finds wrong with it
                broken.add(entry.filename)
    return broken


def packed(parts, method=zipfile.ZIP_DEFLATED):
    out = io.BytesIO()
    with zipfile.ZipFile(out, "w", method) as archive:
        for name, content in parts.items():
            archive.writestr(name, content)
    return out.getvalue()


def flipped(chance, book):
    book = bytearray(book)
    for _ in range(chance.randint(1, 12)):
        book[chance.randrange(len(book))] ^= 1 << chance.randrange(8)
    return bytes(book)


def cut(chance, book):
    return book[:chance.randrange(len(book))]


def parts_dropped(chance, book):
    parts = parts_of(book)
    for name in chance.sample(list(parts), chance.randint(1, 4)):
        del parts[name]
    return packed(parts)


def sizes_lied_about(chance, book):
    """One number of the archive's directory, or of an entry's own head."""
    book = bytearray(book)
    heads = [match.start() for match in re.finditer(rb"PK\x01\x02|PK\x03\x04|PK\x05\x06", bytes(book))]
    at = chance.choice(heads) + chance.choice((6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30, 34, 38, 42))
    if at + 4 <= len(book):
        struct.pack_into("<I", book, at, chance.choice((0, 1, 0xFFFF, 0x7FFFFFFF, 0xFFFFFFFF, len(book))))
    return bytes(book)


def attributes_replaced(chance, book):
    parts = parts_of(book)
    for _ in range(chance.randint(1, 5)):
        name = chance.choice([name for name in parts if name.endswith((".xml", ".rels"))])
        values = list(re.finditer(rb'="([^"]*)"', parts[name]))
        if values:
            value = chance.choice(values)
            evil = chance.choice(EVIL).encode(errors="surrogatepass")
            parts[name] = parts[name][:value.start(1)] + evil + parts[name][value.end(1):]
    return packed(parts)


def elements_moved(chance, book):
    parts = parts_of(book)
    name = chance.choice([name for name in parts if name.endswith((".xml", ".rels"))])
    tags = re.split(rb"(?=<)", parts[name])
    for _ in range(chance.randint(1, 4)):
        at, to = chance.randrange(len(tags)), chance.randrange(len(tags))
        chance.choice((lambda: tags.pop(at), lambda: tags.insert(to, tags[at]), lambda: tags.reverse()))()
    parts[name] = b"".join(tags)
    return packed(parts)


MUTATIONS = (flipped, cut, parts_dropped, sizes_lied_about, attributes_replaced, elements_moved)


class Hostile(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        os.environ["XDG_CONFIG_HOME"] = str(self.folder / "config")

    def run_on(self, book):
        """The exit status and the line of standard error; the promises of any run hold."""
        file, out = self.folder / "book.xlsx", self.folder / "out.xlsx"
        file.write_bytes(book)
        out.unlink(missing_ok=True)
        errors = self.folder / "errors"
        start = time.monotonic()
        with open(errors, "wb") as stream:
            process = subprocess.Popen([KESTRUNE, "run", file, "-o", out, "--force", "@1:9", "20", "102", "63", "undo:2"],
                                       stdout=subprocess.DEVNULL, stderr=stream)
            while not (done := os.wait4(process.pid, os.WNOHANG))[0]:
                if time.monotonic() - start > SECONDS:
                    process.kill()
                    self.fail(f"hangs for {SECONDS} seconds")
                time.sleep(0.005)
        process.returncode = os.waitstatus_to_exitcode(done[1])
        told = errors.read_text(errors="replace")
        self.assertIn(process.returncode, (0, 1), told[-2000:])
        self.assertLess(done[2].ru_maxrss / 1024, MEBIBYTES)
        self.assertEqual(out.exists(), process.returncode == 0)
        if process.returncode == 1:
            lines = told.splitlines()
            self.assertRegex(lines[-1], r"^kestrune: .*book\.xlsx.*\S")
            self.assertNotIn("internal error", told)
        else:
            # What nobody reads is copied as it came, broken or not.
            self.assertLessEqual(broken_entries(out), broken_entries(file))
            again = subprocess.run([KESTRUNE, "run", out], capture_output=True, text=True, timeout=SECONDS)
            self.assertEqual(again.returncode, 0, again.stderr)
        return process.returncode, told

    def test_random_damage(self):
        features = [name for name in FEATURES if name not in ("page_setup", "strict", "utf16", "prefixes")]
        for number in range(SEED, SEED + COUNT):
            chance = random.Random(number)
            book = package(chance.sample(features, chance.randint(1, 6)))
            mutation = chance.choice(MUTATIONS)
            with self.subTest(number=number, mutation=mutation.__name__):
                self.run_on(mutation(chance, book))

    def refused(self, parts, part):
        status, told = self.run_on(packed(parts))
        self.assertEqual(status, 1)
        self.assertIn(part, told)

    def test_what_would_swell_is_refused(self):
        parts = parts_of(package([]))
        sheet = parts[SHEET].decode()
        entities = '<!DOCTYPE x [<!ENTITY a "aaaaaaaaaa">' + "".join(
            f'<!ENTITY {chr(98 + n)} "{f"&{chr(97 + n)};" * 10}">' for n in range(9)) + "]>"
        self.refused({**parts, SHEET: entities + sheet.replace("<v>1.5</v>", "<v>&j;</v>")}, SHEET)
        outside = '<!DOCTYPE x [<!ENTITY a SYSTEM "file:///etc/hostname">]>'
        self.refused({**parts, SHEET: outside + sheet.replace("<v>1.5</v>", "<v>&a;</v>")}, SHEET)
        self.refused({**parts, "xl/styles.xml": "<a>" * 200_000}, "xl/styles.xml")
        for kind in ('"array"', '"dataTable" r1="A1"'):
            whole = sheet.replace("<f>B1*2</f>", f'<f t={kind} ref="A1:XFD1048576">B1*2</f>')
            self.refused({**parts, SHEET: whole}, "fills more cells than a")

    def test_what_stands_for_two_things_is_refused(self):
        parts = parts_of(package(["missing_calculation_chain"]))
        name = "xl/_rels/workbook.xml.rels"
        self.refused({**parts, name: re.sub(b'rId[0-9]+(?=" Type="[^"]*calcChain)', b"rId1", parts[name])},
                     'two relationships with the id "rId1"')
        self.refused({**parts, "xl/workbook.xml": parts["xl/workbook.xml"].replace(b"rId2", b"rId1")},
                     'xl/worksheets/sheet1.xml: holds the sheet "Two" and another one')

    def test_many_small_things_take_no_time(self):
        parts = parts_of(package([]))
        areas = " ".join(f"A{row}" for row in range(1, 80_001, 2))
        rule = (f'<conditionalFormatting sqref="{areas}"><cfRule type="expression" priority="1" dxfId="0"><formula>A1>B1</formula></cfRule>'
                "</conditionalFormatting><pageMargins")
        status, told = self.run_on(packed({**parts, SHEET: parts[SHEET].decode().replace("<pageMargins", rule)}))
        self.assertEqual(status, 0, told)

    def test_a_conditional_format_may_name_what_is_not_there(self):
        parts = parts_of(package([]))
        rule = ('<conditionalFormatting sqref="A1:XFD1048576"><cfRule type="expression" priority="1" dxfId="9999999"><formula>TRUE'
                "</formula></cfRule></conditionalFormatting><pageMargins")
        book = {**parts, SHEET: parts[SHEET].decode().replace("<pageMargins", rule)}
        self.assertEqual(self.run_on(packed(book))[0], 0)
        for command in (["diff", self.folder / "book.xlsx", self.folder / "out.xlsx"], ["show", self.folder / "out.xlsx"]):
            done = subprocess.run([KESTRUNE, *command], capture_output=True, text=True, timeout=SECONDS)
            self.assertEqual(done.returncode, 0, done.stderr)

    def test_paths_that_lead_out_are_refused(self):
        parts = parts_of(package([]))
        for name in ("../outside.xml", "/etc/passwd", "xl/../../outside.xml", "xl\\..\\..\\outside.xml"):
            with self.subTest(name=name):
                status, told = self.run_on(packed({**parts, name: "<a/>"}))
                self.assertFalse((self.folder.parent / "outside.xml").exists())
                self.assertIn(status, (0, 1), told)
        away = parts["xl/_rels/workbook.xml.rels"].replace(b"worksheets/sheet1.xml", b"../../../../etc/passwd")
        self.refused({**parts, "xl/_rels/workbook.xml.rels": away}, "xl/")


if __name__ == "__main__":
    unittest.main()
