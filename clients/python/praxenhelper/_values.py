"""Python values as automation variants and back."""

from . import _abi
from ._errors import DISP_E_OVERFLOW, DISP_E_TYPEMISMATCH, AutomationError


def _store_integer(variant, value, label):
    if -(1 << 31) <= value < 1 << 31:
        variant.type = _abi.VT_I4
        variant.value.long = value
    elif -(1 << 63) <= value < 1 << 63:
        variant.type = _abi.VT_I8
        variant.value.longlong = value
    else:
        raise AutomationError(DISP_E_OVERFLOW, "Overflow", argument=label)


def store(library, variant, value, label, pointer_of):
    """Fills an empty variant with the argument that `label` names in errors.

    `pointer_of` gives the interface of an object, None for other values.

    The variant owns a text, to be freed with `discard`, and borrows an object.
    """
    pointer = pointer_of(value)
    if pointer is not None:
        variant.type = _abi.VT_DISPATCH
        variant.value.pointer = pointer
    elif value is None:
        variant.type = _abi.VT_NULL
    elif isinstance(value, bool):
        variant.type = _abi.VT_BOOL
        variant.value.short = -1 if value else 0
    elif isinstance(value, int):
        _store_integer(variant, value, label)
    elif isinstance(value, float):
        variant.type = _abi.VT_R8
        variant.value.double = value
    elif isinstance(value, str):
        variant.value.pointer = library.allocate_text(value)
        variant.type = _abi.VT_BSTR
    else:
        reason = f"Type mismatch: {type(value).__name__}"
        raise AutomationError(DISP_E_TYPEMISMATCH, reason, argument=label)


def discard(library, variant):
    """Frees what `store` allocated."""
    if variant.type == _abi.VT_BSTR:
        library.free_text(variant.value.pointer)
    variant.type = _abi.VT_EMPTY


_READERS = {
    _abi.VT_EMPTY: lambda value: None,
    _abi.VT_NULL: lambda value: None,
    _abi.VT_I2: lambda value: value.short,
    _abi.VT_I4: lambda value: value.long,
    _abi.VT_I8: lambda value: value.longlong,
    _abi.VT_R4: lambda value: value.float,
    _abi.VT_R8: lambda value: value.double,
    _abi.VT_BOOL: lambda value: value.short != 0,
}


def take(library, variant, wrap):
    """The value of a result, which is freed; `wrap` makes a Python object of a reference."""
    if variant.type == _abi.VT_BSTR:
        return library.take_text(variant.value.pointer)
    if variant.type in (_abi.VT_DISPATCH, _abi.VT_UNKNOWN):
        pointer = variant.value.pointer
        return wrap(_abi.Reference(pointer)) if pointer else None
    reader = _READERS.get(variant.type)
    if reader is None:
        library.clear(variant)
        raise AutomationError(DISP_E_TYPEMISMATCH, "The result is of a type unknown here")
    return reader(variant.value)
