"""Prints the variables of all programs in a folder of documents as a table for a spreadsheet.

    python3 variables.py FOLDER >variables.csv

Documents of other classes are passed over; one that cannot be read is named, and the exit code is 1.
"""

import csv
import pathlib
import sys

from praxenhelper import AutomationError, Dispatch, load

WRONG_ROOT_ELEMENT = 0x8004025C

factory = Dispatch("PraxenHelper.ObjectFactory")


def read_program(file):
    """The program in a file; None when the document is of another class."""
    try:
        return factory.DeserializeProgram(load(file))
    except AutomationError as error:
        if error.number == WRONG_ROOT_ELEMENT:
            return None
        raise


def main():
    table = csv.writer(sys.stdout)
    table.writerow(["File", "Program", "Variable", "Type", "Initial value", "Description"])
    good = True
    for file in sorted(pathlib.Path(sys.argv[1]).rglob("*.xml")):
        try:
            program = read_program(file)
        except (AutomationError, OSError, UnicodeError) as error:
            print(f"{file}: {error}", file=sys.stderr)
            good = False
            continue
        if program is None:
            continue
        for variable in program.Variables:
            values = variable.Name, variable.TypeName, variable.InitialValue, variable.Description
            table.writerow([file.name, program.Name, *values])
    return good


if __name__ == "__main__":
    sys.exit(0 if main() else 1)
