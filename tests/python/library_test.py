"""Where the library is looked for, and how a process ends that still uses it."""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

LIBRARY = os.environ["PRAXENHELPER_LIBRARY"]
# What tells where the library is.
SETTINGS = ("PRAXENHELPER_LIBRARY", "PRAXENHELPER_REGISTRY", "XDG_DATA_HOME", "HOME")

CREATE = 'import praxenhelper; print(praxenhelper.Dispatch("PraxenHelper.Variable"))'
CREATED = "<PraxenHelper.Variable object>\n"
REGISTER = """
import ctypes, sys
sys.exit(ctypes.CDLL(sys.argv[1]).DllRegisterServer())
"""
# References in a module, a cycle, a frame that never returns and an error that is not caught.
END = """
import threading, time
from praxenhelper import Dispatch
program = Dispatch("PraxenHelper.Program")
cycle = [program.Variables, iter(program.Variables), program.Variables.Add1]
cycle.append(cycle)
def hold(variable):
    time.sleep(3600)
threading.Thread(target=hold, args=(Dispatch("PraxenHelper.Variable"),), daemon=True).start()
program.Serialize()
"""
ON_WINDOWS = 'import sys; sys.platform = "win32"; import praxenhelper'

# Reads with the schema of the current folder before and after that changes; prints the errors.
READ = """
import pathlib
from praxenhelper import AutomationError, Dispatch
factory = Dispatch("PraxenHelper.ObjectFactory")
text = "<Variable xmlns='PraxenSchema3_0' Name='v' Type='t' Attribute=''/>"
for content in (None, "changed"):
    if content is not None:
        pathlib.Path("PraxenSchema3_0.xsd").write_text(content)
    try:
        print(factory.DeserializeVariable(text).Name)
    except AutomationError as error:
        print(hex(error.number), error.description)
"""
SCHEMA = pathlib.Path(__file__).parents[2] / "schema" / "PraxenSchema3_0.xsd"


def run(code, *arguments, cwd=None, **environment):
    others = {name: value for name, value in os.environ.items() if name not in SETTINGS}
    return subprocess.run(
        [sys.executable, "-B", "-c", code, *arguments],
        cwd=cwd,
        env={**others, **environment},
        capture_output=True,
        text=True,
        timeout=60,
    )


class LibraryTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.registry = self.folder / "classes"

    def test_the_environment_comes_first(self):
        self.registry.write_text("PraxenHelper.Variable\t{}\t/nowhere.so\n")
        done = run(CREATE, PRAXENHELPER_LIBRARY=LIBRARY, PRAXENHELPER_REGISTRY=str(self.registry))
        self.assertEqual((done.stdout, done.stderr), (CREATED, ""))

    def test_the_registered_library_is_found(self):
        data = self.folder / ".local" / "share" / "praxenhelper"
        for environment in (
            {"PRAXENHELPER_REGISTRY": str(self.registry)},
            {"XDG_DATA_HOME": str(self.folder / "data")},
            {"HOME": str(self.folder)},
        ):
            with self.subTest(environment):
                self.assertEqual(run(REGISTER, LIBRARY, **environment).returncode, 0)
                done = run(CREATE, **environment)
                self.assertEqual((done.stdout, done.stderr), (CREATED, ""))
        self.assertTrue((data / "classes").exists())

    def test_the_schema_is_read_once(self):
        shipped = SCHEMA.read_text()
        undeclared = shipped.replace('<xs:element name="Variable"', '<xs:element name="Other"')
        file = self.folder / "PraxenSchema3_0.xsd"
        for content, says in (
            (shipped, "v\n"),
            ("<x", f"0x8007000d The schema '{file}' cannot be used: "),
            (undeclared, '0x8004025b Invalid XML: The element "Variable" is not declared by the'),
        ):
            with self.subTest(says):
                file.write_text(content)
                done = run(READ, cwd=self.folder, PRAXENHELPER_LIBRARY=LIBRARY)
                before, after = done.stdout.splitlines(keepends=True) or ("", done.stderr)
                self.assertTrue(before.startswith(says), before + done.stderr)
                self.assertEqual(before, after)

    def test_the_registry_is_not_looked_for_in_the_current_folder(self):
        data = self.folder / ".local" / "share" / "praxenhelper"
        data.mkdir(parents=True)
        data.joinpath("classes").write_text(f"PraxenHelper.Variable\t{{}}\t{LIBRARY}\n")
        for environment in ({}, {"HOME": ""}, {"HOME": "."}, {"HOME": "", "XDG_DATA_HOME": "."}):
            with self.subTest(environment):
                done = run(CREATE, cwd=self.folder, **environment)
                self.assertIn("0x800401F8", done.stderr)

    def test_what_is_no_file_is_not_waited_for(self):
        pipe = self.folder / "pipe"
        os.mkfifo(pipe)
        self.registry.write_text(f"PraxenHelper.Variable\t{{}}\t{pipe}\n")
        null = self.folder / "null"
        null.write_text("PraxenHelper.Variable\t{}\t/a\0b.so\n")
        for environment in (
            {"PRAXENHELPER_LIBRARY": str(pipe)},
            {"PRAXENHELPER_REGISTRY": str(pipe)},
            {"PRAXENHELPER_REGISTRY": str(self.registry)},
            {"PRAXENHELPER_REGISTRY": str(null)},
        ):
            with self.subTest(environment):
                self.assertIn("0x800401F8", run(CREATE, **environment).stderr)

    def test_other_lines_of_the_registry_are_passed_over(self):
        lines = (
            b"\xef\xbb\xbfOther.Class\t{}\t/nowhere.so",
            b"PraxenHelper.Variable\t{}",
            b"PraxenHelper.Variable\t{}\trelative.so",
            b"\xff\xfe\t\t\t",
            b"praxenhelper.variable\t{}\t " + LIBRARY.encode() + b" \r",
        )
        self.registry.write_bytes(b"\n".join(lines))
        done = run(CREATE, PRAXENHELPER_REGISTRY=str(self.registry))
        self.assertEqual((done.stdout, done.stderr), (CREATED, ""))

    def test_a_library_that_cannot_be_used_is_told(self):
        (self.folder / "text.so").write_text("no library")
        for library, number in (
            (str(self.folder / "missing.so"), "0x800401F8"),
            (str(self.folder / "text.so"), "0x800401F8"),
            ("libc.so.6", "0x800401F9"),
        ):
            with self.subTest(library):
                done = run(CREATE, PRAXENHELPER_LIBRARY=library)
                self.assertEqual(done.returncode, 1)
                self.assertIn(number, done.stderr.splitlines()[-1])

    def test_a_process_ends_whatever_it_holds(self):
        done = run(END, PRAXENHELPER_LIBRARY=LIBRARY)
        self.assertEqual(done.returncode, 1, done.stderr)
        last = done.stderr.splitlines()[-1]
        self.assertTrue(last.endswith("Required fields empty (0x80040259)"), done.stderr)
        self.assertNotIn("Exception ignored", done.stderr)

    def test_windows_has_a_client_of_its_own(self):
        done = run(ON_WINDOWS)
        self.assertIn("ImportError", done.stderr)
        self.assertIn("win32com", done.stderr)
