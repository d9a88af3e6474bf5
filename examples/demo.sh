#!/bin/bash
# Shows what the library and its command line do; "./dev demo" builds both and runs this.
set -euo pipefail

build="$(cd "${1:?"usage: demo.sh BUILD_FOLDER"}" && pwd)"
documents="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)/documents"
praxen="$build/tools/praxen"
folder="$(mktemp -d)"
trap 'rm -rf "$folder"' EXIT
cd "$folder"

heading() { printf '\n== %s\n\n' "$1"; }

# Prints a command as a reader would type it, and runs it.
run() {
  printf '\n$ praxen %s\n' "$*"
  "$praxen" "$@" 2>&1
}

# The same for a command whose exit code has to be 1.
run_and_fail() {
  local code=0
  run "$@" || code=$?
  if [ "$code" != 1 ]; then
    echo "demo: praxen $1 ended with $code instead of 1" >&2
    exit 1
  fi
}

heading "1. A program builds a plant section"
cat <<'END'
The C++ program examples/plant.cpp builds a tank, its pump and its valves from objects, writes
each part as an XML document, reads the document back and compares.
END
printf '\n$ plant\n'
"$build/examples/plant" plant

cat <<'END'

This is one of the documents; they are stored as UTF-16.
END
printf '\n$ iconv -f UTF-16 -t UTF-8 plant/pump.xml\n'
iconv -f UTF-16 -t UTF-8 plant/pump.xml

heading "2. The command line reads the documents"
cat <<'END'
"check" validates a document and reads it, tells what of it would be lost, writes what it has read,
reads and writes that again, and tells whether both texts are the same.
END
run check plant/level_control.xml plant/start_sequence.xml plant/hardware.xml

heading "3. What is in them"
cat <<'END'
"show" prints a document as an outline; only what differs from a new object is shown. First a
program in Structured Text.
END
run show plant/level_control.xml
cat <<'END'

Then the start as a sequential function chart: if the tank is empty, the pump and the inlet
valve fill it at the same time (SFCSimultaneous); otherwise the outlet is opened.
END
run show plant/start_sequence.xml
cat <<'END'

And the hardware, with the variable of every channel.
END
run show plant/hardware.xml

heading "4. A mistake is shown where it is"
cat <<'END'
Somebody edits a document by hand and misspells an attribute.
END
"$praxen" sample variable --encoding utf-8 | sed "s/ InitialValue=/ IntialValue=/" >edited.xml
run_and_fail check edited.xml

heading "5. Documents of the engineering tool"
cat <<'END'
They may have their attributes in another order, comments, defaults spelled out, and any
encoding of Unicode. What the tool adds for our information, such as TypePath, is read too.
END
cp "$documents"/*.xml .
run check application_variables.xml level_control.xml
run show application_variables.xml

heading "6. The messages of a compilation"
cat <<'END'
The tool reports what it found as a document, too. Here it is as a compiler would print it; the
exit code is 1, since there are errors.
END
run_and_fail messages --sort compiler_messages.xml

cat <<'END'

That was all. "praxen sample --list" names the families of documents, "praxen --help" the
commands; examples/readme_example.cpp is the shortest program to begin with.
END
