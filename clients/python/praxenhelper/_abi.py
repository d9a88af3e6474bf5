"""The binary interfaces of automation: structures, and calls through the tables of functions."""

import ctypes
import uuid
from ctypes import POINTER, c_char_p, c_double, c_float, c_int16, c_int32, c_int64, c_uint16
from ctypes import c_uint32, c_void_p

DISPATCH_METHOD = 1
DISPATCH_PROPERTYGET = 2
DISPATCH_PROPERTYPUT = 4
DISPATCH_PROPERTYPUTREF = 8

DISPID_VALUE = 0
DISPID_PROPERTYPUT = -3
DISPID_NEWENUM = -4

VT_EMPTY = 0
VT_NULL = 1
VT_I2 = 2
VT_I4 = 3
VT_R4 = 4
VT_R8 = 5
VT_BSTR = 8
VT_DISPATCH = 9
VT_BOOL = 11
VT_UNKNOWN = 13
VT_I8 = 20


class Guid(ctypes.Structure):
    _fields_ = [("bytes", ctypes.c_ubyte * 16)]

    @classmethod
    def of(cls, text):
        return cls.from_buffer_copy(uuid.UUID(text).bytes_le)


IID_NULL = Guid()
IID_UNKNOWN = Guid.of("00000000-0000-0000-c000-000000000046")
IID_CLASS_FACTORY = Guid.of("00000001-0000-0000-c000-000000000046")
IID_DISPATCH = Guid.of("00020400-0000-0000-c000-000000000046")
IID_ENUM_VARIANT = Guid.of("00020404-0000-0000-c000-000000000046")
IID_ERROR_INFO = Guid.of("1cf2b120-547d-101b-8e65-08002b2bd119")


class _VariantValue(ctypes.Union):
    _fields_ = [
        ("short", c_int16),
        ("long", c_int32),
        ("longlong", c_int64),
        ("float", c_float),
        ("double", c_double),
        ("pointer", c_void_p),
        ("record", c_void_p * 2),
    ]


class Variant(ctypes.Structure):
    _fields_ = [("type", c_uint16), ("reserved", c_uint16 * 3), ("value", _VariantValue)]


class DispatchParameters(ctypes.Structure):
    _fields_ = [
        ("arguments", POINTER(Variant)),
        ("names", POINTER(c_int32)),
        ("count", c_uint32),
        ("named_count", c_uint32),
    ]


class ExceptionInformation(ctypes.Structure):
    _fields_ = [
        ("code", c_uint16),
        ("reserved", c_uint16),
        ("source", c_void_p),
        ("description", c_void_p),
        ("help_file", c_void_p),
        ("help_context", c_uint32),
        ("reserved_pointer", c_void_p),
        ("fill_in", c_void_p),
        ("scode", c_int32),
    ]


def _slot(index, *argument_types, result=c_int32):
    """A function that calls the entry `index` of the table of the interface given first.

    The calls keep Python's global lock, since an object is used by one thread at a time. The function
    holds all it needs, because references are released until the very end of the interpreter.
    """
    prototype = ctypes.PYFUNCTYPE(result, c_void_p, *argument_types)
    offset = index * ctypes.sizeof(c_void_p)
    read_pointer = c_void_p.from_address
    functions = {}

    def call(interface, *arguments):
        address = read_pointer(read_pointer(interface).value + offset).value
        function = functions.get(address)
        if function is None:
            function = functions[address] = prototype(address)
        return function(interface, *arguments)

    return call


query_interface = _slot(0, POINTER(Guid), POINTER(c_void_p))
release = _slot(2, result=c_uint32)
get_ids_of_names = _slot(5, POINTER(Guid), POINTER(c_char_p), c_uint32, c_uint32, POINTER(c_int32))
invoke = _slot(
    6,
    c_int32,
    POINTER(Guid),
    c_uint32,
    c_uint16,
    POINTER(DispatchParameters),
    POINTER(Variant),
    POINTER(ExceptionInformation),
    POINTER(c_uint32),
)
next_element = _slot(3, c_uint32, POINTER(Variant), POINTER(c_uint32))
create_instance = _slot(3, c_void_p, POINTER(Guid), POINTER(c_void_p))
error_source = _slot(4, POINTER(c_void_p))
error_description = _slot(5, POINTER(c_void_p))


class Unique:
    """What stands for something of the library's, and so can be neither copied nor pickled."""

    __slots__ = ()

    def __reduce_ex__(self, protocol):
        name = type(self).__name__.lstrip("_")
        raise TypeError(f"{name} can be neither copied nor pickled; documents can: Serialize()")


class Reference(Unique):
    """One counted reference to an interface, which it takes over and gives back when it goes."""

    __slots__ = ("pointer",)

    def __init__(self, pointer):
        self.pointer = pointer

    def __del__(self, release=release):
        release(self.pointer)

    def query(self, iid):
        """A reference to another interface of the object; None when it has no such interface."""
        pointer = c_void_p()
        if query_interface(self.pointer, iid, pointer) < 0:
            return None
        return Reference(pointer.value)
