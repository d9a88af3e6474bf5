"""The Python examples of the documents run and print what they promise."""

import contextlib
import io
import pathlib
import re
import unittest

ROOT = pathlib.Path(__file__).parents[2]


def python_examples(document):
    return re.findall(r"^```python\n(.*?)^```", (ROOT / document).read_text("utf-8"), re.S | re.M)


class DocumentationTest(unittest.TestCase):
    def test_the_example_of_the_automation_page(self):
        (example,) = python_examples("docs/automation.md")
        printed = io.StringIO()
        with contextlib.redirect_stdout(printed):
            exec(example, {})
        self.assertEqual(printed.getvalue(), "Level real\nRequired fields empty\n")
