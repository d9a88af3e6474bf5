#!/usr/bin/env python3
# Checks that no room uses a symbol that only a room above it defines: it would declare what is
# defined above it, or lead there through a header that it may include.
# Usage: symbols.py NM OBJECT…, the objects being named as CMake does it for praxen/
import collections
import os
import re
import subprocess
import sys

from rooms import ROOMS

OBJECT_FOLDER = 'praxen_objects.dir/'

# The objects whose place does not tell their room: the factory reads the embedded schema.
FURTHER_FOLDERS = {'embedded_schema.cpp.o': 'factory'}


def room_of(object_file):
    within = os.path.normpath(object_file.rpartition(OBJECT_FOLDER)[2])
    folder, _, _ = within.partition('/')
    room = FURTHER_FOLDERS.get(folder, folder)
    if room not in ROOMS:
        sys.exit(f'{object_file}: in no room')
    return room


def symbols(nm, object_files):
    """Yields object file, whether it defines the symbol, symbol."""
    listing = subprocess.run([nm, '-A', '-P', *object_files], check=True, capture_output=True,
                             text=True).stdout
    for line in listing.splitlines():
        found = re.match(r'(.+?): (\S+) (\S)', line)
        if found and (found[3].isupper() or found[3] in 'uvw'):
            yield found[1], found[3] not in 'Uvw', found[2]


def demangled(symbol):
    return subprocess.run(['c++filt', symbol], check=True, capture_output=True,
                          text=True).stdout.strip()


def main():
    nm, *object_files = sys.argv[1:]
    defined = collections.defaultdict(set)
    used = collections.defaultdict(set)
    for object_file, defines, symbol in symbols(nm, object_files):
        (defined if defines else used)[symbol].add(object_file)
    if not defined:
        sys.exit('the objects define nothing')
    faults = 0
    for symbol in sorted(used.keys() & defined.keys()):
        homes = {room_of(file) for file in defined[symbol]}
        for object_file in sorted(used[symbol]):
            room = room_of(object_file)
            if not homes.isdisjoint(ROOMS[room]):
                continue
            name = demangled(symbol)
            print(f'{object_file.rpartition(OBJECT_FOLDER)[2]}: {room} uses {name}, which '
                  f'{", ".join(sorted(homes))} defines')
            faults += 1
    print(f'{len(object_files)} objects, {len(defined)} symbols, {faults} faults')
    sys.exit(faults > 0)


main()
