"""The exceptions, and the error codes that this package raises by itself."""

E_NOINTERFACE = 0x80004002
DISP_E_MEMBERNOTFOUND = 0x80020003
DISP_E_PARAMNOTFOUND = 0x80020004
DISP_E_TYPEMISMATCH = 0x80020005
DISP_E_UNKNOWNNAME = 0x80020006
DISP_E_EXCEPTION = 0x80020009
DISP_E_OVERFLOW = 0x8002000A
CO_E_CLASSSTRING = 0x800401F3
CO_E_DLLNOTFOUND = 0x800401F8
CO_E_ERRORINDLL = 0x800401F9


def to_signed(code):
    """The 32-bit code as a signed number, as the Windows automation client shows it."""
    return code - (1 << 32) if code & 0x80000000 else code


class AutomationError(Exception):
    """A call that the library refused.

    number       the error's code, such as 0x80040259 for "Required fields empty"
    source       what raised it, often empty
    description  the reason
    argument     the argument that is wrong: its position from 1, its name, or None
    hresult      what the call itself returned, signed: DISP_E_EXCEPTION for a member's own error
    excepinfo    of a member's own error the six facts of the Windows automation client, else None
    """

    def __init__(self, number, description="", source="", argument=None, raised=False):
        self.number = number & 0xFFFFFFFF
        self.description = description
        self.source = source
        self.argument = argument
        self.hresult = to_signed(DISP_E_EXCEPTION if raised else self.number)
        self.strerror = "Exception occurred." if raised else description
        self.excepinfo = None
        if raised:
            self.excepinfo = (0, source, description, None, 0, to_signed(self.number))
        super().__init__(self.hresult, self.strerror, self.excepinfo, argument)

    @property
    def argerror(self):
        """The argument that is wrong, under the name that the Windows automation client uses."""
        return self.argument

    def __str__(self):
        details = [f"0x{self.number:08X}"]
        if self.source:
            details.append(self.source)
        if self.argument is not None:
            details.append(f"argument {self.argument}")
        return f"{self.description or 'Automation error'} ({', '.join(details)})"

    def __reduce__(self):
        raised = self.excepinfo is not None
        arguments = (self.number, self.description, self.source, self.argument, raised)
        return type(self), arguments


class UnknownMemberError(AutomationError, AttributeError):
    """A member that the object does not have, or that cannot be used in this way."""


com_error = AutomationError


def error_for(number, *details):
    """The exception for a failed call."""
    number &= 0xFFFFFFFF
    is_member = number in (DISP_E_MEMBERNOTFOUND, DISP_E_UNKNOWNNAME)
    return (UnknownMemberError if is_member else AutomationError)(number, *details)
