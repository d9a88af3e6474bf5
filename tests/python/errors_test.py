"""What each mistake of a script gives, and that it changes nothing."""

import pickle
import unittest

from praxenhelper import AutomationError, Dispatch, UnknownMemberError, com_error

TYPE_MISMATCH = 0x80020005
OVERFLOW = 0x8002000A
BAD_INDEX = 0x8002000B
WRONG_COUNT = 0x8002000E
MISSING = 0x8002000F
NO_SUCH_ARGUMENT = 0x80020004
NO_SUCH_MEMBER = 0x80020003
UNKNOWN_NAME = 0x80020006


def create(name):
    return Dispatch("PraxenHelper." + name)


class ErrorTest(unittest.TestCase):
    def setUp(self):
        self.program = create("Program")
        self.variables = self.program.Variables

    def error_of(self, action):
        with self.assertRaises(AutomationError) as caught:
            action()
        return caught.exception

    def test_wrong_calls_are_refused(self):
        variables, program = self.variables, self.program
        for what, action, number, argument in (
            ("no argument", lambda: variables.Add1(), MISSING, None),
            ("one too many", lambda: variables.Add1("a", "b", "c"), WRONG_COUNT, None),
            ("unknown name", lambda: variables.Add1("a", Type="b"), NO_SUCH_ARGUMENT, "Type"),
            ("odd name", lambda: variables.Add1("a", **{"\ud800": 1}), NO_SUCH_ARGUMENT, "\ud800"),
            ("given twice", lambda: variables.Add1("a", Name="b"), NO_SUCH_ARGUMENT, 1),
            ("wrong class", lambda: variables.Add(program), TYPE_MISMATCH, 1),
            ("object for text", lambda: variables.Add1("a", program), TYPE_MISMATCH, 2),
            ("named wrong", lambda: variables.Add1("a", TypeName=None), TYPE_MISMATCH, "TypeName"),
            ("foreign type", lambda: variables.Add1("a", TypeName=b"b"), TYPE_MISMATCH, "TypeName"),
            ("a list", lambda: variables.Add1(["a"], "b"), TYPE_MISMATCH, 1),
            ("integer too large", lambda: variables.Remove(1 << 64), OVERFLOW, 1),
            ("position after the last", lambda: variables(1), BAD_INDEX, None),
            ("position before", lambda: variables[0], BAD_INDEX, None),
            ("no default member", lambda: program(1), NO_SUCH_MEMBER, None),
        ):
            with self.subTest(what):
                error = self.error_of(action)
                self.assertEqual((hex(error.number), error.argument), (hex(number), argument))
                self.assertNotEqual(error.description, "")
        self.assertEqual(variables.Count, 0)

    def test_wrong_values_are_refused(self):
        message = create("ErrorMsg")
        for owner, name, value, number in (
            (self.program, "Name", None, TYPE_MISMATCH),
            (self.program, "Name", {}, TYPE_MISMATCH),
            (self.program, "Variables", self.program, TYPE_MISMATCH),
            (message, "ErrorNo", 1 << 31, OVERFLOW),
            (message, "ErrorNo", float("nan"), OVERFLOW),
            (message, "IsErrorMsg", True, NO_SUCH_MEMBER),
            (self.variables, "Count", 1, NO_SUCH_MEMBER),
            (self.variables, "Nonsense", 1, UNKNOWN_NAME),
        ):
            with self.subTest(name=name, value=value):
                error = self.error_of(lambda: setattr(owner, name, value))
                self.assertEqual(hex(error.number), hex(number))
        self.assertEqual((self.program.Name, message.ErrorNo), ("", 0))
        self.assertEqual(self.program.Variables, self.variables)

    def test_unknown_members_are_attribute_errors_with_their_number(self):
        with self.assertRaises(AttributeError) as caught:
            self.program.Nonsense
        self.assertIsInstance(caught.exception, UnknownMemberError)
        self.assertEqual(caught.exception.number, UNKNOWN_NAME)
        self.assertIn("Program has no member Nonsense", str(caught.exception))

    def test_unknown_classes_are_refused(self):
        for name in ("PraxenHelper.Nonsense", "PraxenHelper.IMsg", "Program", "", "\0", "\u00e4"):
            with self.subTest(name):
                self.assertEqual(self.error_of(lambda: Dispatch(name)).number, 0x800401F3)

    def test_errors_of_members_tell_number_and_description(self):
        factory = create("ObjectFactory")
        for action, number, description in (
            (self.program.Serialize, 0x80040259, "Required fields empty"),
            (lambda: factory.DeserializeProgram("<"), 0x8004025B, ""),
            (lambda: factory.DeserializeProgram("<a/>"), 0x8004025C, "Wrong root element"),
        ):
            error = self.error_of(action)
            self.assertEqual(hex(error.number), hex(number))
            self.assertIn(description, error.description)
            self.assertIn(f"(0x{number:08X}", str(error))
            # What a script for the Windows automation client looks at.
            self.assertIsInstance(error, com_error)
            hresult, _, excepinfo, _ = error.args
            self.assertEqual(hresult & 0xFFFFFFFF, 0x80020009)
            self.assertEqual(excepinfo[2], error.description)
            self.assertEqual(excepinfo[5] & 0xFFFFFFFF, number)

    def test_the_reason_for_an_invalid_document_names_the_place(self):
        text = "<Program xmlns='PraxenSchema3_0' Name='P'><Nonsense"
        error = self.error_of(lambda: create("ObjectFactory").DeserializeProgram(text))
        self.assertIn("line 1, column", error.description)

    def test_errors_can_be_sent_to_another_process(self):
        for action in (self.program.Serialize, lambda: self.program.Nonsense):
            error = self.error_of(action)
            again = pickle.loads(pickle.dumps(error))
            self.assertEqual((type(again), again.args), (type(error), error.args))
            self.assertEqual(str(again), str(error))
