"""Every class, created by its programmatic identifier and used by name alone."""

import unittest

from interface_definition import CLASSES, CONSTANTS, INTERFACES, KINDS
from praxenhelper import AutomationError, Dispatch, constants

CREATABLE = [published for published in CLASSES if published.is_creatable]


def create(interface):
    return Dispatch("PraxenHelper." + interface.lstrip("_"))


def other_value(member, value):
    """A value that differs from the one at creation."""
    if isinstance(value, bool):
        return not value
    if isinstance(value, (int, float)):
        return value + 7
    if isinstance(value, str):
        return "\u00e4 & <\u20ac> \U0001f527\0end"
    return create(member.type)


class EveryClassTest(unittest.TestCase):
    def test_published_classes_are_those_that_can_be_created(self):
        self.assertEqual((len(CLASSES), len(CREATABLE)), (100, 97))
        for published in CLASSES:
            with self.subTest(published.name):
                if published.is_creatable:
                    self.assertIn(published.name, repr(create(published.name)))
                else:
                    with self.assertRaises(AutomationError) as caught:
                        create(published.name)
                    self.assertEqual(caught.exception.number, 0x800401F3)

    def test_members_of_class_and_kind_are_listed(self):
        for published in CREATABLE:
            expected = {
                name
                for interface in published.interfaces
                for name, member in INTERFACES[interface].items()
                if not member.is_hidden
            }
            with self.subTest(published.name):
                self.assertEqual(dir(create(published.name)), sorted(expected))

    def test_every_property_is_kept_and_nothing_stays_behind(self):
        maintenance = Dispatch("PraxenHelper.maintenance")
        before = maintenance.NrOfObjects
        checked = 0
        for published in CREATABLE:
            # A kind on its own keeps nothing.
            if published.interfaces[0] in KINDS:
                continue
            made = create(published.name)
            for member in INTERFACES[published.interfaces[0]].values():
                if not member.is_settable:
                    continue
                with self.subTest(f"{published.name}.{member.name}"):
                    created = getattr(made, member.name)
                    given = other_value(member, created)
                    for value in (given, created):
                        setattr(made, member.name.upper(), value)
                        kept = getattr(made, member.name.lower())
                        self.assertEqual((type(kept), kept), (type(value), value))
                    checked += 1
        created = given = value = kept = made = None
        self.assertGreater(checked, 300)
        self.assertEqual(maintenance.NrOfObjects, before)

    def test_constants_are_those_of_the_enumerations(self):
        self.assertEqual({name: getattr(constants, name) for name in dir(constants)}, CONSTANTS)
        with self.assertRaises(AttributeError):
            constants.pxNonsense
