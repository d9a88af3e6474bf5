"""The classes of PraxenHelper for Python, through the automation interfaces of its library.

    from praxenhelper import Dispatch

    program = Dispatch("PraxenHelper.Program")
    program.Name = "TankControl"
    program.Variables.Add1("Level", "real")
    print(program.Serialize())

A script that is written for the Windows automation client runs with this package, and the other way
round, but for its import. The library is the one that the environment variable PRAXENHELPER_LIBRARY
names, otherwise the registered one ("praxen register"), otherwise one that lies in this folder or
where the system looks for libraries.

Calls hold Python's global lock, so threads may take turns with an object, and gain nothing by it.
"""

import sys

if sys.platform == "win32":
    raise ImportError(
        "praxenhelper is for systems without automation; on Windows register PraxenHelper.dll and"
        " use the Windows automation client: from win32com.client import Dispatch"
    )

from ._errors import AutomationError, UnknownMemberError, com_error
from ._files import load, save
from ._objects import AutomationObject, Dispatch, constants

__all__ = [
    "AutomationError",
    "AutomationObject",
    "Dispatch",
    "UnknownMemberError",
    "com_error",
    "constants",
    "load",
    "save",
]
