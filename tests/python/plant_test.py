"""The plant that the C++ example and the Python example build: the same documents."""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

EXAMPLES = pathlib.Path(__file__).parents[2] / "clients" / "python" / "examples"


def documents(command, folder, without=()):
    environment = {name: value for name, value in os.environ.items() if name not in without}
    subprocess.run(
        [*command, str(folder)],
        check=True,
        stdout=subprocess.DEVNULL,
        env=environment,
        timeout=120,
    )
    return {file.name: file.read_bytes() for file in folder.iterdir()}


class PlantTest(unittest.TestCase):
    def test_documents_are_the_same_to_the_byte(self):
        with tempfile.TemporaryDirectory() as folder:
            # What an interpreter needs to load the library, a C++ program has in itself.
            expected = documents(
                [os.environ["PRAXEN_PLANT"]], pathlib.Path(folder, "c++"), without=["LD_PRELOAD"]
            )
            written = documents([sys.executable, "-B", EXAMPLES / "plant.py"], pathlib.Path(folder, "python"))
        self.assertGreater(len(expected), 10)
        self.assertEqual(written.keys(), expected.keys())
        for name in expected:
            with self.subTest(name):
                self.assertEqual(written[name], expected[name])

    def test_variables_of_a_folder_as_a_table(self):
        table = [sys.executable, "-B", EXAMPLES / "variables.py"]
        with tempfile.TemporaryDirectory() as folder:
            documents([os.environ["PRAXEN_PLANT"]], pathlib.Path(folder), without=["LD_PRELOAD"])
            good = subprocess.run([*table, folder], capture_output=True, text=True, timeout=120)
            pathlib.Path(folder, "broken.xml").write_text("<Program")
            bad = subprocess.run([*table, folder], capture_output=True, text=True, timeout=120)
        self.assertEqual((good.returncode, good.stderr), (0, ""))
        self.assertIn(
            "level_control.xml,LevelControl,Setpoint,real,2.5,In metres\n", good.stdout
        )
        self.assertEqual((bad.returncode, bad.stdout), (1, good.stdout))
        self.assertIn("broken.xml: ", bad.stderr)
