"""Properties, lists, identity and lifetime, as scripts use them."""

import copy
import gc
import pickle
import resource
import unittest
from concurrent.futures import ThreadPoolExecutor

from praxenhelper import AutomationError, AutomationObject, Dispatch, _library


def create(name):
    return Dispatch("PraxenHelper." + name)


def variables_named(*names):
    made = create("Variables")
    for name in names:
        made.Add1(name, "real")
    return made


def names_of(elements):
    return "".join(element.Name for element in elements)


class ValueTest(unittest.TestCase):
    def test_values_are_converted_as_the_platform_does(self):
        for class_name, member, given, kept in (
            ("Variable", "Name", 42, "42"),
            ("Variable", "Name", True, "True"),
            ("Variable", "Name", 0.5, "0.5"),
            ("Variable", "Name", -(1 << 40), "-1099511627776"),
            ("Variable", "Name", "", ""),
            ("Variable", "Name", "\ud83d", "\ud83d"),
            ("Variable", "Name", "\U0001f527" * 10000, "\U0001f527" * 10000),
            ("GraphNode", "X", "2.5", 2.5),
            ("GraphNode", "X", 3, 3.0),
            ("ErrorMsg", "ErrorNo", " 12 ", 12),
            ("ErrorMsg", "ErrorNo", 2.5, 2),
            ("ErrorMsg", "ErrorNo", -(1 << 31), -(1 << 31)),
            ("FunctionBlock", "AspectObject", 0, False),
            ("FunctionBlock", "AspectObject", "false", False),
        ):
            with self.subTest(member=member, given=given):
                made = create(class_name)
                setattr(made, member, given)
                read = getattr(made, member)
                self.assertEqual((type(read), read), (type(kept), kept))

    def test_none_stands_for_no_object(self):
        program = create("Program")
        program.Variables = None
        self.assertIsNone(program.Variables)
        others = variables_named("a")
        program.Variables = others
        self.assertEqual(program.Variables, others)
        others.Add(None)
        self.assertIsNone(others(2))
        self.assertEqual(list(others), [others(1), None])

    def test_named_arguments_find_their_places(self):
        made = create("Variables")
        for arguments, named in (
            ((), {"TypeName": "bool", "Name": "Valve"}),
            (("Valve",), {"typename": "bool"}),
            (("Valve", "bool"), {}),
        ):
            with self.subTest(named=named):
                added = made.ADD1(*arguments, **named)
                self.assertEqual((added.Name, added.TypeName), ("Valve", "bool"))

    def test_documents_are_written_and_read(self):
        program = create("Program")
        program.Name = "M\u00fcller & S\u00f6hne"
        program.Variables.Add1("Level", "real")
        document = program.Serialize()
        self.assertIn("<Variable Name='Level' Type='real'", document)
        again = create("ObjectFactory").DeserializeProgram(document)
        self.assertEqual(again.Name, program.Name)
        self.assertEqual(again.Serialize(), document)


class ListTest(unittest.TestCase):
    def test_lists_are_indexed_by_their_default_member(self):
        program = create("Program")
        program.Variables.Add1("a", "real")
        program.Variables.Add1("b", "bool")
        self.assertEqual(program.Variables(2).Name, "b")
        self.assertEqual(program.variables[1].Name, "a")
        self.assertEqual(program.Variables("2"), program.Variables.Item(2))
        self.assertEqual(len(program.Variables), 2)
        self.assertIn(program.Variables(2), program.Variables)
        self.assertIsNone(program.Variables.Find("c"))

    def test_lists_are_walked_nested_and_again(self):
        made = variables_named("a", "b")
        for _ in range(2):
            pairs = [one.Name + other.Name for one in made for other in made]
            self.assertEqual(pairs, ["aa", "ab", "ba", "bb"])
        self.assertEqual(names_of(create("Variables")), "")

    def test_a_walk_visits_what_the_list_held(self):
        made = variables_named("a", "b", "c")
        walk = iter(made)
        first = next(walk)
        made.Remove(2)
        made.Add1("d", "real")
        made = None
        self.assertEqual(names_of([first, *walk]), "abc")
        self.assertEqual(list(walk), [])

    def test_an_empty_list_is_still_an_object(self):
        self.assertTrue(create("Variables"))
        self.assertTrue(create("Program"))

    def test_what_is_no_list_does_not_pass_for_one(self):
        program = create("Program")
        for action in (len, list, lambda made: program in made):
            with self.assertRaises(TypeError):
                action(program)


class IdentityTest(unittest.TestCase):
    def test_equal_means_the_same_object(self):
        program = create("Program")
        self.assertEqual(program.Variables, program.Variables)
        self.assertEqual(len({program.Variables, program.Variables, program}), 2)
        self.assertNotEqual(create("Program"), program)
        self.assertNotEqual(program, None)
        self.assertNotEqual(program, 5)

    def test_attributes_that_are_no_members_are_unknown(self):
        program = create("Program")
        self.assertFalse(hasattr(program, "Nonsense"))
        self.assertFalse(hasattr(program, "__array__"))
        self.assertEqual(getattr(program, "Nonsense", 7), 7)
        for name in ("Nonsense", "_reference", "__class__"):
            with self.assertRaises(AttributeError):
                setattr(program, name, 5)
        with self.assertRaises(AttributeError):
            del program.Name

    def test_methods_show_their_parameters(self):
        self.assertIn("Variables.Add1(Name, TypeName)", repr(create("Variables").Add1))


class LifetimeTest(unittest.TestCase):
    def setUp(self):
        self.maintenance = create("maintenance")
        self.before = self.maintenance.NrOfObjects

    def count(self):
        return self.maintenance.NrOfObjects - self.before

    def test_objects_go_with_their_last_reference(self):
        gc.disable()
        self.addCleanup(gc.enable)
        made = variables_named("a", "b")
        self.assertGreater(self.count(), 0)
        add = made.Add1
        walk = iter(made)
        made = None
        add("c", "real")
        add = None
        self.assertEqual(names_of(walk), "ab")
        walk = None
        self.assertEqual(self.count(), 0)

    def test_failed_calls_keep_nothing(self):
        made = create("Variables")
        one = self.count()
        for action in (
            lambda: made.Add(create("Program")),
            lambda: made.Add1("a" * 1000, create("Variable")),
            lambda: made.Add1(create("Variable"), object()),
            lambda: setattr(made, "Nonsense", create("Variable")),
        ):
            with self.assertRaises(Exception):
                action()
            self.assertEqual(self.count(), one)

    def test_references_cannot_be_made_or_copied_otherwise(self):
        program = create("Program")
        held = (program, iter(program.Variables), program.Variables.Add1, program._reference)
        for thing in (*held, _library.library()):
            for action in (copy.copy, copy.deepcopy, pickle.dumps):
                with self.subTest((thing, action)), self.assertRaises(TypeError):
                    action(thing)
        with self.assertRaises(TypeError):
            type(program)(program)
        with self.assertRaises(AttributeError):
            object.__new__(AutomationObject).Name

    def test_texts_too_long_for_their_length_are_refused(self):
        class Encoded:
            def __len__(self):
                return (1 << 33) + 2

        class Long(str):
            def encode(self, *_):
                return Encoded()

        with self.assertRaises(AutomationError) as caught:
            create("Program").Name = Long()
        self.assertEqual(caught.exception.number, 0x8002000A)

    def test_texts_go_with_their_calls(self):
        made = create("Variables")
        text = "x" * 1_000_000
        before = resource.getrusage(resource.RUSAGE_SELF).ru_maxrss
        for _ in range(100):
            made.Add1(text, TypeName=text)
            self.assertEqual(len(made(1).Name), len(text))
            made.Remove(1)
            with self.assertRaises(AutomationError):
                made.Add1(text, made)
        grown = resource.getrusage(resource.RUSAGE_SELF).ru_maxrss - before
        self.assertLess(grown, 50_000, "kilobytes")

    def test_threads_take_turns(self):
        programs = [create("Program") for _ in range(4)]
        for program, name in zip(programs, "abcd"):
            program.Name = name
            for _ in range(100):
                program.Variables.Add1(name, "real")
        expected = [program.Serialize() for program in programs]
        with ThreadPoolExecutor(len(programs)) as pool:
            for _ in range(50):
                documents = pool.map(lambda program: program.Serialize(), programs)
                self.assertEqual(list(documents), expected)
