#!/usr/bin/env python3
# Checks what the sources include, how they begin and how they are guarded.
# Usage: includes.py ROOT
import pathlib
import re
import sys

from rooms import ROOMS, room_of

FOLDERS = ('praxen', 'tools', 'tests', 'bench', 'fuzz', 'examples')
# Included wherever a source may stand, below this project's own folders.
INCLUDE = re.compile(r'\s*#\s*include\s+"((?:%s)/[^"]+)"' % '|'.join(FOLDERS))
CONDITION = re.compile(r'\s*#\s*(if|ifdef|ifndef|elif|else|endif)\b(.*)')
PLATFORM = re.compile(r'_(posix|windows)(_test)?\.(h|cpp)$')

# Includes that may lead up, with the reason.
EXCEPTIONS = {
    # The examples of the documents are the objects that the tests fill.
    ('tools/generate/xml_format.cpp', 'tests/support/example.h'),
}


def is_of_platform(condition):
    return '_WIN32' in condition


def conditions_by_line(lines):
    """The conditions under which each line stands, from the outermost to the innermost."""
    open_conditions = []
    for line in lines:
        found = CONDITION.match(line)
        if found and found[1].startswith('if'):
            open_conditions.append(line.strip())
        yield tuple(open_conditions)
        if found and found[1] == 'endif' and open_conditions:
            open_conditions.pop()


def check_includes(path, lines):
    allowed = ROOMS.get(room_of(path))
    for number, (line, conditions) in enumerate(zip(lines, conditions_by_line(lines)), 1):
        found = INCLUDE.match(line)
        if not found:
            continue
        included = found[1]
        room = room_of(included)
        if (allowed is not None and room not in allowed
                and (path, included) not in EXCEPTIONS):
            yield number, f'{room_of(path)} includes {included}, which it may not know'
        if (PLATFORM.search(included) and not PLATFORM.search(path)
                and not any(map(is_of_platform, conditions))):
            yield number, f'{included} is of one platform and included on all'


def check_beginning(lines):
    if not lines or not re.match(r'// \S', lines[0]):
        yield 1, 'does not begin with a sentence on what lives here'
        return
    comment = []
    for line in lines:
        if not line.startswith('//'):
            break
        comment.append(line[2:].strip())
    if not re.search(r'[.:]( |$)', ' '.join(comment)):
        yield 1, 'the opening comment is no sentence'


def check_guard(path, lines):
    guard = re.sub(r'[/.]', '_', path).upper() + '_'
    if not guard.startswith('PRAXEN_'):
        guard = 'PRAXEN_' + guard
    code = [(number, line) for number, line in enumerate(lines, 1)
            if line.strip() and not line.startswith('//')]
    expected = ((0, f'#ifndef {guard}'), (1, f'#define {guard}'), (-1, f'#endif  // {guard}'))
    for at, text in expected:
        if len(code) < 2 or code[at][1] != text:
            yield (code[at][0] if len(code) > 1 else 1), f'expected "{text}" here'


def check_whole_file_condition(lines):
    """A file for one platform says so by its name, and is not built on the other."""
    code = [(number, line, conditions) for number, (line, conditions)
            in enumerate(zip(lines, conditions_by_line(lines)), 1)
            if line.strip() and not line.startswith(('//', '#include'))]
    if code and all(any(map(is_of_platform, conditions)) for _, _, conditions in code):
        yield code[0][0], 'the whole file is for one platform: name it _posix or _windows'


def check(root, file):
    path = file.relative_to(root).as_posix()
    lines = file.read_text(encoding='utf-8').splitlines()
    yield from check_includes(path, lines)
    yield from check_beginning(lines)
    yield from check_whole_file_condition(lines)
    if path.endswith('.h'):
        yield from check_guard(path, lines)


def main():
    root = pathlib.Path(sys.argv[1])
    files = sorted(file for folder in FOLDERS for file in (root / folder).rglob('*')
                   if file.suffix in ('.h', '.cpp'))
    if not files:
        sys.exit(f'no sources in {root}')
    faults = 0
    for file in files:
        for number, what in check(root, file):
            print(f'{file.relative_to(root)}:{number}: {what}')
            faults += 1
    print(f'{len(files)} sources, {faults} faults')
    sys.exit(faults > 0)


main()
