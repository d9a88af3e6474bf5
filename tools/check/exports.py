#!/usr/bin/env python3
# Checks what the shared library exports: entry points, what the namespace praxen publishes, and what
# the inline code of the public headers needs; all of that, and nothing else. And that it needs no
# other library than those of C and C++.
# Usage: exports.py NM READELF LIBRARY OBJECT, the object using all of the public headers.
import re
import subprocess
import sys

# Entry points, and the classes and functions of the namespace itself.
PUBLISHED = re.compile(r'Dll[A-Z]\w+$|Praxen[A-Z]\w+$|praxen::(?!describe::|detail::)'
                       r'|(vtable|typeinfo|typeinfo name) for praxen::(?!describe::|detail::)')
RUNTIME = re.compile(r'(libstdc\+\+|libgcc_s|libm|libc|ld-linux[-\w]*)\.so\.\d+$')
# Names of instances of a template for classes or arguments.
ARGUMENTS = re.compile(r'<.*>|\(.*')


def names(nm, *arguments):
    done = subprocess.run([nm, *arguments], capture_output=True, text=True, check=True)
    kinds = re.compile(r'^[0-9a-f ]*\b([A-Za-z]) (.*)$', re.MULTILINE)
    return {name.split('@@')[0] for kind, name in kinds.findall(done.stdout)}


def libraries(readelf, library):
    done = subprocess.run([readelf, '-d', library], capture_output=True, text=True, check=True)
    return re.findall(r'\(NEEDED\).*\[(.*)\]', done.stdout)


def family(name):
    return ARGUMENTS.sub('', name)


def main():
    nm, readelf, library, *objects = sys.argv[1:]
    exported = names(nm, '-DC', '--defined-only', library)
    needed = {name for name in names(nm, '-uC', *objects) if 'praxen::' in name.split('(')[0]}
    families = {family(name) for name in needed}
    faults = [f'a client needs {name}' for name in sorted(needed - exported)]
    faults += [f'no client needs {name}' for name in sorted(exported)
               if not PUBLISHED.match(name) and family(name) not in families]
    faults += [f'it needs {name}' for name in libraries(readelf, library)
               if not RUNTIME.match(name)]
    print(*faults, f'{len(exported)} names, {len(faults)} faults', sep='\n')
    sys.exit(bool(faults))


main()
