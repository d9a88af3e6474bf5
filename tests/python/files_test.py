"""Documents in files: encodings, and what stays when storing fails."""

import os
import pathlib
import tempfile
import unittest

from praxenhelper import load, save

DOCUMENT = "<?xml version='1.0' encoding='UTF-16'?>\r\n<ä/>"


class FilesTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.file = pathlib.Path(folder.name, "Füllstand.xml")

    def test_encodings(self):
        for encoding, start in (("utf-16", b"\xff\xfe<\0"), ("UTF-8", b"<?xml")):
            with self.subTest(encoding):
                save(self.file, DOCUMENT, encoding)
                self.assertTrue(self.file.read_bytes().startswith(start))
                self.assertEqual(load(self.file), DOCUMENT.replace("UTF-16", encoding.upper()))
        for codec in ("utf-8", "utf-8-sig", "utf-16", "utf-16-le", "utf-16-be"):
            with self.subTest(codec):
                self.file.write_bytes("<ä/>".encode(codec))
                self.assertEqual(load(self.file), "<ä/>")

    def test_what_is_there_is_replaced_as_a_whole(self):
        self.file.write_text("former")
        self.file.chmod(0o640)
        with self.assertRaises(UnicodeEncodeError):
            save(self.file, "\ud800", "utf-8")
        self.assertEqual(self.file.read_text(), "former")
        save(self.file, DOCUMENT)
        self.assertEqual(self.file.stat().st_mode & 0o777, 0o640)
        self.assertEqual(os.listdir(self.file.parent), [self.file.name])

    def test_faults(self):
        missing = self.file.parent / "missing" / "a.xml"
        with self.assertRaises(FileNotFoundError) as raised:
            save(missing, DOCUMENT)
        self.assertEqual(raised.exception.filename, str(missing))
        with self.assertRaises(ValueError):
            save(self.file, DOCUMENT, "latin-1")
