"""Automation objects: their members as attributes, and lists as Python's."""

import ctypes
from ctypes import byref, c_int32, c_uint32

from . import _abi, _values
from ._errors import DISP_E_EXCEPTION, DISP_E_PARAMNOTFOUND, DISP_E_UNKNOWNNAME
from ._errors import AutomationError, UnknownMemberError, error_for
from ._library import UTF_16, library

_GET = _abi.DISPATCH_METHOD | _abi.DISPATCH_PROPERTYGET
_PUT_NAME = (_abi.DISPID_PROPERTYPUT,)


def _pointer_of(value):
    return value._reference.pointer if isinstance(value, AutomationObject) else None


def _wrap(reference):
    enumerator = reference.query(_abi.IID_ENUM_VARIANT)
    if enumerator is not None:
        return _Elements(enumerator)
    wrapper = object.__new__(AutomationObject)
    object.__setattr__(wrapper, "_class", library().information(reference.pointer))
    object.__setattr__(wrapper, "_reference", reference)
    return wrapper


def _raise(result, exception, argument):
    """Raises the error of a call that failed."""
    server = library()
    source, description = server.reported_error()
    raised = result & 0xFFFFFFFF == DISP_E_EXCEPTION
    if raised:
        source = server.take_text(exception.source)
        description = server.take_text(exception.description)
        result = exception.scode
    raise error_for(result, description, source, argument, raised)


def _invoke(owner, identifier, flags, values, labels, names=()):
    """Calls a member: the named arguments come first, the others after them, last one first.

    `labels` tell the caller which argument is wrong.
    """
    server = library()
    arguments = (_abi.Variant * len(values))()
    result = _abi.Variant()
    exception = _abi.ExceptionInformation()
    wrong = c_uint32(0xFFFFFFFF)
    try:
        for variant, value, label in zip(arguments, values, labels):
            _values.store(server, variant, value, label, _pointer_of)
        parameters = _abi.DispatchParameters(
            arguments, (c_int32 * len(names))(*names), len(values), len(names)
        )
        code = _abi.invoke(
            owner._reference.pointer,
            identifier,
            _abi.IID_NULL,
            0,
            flags,
            parameters,
            result,
            exception,
            wrong,
        )
    finally:
        for variant in arguments:
            _values.discard(server, variant)
    if code < 0:
        is_known = wrong.value < len(labels)
        _raise(code, exception, labels[wrong.value] if is_known else None)
    return _values.take(server, result, _wrap)


def _identifiers(owner, member, names=()):
    """The identifiers of a member and of those of its parameters that are named."""
    key = (member.name, *names)
    known = owner._class.identifiers
    if key not in known:
        texts = [name.encode(UTF_16, "surrogatepass") + b"\0\0" for name in key]
        found = (c_int32 * len(key))()
        code = _abi.get_ids_of_names(
            owner._reference.pointer,
            _abi.IID_NULL,
            (ctypes.c_char_p * len(key))(*texts),
            len(key),
            0,
            found,
        )
        unknown = [name for name, identifier in zip(names, found[1:]) if identifier < 0]
        if unknown:
            raise AutomationError(
                DISP_E_PARAMNOTFOUND, "Named argument not found", "", unknown[0]
            )
        library().check(code)
        known[key] = tuple(found)
    return known[key]


def _call(owner, member, positional, named):
    identifier, *names = _identifiers(owner, member, tuple(named))
    values = [*named.values(), *reversed(positional)]
    labels = [*named, *range(len(positional), 0, -1)]
    return _invoke(owner, identifier, _GET, values, labels, names)


class Method(_abi.Unique):
    """A member that takes arguments, of one object."""

    __slots__ = ("_owner", "_member")

    def __init__(self, owner, member):
        self._owner = owner
        self._member = member

    def __call__(self, *positional, **named):
        return _call(self._owner, self._member, positional, named)

    def __repr__(self):
        parameters = ", ".join(self._member.parameters)
        return f"<method {self._owner._class.name}.{self._member.name}({parameters})>"


class _Elements(_abi.Unique):
    """Walks what a list held when the walk began."""

    __slots__ = ("_reference",)

    def __init__(self, reference):
        self._reference = reference

    def __iter__(self):
        return self

    def __next__(self):
        element = _abi.Variant()
        code = _abi.next_element(self._reference.pointer, 1, byref(element), None)
        library().check(code)
        if code != 0:
            raise StopIteration
        return _values.take(library(), element, _wrap)


class AutomationObject(_abi.Unique):
    """An object of the library, which lives as long as it is referred to.

    Members are found in any letter case. A list is indexed from 1 with its default member, as
    `list(1)` or `list[1]`, and walked with `for`. Two Python objects are equal when they stand for
    the same object of the library.
    """

    __slots__ = ("_reference", "_class", "__weakref__")

    def __init__(self, *_):
        raise TypeError('objects are made with Dispatch("PraxenHelper.Class")')

    def _find(self, name):
        member = self._class.members.get(name.lower())
        if member is None:
            raise UnknownMemberError(
                DISP_E_UNKNOWNNAME, f"{self._class.name} has no member {name}"
            )
        return member

    def __getattr__(self, name):
        # Whatever Python itself looks for, and the fields of an object that is not complete.
        if name.startswith("_"):
            raise AttributeError(name)
        member = self._find(name)
        if member.kind == "method" or member.parameters:
            return Method(self, member)
        return _call(self, member, (), {})

    def __setattr__(self, name, value):
        (identifier,) = _identifiers(self, self._find(name))
        flags = _abi.DISPATCH_PROPERTYPUT
        if isinstance(value, AutomationObject):
            flags |= _abi.DISPATCH_PROPERTYPUTREF
        _invoke(self, identifier, flags, [value], [None], _PUT_NAME)

    def __delattr__(self, name):
        raise AttributeError(f"{self._class.name}.{name} cannot be deleted")

    def __call__(self, *positional):
        labels = range(len(positional), 0, -1)
        return _invoke(self, _abi.DISPID_VALUE, _GET, positional[::-1], labels)

    def __getitem__(self, index):
        return self(index)

    def __len__(self):
        if "count" not in self._class.members:
            raise TypeError(f"{self._class.name} has no length")
        return self.Count

    def __iter__(self):
        if not self._class.is_collection:
            raise TypeError(f"{self._class.name} is no list")
        return _invoke(self, _abi.DISPID_NEWENUM, _GET, (), ())

    def __bool__(self):
        return True

    def _identity(self):
        # The pointer stays the object's after the release: the object itself is still referred to.
        return self._reference.query(_abi.IID_UNKNOWN).pointer

    def __eq__(self, other):
        if not isinstance(other, AutomationObject):
            return NotImplemented
        return self._identity() == other._identity()

    def __hash__(self):
        return hash(self._identity())

    def __dir__(self):
        members = self._class.members.values()
        return sorted(member.name for member in members if member.kind != "enumerator")

    def __repr__(self):
        return f"<PraxenHelper.{self._class.name} object>"


def Dispatch(name):
    """A new object of a class by its programmatic identifier, such as "PraxenHelper.Program"."""
    return _wrap(library().create(name))


class _Constants:
    """The constants of the enumerations as attributes, such as `constants.pxLeft`."""

    def __getattr__(self, name):
        if name.startswith("_"):
            raise AttributeError(name)
        values = library().constants()
        if name not in values:
            raise AttributeError(f"there is no constant {name}")
        self.__dict__.update(values)
        return values[name]

    def __dir__(self):
        return sorted(library().constants())


constants = _Constants()
