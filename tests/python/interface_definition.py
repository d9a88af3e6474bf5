"""The classes and members that the checked-in interface definition publishes."""

import pathlib
import re
from collections import namedtuple

_FILE = pathlib.Path(__file__).parents[2] / "praxen" / "server" / "PraxenHelper.idl"

# `type` is that of the value of a property, as the file spells it.
Member = namedtuple("Member", "name type is_settable is_hidden")
PublishedClass = namedtuple("PublishedClass", "name is_creatable interfaces")


def _interfaces(text):
    """The members of each interface by their names."""
    interfaces = {}
    for name, body in re.findall(r"interface (\w+) : IDispatch \{(.*?)\n  \}", text, re.S):
        members = interfaces[name] = {}
        for facts, member, arguments in re.findall(r"\[(.*)\]\n +HRESULT (\w+)\((.*)\);", body):
            type_name = arguments.split("] ")[-1].split(" ")[0].rstrip("*")
            is_put = re.search(r"\bpropput(ref)?,", facts) is not None
            is_hidden = re.search(r"\bhidden,", facts) is not None
            earlier = members.get(member)
            is_settable = is_put or (earlier is not None and earlier.is_settable)
            members[member] = Member(member, type_name, is_settable, is_hidden)
    return interfaces


def _classes(text):
    found = re.findall(r"\[(.*)\]\n  coclass (\w+) \{\n((?: .*;\n)*)  \}", text)
    return [
        PublishedClass(name, "noncreatable," not in facts, re.findall(r"interface (\w+);", body))
        for facts, name, body in found
    ]


_TEXT = _FILE.read_text("ascii")
INTERFACES = _interfaces(_TEXT)
CLASSES = _classes(_TEXT)
CONSTANTS = {name: int(value) for name, value in re.findall(r"\b(px\w+) = (\d+)", _TEXT)}
KINDS = {kind for published in CLASSES for kind in published.interfaces[1:]}
