"""Every class that the interface definition publishes, created and listed."""

import pathlib
import re
import unittest

from praxenhelper import AutomationError, Dispatch, constants

TEXT = (pathlib.Path(__file__).parents[2] / "praxen/server/PraxenHelper.idl").read_text("ascii")
CLASSES = re.findall(r"\[(.*)\]\n  coclass (\w+) \{\n((?: .*;\n)*)  \}", TEXT)


def members(interface):
    """What is not hidden."""
    body = re.search(rf"interface {interface} : IDispatch \{{(.*?)\n  \}}", TEXT, re.S).group(1)
    found = re.findall(r"\[(.*)\]\n +HRESULT (\w+)\(", body)
    return {name for facts, name in found if not re.search(r"\bhidden,", facts)}


class EveryClassTest(unittest.TestCase):
    def test_classes_are_created_and_list_the_members_of_class_and_kind(self):
        refused = []
        for facts, name, body in CLASSES:
            with self.subTest(name):
                if "noncreatable," in facts:
                    refused.append(name)
                    with self.assertRaises(AutomationError) as caught:
                        Dispatch("PraxenHelper." + name)
                    self.assertEqual(caught.exception.number, 0x800401F3)
                    continue
                made = Dispatch("PraxenHelper." + name)
                self.assertIn(name, repr(made))
                interfaces = re.findall(r"interface (\w+);", body)
                self.assertEqual(dir(made), sorted(set().union(*map(members, interfaces))))
        self.assertEqual((len(CLASSES), len(refused)), (100, 3))

    def test_constants_are_those_of_the_enumerations(self):
        expected = {name: int(value) for name, value in re.findall(r"\b(px\w+) = (\d+)", TEXT)}
        self.assertEqual({name: getattr(constants, name) for name in dir(constants)}, expected)
        with self.assertRaises(AttributeError):
            constants.pxNonsense
