"""Looks into the DLLs as files: what Windows reads of them before any of their code runs.

    python3 test_dlls.py FOLDER BITS VERSION IDL_FOLDER
"""

import re
import struct
import sys
import unittest
import uuid
from pathlib import Path

FOLDER, BITS, VERSION, IDL = Path(sys.argv[1]), int(sys.argv[2]), sys.argv[3], Path(sys.argv[4])

EXPORTS = ["DllCanUnloadNow", "DllGetClassObject", "DllInstall", "DllRegisterServer", "DllUnregisterServer"]
# What every Windows since 7 has.
SYSTEM = {
    *("advapi32", "comctl32", "comdlg32", "gdi32", "kernel32", "msvcrt"),
    *("ole32", "oleaut32", "shell32", "shlwapi", "user32", "winhttp"),
}


class Image:
    """A portable executable, as far as these tests read one."""

    def __init__(self, path):
        self.data = path.read_bytes()
        header = self.number(0x3C)
        assert self.data[header : header + 4] == b"PE\0\0", f"{path} is no DLL"
        self.machine, sections = struct.unpack_from("<HH", self.data, header + 4)
        self.size_of_optional, self.flags = struct.unpack_from("<HH", self.data, header + 20)
        optional = header + 24
        self.directories = optional + (112 if self.number(optional, "H") == 0x20B else 96)
        self.dll_flags = self.number(optional + 70, "H")
        table = optional + self.size_of_optional
        self.sections = [struct.unpack_from("<IIII", self.data, table + 40 * i + 8) for i in range(sections)]

    def number(self, at, kind="I"):
        return struct.unpack_from("<" + kind, self.data, at)[0]

    def at(self, address):
        """The place in the file of an address in memory."""
        for size, start, stored, offset in self.sections:
            if start <= address < start + max(size, stored):
                return address - start + offset
        raise ValueError(f"no section holds {address:#x}")

    def directory(self, index):
        return self.at(self.number(self.directories + 8 * index))

    def text(self, at):
        return self.data[at : self.data.index(b"\0", at)].decode("ascii")

    def exports(self):
        table = self.directory(0)
        names = self.at(self.number(table + 32))
        return [self.text(self.at(self.number(names + 4 * i))) for i in range(self.number(table + 24))]

    def imports(self):
        at, found = self.directory(1), set()
        while name := self.number(at + 12):
            found.add(self.text(self.at(name)).lower().removesuffix(".dll"))
            at += 20
        return found

    def resource(self, kind):
        """The first resource of a kind, a number or an upper-case name."""
        root = self.directory(2)
        at = root
        for level in range(3):
            named, numbered = struct.unpack_from("<HH", self.data, at + 12)
            for i in range(named + numbered):
                name, target = struct.unpack_from("<II", self.data, at + 16 + 8 * i)
                if level > 0 or self.resource_name(root, name) == kind:
                    break
            else:
                return None
            at = root + (target & 0x7FFFFFFF)
        address, size = struct.unpack_from("<II", self.data, at)
        return self.data[self.at(address) : self.at(address) + size]

    def resource_name(self, root, name):
        if not name & 0x80000000:
            return name
        at = root + (name & 0x7FFFFFFF)
        return self.data[at + 2 : at + 2 + 2 * self.number(at, "H")].decode("utf-16-le")


def idl_facts(library):
    """The library's identifier, every other identifier and every member's name, from its interface definition."""
    text = (IDL / f"{library}.idl").read_text()
    identifiers = re.findall(r"uuid\(([-0-9a-f]{36})\)", text)
    return identifiers, set(re.findall(r"^ +\[id\(.*?\] [\w*]+ (\w+)\(", text, re.MULTILINE))


class Dlls(unittest.TestCase):
    LIBRARIES = ("KestruneXL", "BRVBLib", "BRXLLib")

    def each(self):
        for library in self.LIBRARIES:
            with self.subTest(library):
                yield library, Image(FOLDER / f"{library}.dll")

    def test_are_for_the_right_machine(self):
        machine = {64: 0x8664, 32: 0x14C}[BITS]
        for _, image in self.each():
            self.assertEqual(image.machine, machine)
            self.assertTrue(image.flags & 0x2000, "is no DLL")
            self.assertEqual(image.dll_flags & 0x140, 0x140, "can be moved in memory, and its data not run")

    def test_export_what_com_calls_and_nothing_else(self):
        for _, image in self.each():
            self.assertEqual(sorted(image.exports()), EXPORTS)

    def test_need_nothing_that_windows_lacks(self):
        for _, image in self.each():
            self.assertLessEqual(image.imports(), SYSTEM)

    def test_say_what_they_are(self):
        parts = [*map(int, VERSION.split(".")), 0]
        for library, image in self.each():
            version = image.resource(16)
            fixed = version.index(struct.pack("<I", 0xFEEF04BD))
            high, low = struct.unpack_from("<II", version, fixed + 8)
            self.assertEqual([high >> 16, high & 0xFFFF, low >> 16, low & 0xFFFF], parts)
            strings = version.decode("utf-16-le", "replace")
            for name, value in {
                "ProductName": "Kestrune",
                "ProductVersion": VERSION,
                "FileVersion": VERSION,
                "OriginalFilename": f"{library}.dll",
            }.items():
                self.assertRegex(strings, f"{name}\0+{re.escape(value)}\0")

    def test_carry_the_type_library_of_the_interface_definition(self):
        for library, image in self.each():
            types = image.resource("TYPELIB")
            self.assertIsNotNone(types, "there is none")
            self.assertEqual(types[:4], b"MSFT")
            identifiers, members = idl_facts(library)
            self.assertGreater(len(members), 1)
            for identifier in identifiers:
                self.assertIn(uuid.UUID(identifier).bytes_le, types)
            for member in members:
                self.assertIn(member.lower().encode(), types.lower())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
