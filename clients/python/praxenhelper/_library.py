"""The shared library: where it lies, what it exports, and what it tells of its classes."""

import ctypes
import ctypes.util
import functools
import os
import pathlib
import sys
from collections import namedtuple
from ctypes import POINTER, c_char_p, c_int32, c_uint32, c_void_p

from . import _abi
from ._errors import CO_E_CLASSSTRING, CO_E_DLLNOTFOUND, CO_E_ERRORINDLL, DISP_E_OVERFLOW
from ._errors import E_NOINTERFACE
from ._errors import AutomationError, error_for

UTF_16 = f"utf-16-{sys.byteorder[0]}e"

# In bytes; the length that goes before a text has 32 bits.
_LONGEST_TEXT = 0xFFFFFFFE

# `kind` is what the library calls the member: property, readonly, method or enumerator.
Member = namedtuple("Member", "kind name parameters")


class ClassInformation:
    """The members of a class by their names in lower case, and their identifiers once known."""

    def __init__(self, name, members):
        self.name = name
        self.members = {member.name.lower(): member for member in members}
        self.is_collection = any(member.kind == "enumerator" for member in members)
        self.identifiers = {}


def _registry_file():
    """The registry file; None for a user without a folder, which has an absolute path."""
    named = os.environ.get("PRAXENHELPER_REGISTRY")
    if named:
        return pathlib.Path(named)
    data = os.environ.get("XDG_DATA_HOME", "")
    if not os.path.isabs(data):
        data = os.path.join(os.environ.get("HOME", ""), ".local", "share")
    return pathlib.Path(data, "praxenhelper", "classes") if os.path.isabs(data) else None


def _registered_library():
    """The library of the first class of ours in the registry file; None when there is none."""
    file = _registry_file()
    # What is no file, such as a pipe, would be waited for.
    if file is None or not file.is_file():
        return None
    try:
        text = file.read_text("utf-8-sig", "surrogateescape")
    except OSError:
        return None
    for line in text.split("\n"):
        fields = [field.strip(" \r") for field in line.split("\t", 2)]
        is_ours = fields[0].lower().startswith("praxenhelper.")
        if is_ours and len(fields) == 3 and os.path.isabs(fields[2]) and "\0" not in fields[2]:
            return fields[2]
    return None


def _library_beside_package():
    found = sorted(pathlib.Path(__file__).parent.glob("libPraxenHelper.*"))
    return str(found[0]) if found else None


def _find_library():
    found = (
        os.environ.get("PRAXENHELPER_LIBRARY")
        or _registered_library()
        or _library_beside_package()
        or ctypes.util.find_library("PraxenHelper")
    )
    if found is None:
        raise AutomationError(
            CO_E_DLLNOTFOUND,
            'PraxenHelper is not found; run "praxen register" or set PRAXENHELPER_LIBRARY',
        )
    return found


# Result and argument types of the exported functions.
_EXPORTS = {
    "DllGetClassObject": (c_int32, POINTER(_abi.Guid), POINTER(_abi.Guid), POINTER(c_void_p)),
    "PraxenGetErrorInfo": (c_int32, c_uint32, POINTER(c_void_p)),
    "PraxenSysAllocStringLen": (c_void_p, c_char_p, c_uint32),
    "PraxenSysFreeString": (None, c_void_p),
    "PraxenSysStringByteLen": (c_uint32, c_void_p),
    "PraxenVariantClear": (c_int32, POINTER(_abi.Variant)),
    "PraxenClasses": (c_char_p,),
    "PraxenMembers": (c_char_p, c_char_p),
    "PraxenConstants": (c_char_p,),
    "PraxenClassOf": (c_char_p, c_void_p),
}


def _records(lines):
    if lines is None:
        raise MemoryError
    return [line.split("\t") for line in lines.decode("ascii").splitlines()]


class Library(_abi.Unique):
    """The loaded library; it stays loaded."""

    def __init__(self, path):
        if os.path.exists(path) and not os.path.isfile(path):
            raise AutomationError(CO_E_DLLNOTFOUND, f"{path} is no regular file")
        try:
            self._module = ctypes.PyDLL(path)
        except OSError as error:
            raise AutomationError(CO_E_DLLNOTFOUND, str(error)) from None
        for name, (result, *arguments) in _EXPORTS.items():
            try:
                function = getattr(self._module, name)
            except AttributeError:
                raise AutomationError(CO_E_ERRORINDLL, f"{path} has no {name}") from None
            function.restype = result
            function.argtypes = arguments
        self._class_ids = {
            name.lower(): _abi.Guid.of(clsid)
            for name, clsid in _records(self._module.PraxenClasses())
        }
        self._information = {}

    def constants(self):
        """All constants of all enumerations by name."""
        return {name: int(value) for name, value in _records(self._module.PraxenConstants())}

    def information(self, pointer):
        """What is known of the class of an object."""
        name = self._module.PraxenClassOf(pointer)
        if name is None:
            raise AutomationError(E_NOINTERFACE, "The object is of another library")
        if name not in self._information:
            members = _records(self._module.PraxenMembers(name))
            self._information[name] = ClassInformation(
                name.decode("ascii"),
                [Member(kind, member, tuple(parameters)) for kind, member, *parameters in members],
            )
        return self._information[name]

    def create(self, name):
        """A new object of the class with that programmatic identifier."""
        clsid = self._class_ids.get(name.lower())
        if clsid is None:
            raise AutomationError(CO_E_CLASSSTRING, f"Invalid class string: {name}")
        pointer = c_void_p()
        self.check(self._module.DllGetClassObject(clsid, _abi.IID_CLASS_FACTORY, pointer))
        factory = _abi.Reference(pointer.value)
        made = c_void_p()
        self.check(_abi.create_instance(factory.pointer, None, _abi.IID_DISPATCH, made))
        return _abi.Reference(made.value)

    def check(self, result):
        """Raises the error of a failed call that leaves no error information."""
        if result < 0:
            raise error_for(result, "The object cannot be created or read")

    def allocate_text(self, text):
        data = text.encode(UTF_16, "surrogatepass")
        if len(data) > _LONGEST_TEXT:
            raise AutomationError(DISP_E_OVERFLOW, "Overflow")
        pointer = self._module.PraxenSysAllocStringLen(data, len(data) // 2)
        if pointer is None:
            raise MemoryError
        return pointer

    def free_text(self, pointer):
        self._module.PraxenSysFreeString(pointer)

    def take_text(self, pointer):
        """The text, which is freed; None is the empty text."""
        if not pointer:
            return ""
        data = ctypes.string_at(pointer, self._module.PraxenSysStringByteLen(pointer))
        self._module.PraxenSysFreeString(pointer)
        return data.decode(UTF_16, "surrogatepass")

    def clear(self, variant):
        self._module.PraxenVariantClear(variant)

    def reported_error(self):
        """Source and description of the thread's error information."""
        pointer = c_void_p()
        if self._module.PraxenGetErrorInfo(0, pointer) != 0:
            return "", ""
        information = _abi.Reference(pointer.value)
        source, description = c_void_p(), c_void_p()
        _abi.error_source(information.pointer, source)
        _abi.error_description(information.pointer, description)
        return self.take_text(source.value), self.take_text(description.value)


@functools.lru_cache(maxsize=None)
def library():
    return Library(_find_library())
