"""Follows the README in a home folder of its own: readme.py README PACKAGE [without-python].

Its command lines are run in their order but for "./dev", whose installation PACKAGE is; its program
and its script are stored where the text says. Both have to print the document that it shows."""

import os
import pathlib
import re
import subprocess
import sys
import tempfile

readme = pathlib.Path(sys.argv[1]).read_text("utf-8")
with_python = "without-python" not in sys.argv[3:]


def block(language):
    """The first fenced block of the language."""
    return re.search(rf"^```{language}\n(.*?)^```", readme, re.S | re.M).group(1)


def commands(heading):
    """The indented lines of a section."""
    section = re.search(rf"^## {heading}\n(.*?)^## ", readme, re.S | re.M).group(1)
    lines = re.findall(r"^    (.*)$", section, re.M)
    return [line for line in lines if not line.startswith("./dev ")]


def run(lines, home):
    done = subprocess.run(
        ["bash", "-euc", "\n".join(lines)],
        cwd=home,
        env={**os.environ, "HOME": str(home), "XDG_DATA_HOME": ""},
        stdout=subprocess.PIPE,
        text=True,
        check=True,
        timeout=300,
    )
    document = block("xml")
    if document not in done.stdout.replace("\r\n", "\n"):
        sys.exit(f"not printed:\n{document}\nbut:\n{done.stdout}")


with tempfile.TemporaryDirectory() as folder:
    home = pathlib.Path(folder)
    (home / "praxenhelper").symlink_to(sys.argv[2])
    client = home / "client"
    client.mkdir()
    (client / "client.cpp").write_text(block("cpp"), "utf-8")
    (client / "CMakeLists.txt").write_text(block("cmake"), "utf-8")
    run(commands("In C\\+\\+"), home)
    if with_python:
        (home / "level.py").write_text(block("python"), "utf-8")
        run([*commands("In scripts"), f"{sys.executable} level.py"], home)
