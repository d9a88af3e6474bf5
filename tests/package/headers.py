#!/usr/bin/env python3
# Checks the installed headers: that they are those that clients need, and that each of them, and the
# clients beside this file, compile against them alone.
# Usage: headers.py LIST INCLUDE_FOLDER COMPILER
import concurrent.futures
import os
import pathlib
import re
import subprocess
import sys

# What clients include; all else is installed because these need it.
ENTRIES = ('praxen/praxen.h', 'praxen/automation/create_object.h', 'praxen/automation/values.h')
# The header that stops a compiler of an older language, and what it says.
GUARD = 'praxen/core/language.h'
GUARD_MESSAGE = 'PraxenHelper needs C++20; compile with -std=c++20 or later'
INCLUDE = re.compile(r'#include ["<](\S.*?)[">]')


def without_windows(text):
    """The lines that are not for Windows only."""
    conditions = []
    for line in text.splitlines():
        if line.startswith('#if'):
            conditions.append(line)
        elif line.startswith(('#else', '#endif')):
            conditions.pop()
            if line.startswith('#else'):
                conditions.append(line)
        if '#ifdef _WIN32' not in conditions:
            yield line


class Headers:
    def __init__(self, list_file, folder):
        self.list_file = list_file
        self.folder = folder
        self.listed = pathlib.Path(list_file).read_text(encoding='utf-8').split()

    def includes(self, header):
        """What the installed header includes; nothing if it is not installed."""
        file = self.folder / header
        text = file.read_text(encoding='utf-8') if file.is_file() else ''
        found = filter(None, map(INCLUDE.match, without_windows(text)))
        return [include[1] for include in found if include[1] != GUARD_MESSAGE]

    def own(self, header):
        return [name for name in self.includes(header) if name.startswith('praxen/')]

    def needed(self):
        """The entries and whatever they need, each with the header that needs it."""
        needed = {entry: 'clients' for entry in ENTRIES}
        waiting = list(ENTRIES)
        while waiting:
            header = waiting.pop()
            for name in self.own(header):
                if name not in needed:
                    needed[name] = header
                    waiting.append(name)
        return needed

    def leads_to_guard_first(self, header):
        while header != GUARD:
            own = self.own(header)
            if not own:
                return False
            header = own[0]
        return True

    def faults(self):
        needed = self.needed()
        for header, by in sorted(needed.items()):
            if header not in self.listed:
                yield f'{by} includes {header}, which {self.list_file} does not name'
        for header in self.listed:
            if not (self.folder / header).is_file():
                yield f'{header} is listed and not installed'
                continue
            if header not in needed:
                yield f'{header} is listed, and no header for clients needs it'
            if header.endswith('.h') and not self.leads_to_guard_first(header):
                yield f'{header} does not include {GUARD} before the other headers'
            for name in self.includes(header):
                if not name.startswith('praxen/') and not re.fullmatch(r'[a-z_]+', name):
                    yield f'{header} includes {name}, which is neither ours nor of the language'
        if self.listed != sorted(set(self.listed)):
            yield f'{self.list_file} is not sorted, or names a header twice'
        installed = {file.relative_to(self.folder).as_posix()
                     for file in self.folder.rglob('*') if file.is_file()}
        for header in sorted(installed - set(self.listed)):
            yield f'{header} is installed and not listed'


def compile_text(compiler, folder, text, standard='c++20'):
    """The messages of the compiler, empty without any, for a text that may include the headers."""
    done = subprocess.run(
        [compiler, f'-std={standard}', '-Wall', '-Wextra', '-Wpedantic', '-Werror',
         '-fsyntax-only', '-I', str(folder), '-x', 'c++', '-'],
        input=text, capture_output=True, text=True, check=False)
    return done.stderr if done.returncode or done.stderr else ''


def compile_alone(compiler, headers):
    clients = sorted(pathlib.Path(__file__).parent.glob('*.cpp'))
    texts = {header: f'#include "{header}"\n' for header in headers.listed
             if header.endswith('.h')}
    texts.update({client.name: client.read_text(encoding='utf-8') for client in clients})
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = pool.map(lambda text: compile_text(compiler, headers.folder, text),
                           texts.values())
        for name, messages in zip(texts, results):
            if messages:
                yield f'{name} does not compile against the installed headers alone:\n{messages}'


def refused_by_older_language(compiler, headers):
    """An older language is told so in one error, whatever a client does with the headers."""
    for entry in ENTRIES:
        text = f'#include "{entry}"\nint main() {{ return praxen::New<praxen::Variable>(); }}\n'
        messages = compile_text(compiler, headers.folder, text, standard='c++17')
        errors = re.findall(r'\berror: .*', messages)
        if len(errors) != 1 or GUARD_MESSAGE not in errors[0]:
            yield f'in C++17, {entry} does not give the one error that says why:\n{messages}'


def main():
    list_file, folder, compiler = sys.argv[1:]
    headers = Headers(list_file, pathlib.Path(folder))
    faults = [*headers.faults(), *refused_by_older_language(compiler, headers),
              *compile_alone(compiler, headers)]
    print(*faults, f'{len(headers.listed)} headers, {len(faults)} faults', sep='\n')
    sys.exit(bool(faults))


main()
