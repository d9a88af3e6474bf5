"""The Python examples of the documents run and print what they promise."""

import contextlib
import io
import pathlib
import re
import unittest

ROOT = pathlib.Path(__file__).parents[2]


# Where what a page shows is run.
RUN = (
    ("README.md", "cpp", "examples/readme_example.cpp"),
    ("docs/cpp.md", "cpp", "examples/tour.cpp"),
    ("docs/files.md", "vbscript", "tests/windows/plant.vbs"),
    ("docs/files.md", "javascript", "tests/windows/families.js"),
)


def examples(document, language):
    text = (ROOT / document).read_text("utf-8")
    return re.findall(rf"^```{language}\n(.*?)^```", text, re.S | re.M)


def without_indentation(text):
    return "\n".join(line.strip() for line in text.splitlines() if line.strip())


class DocumentationTest(unittest.TestCase):
    def test_the_example_of_the_automation_page(self):
        (example,) = examples("docs/automation.md", "python")
        printed = io.StringIO()
        with contextlib.redirect_stdout(printed):
            exec(example, {})
        self.assertEqual(printed.getvalue(), "Level real\nRequired fields empty\n")

    def test_examples_are_those_that_are_run(self):
        for document, language, source in RUN:
            run = without_indentation((ROOT / source).read_text("utf-8"))
            shown = examples(document, language)
            self.assertTrue(shown, document)
            for example in shown:
                with self.subTest(document, example=example):
                    self.assertIn(without_indentation(example), run)

    def test_links_lead_somewhere(self):
        for page in [ROOT / "README.md", *(ROOT / "docs").glob("*.md")]:
            for link in re.findall(r"\]\(([^):#]+)", page.read_text("utf-8")):
                with self.subTest(page.name, link=link):
                    self.assertTrue((page.parent / link).exists())
