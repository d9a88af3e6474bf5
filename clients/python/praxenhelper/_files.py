"""Documents in files, in the encodings of Unicode."""

import os
import pathlib
import re
import secrets
import shutil

_ENCODINGS = {"utf-16": ("utf-16-le", "UTF-16", "\ufeff"), "utf-8": ("utf-8", "UTF-8", "")}
_DECLARED = re.compile(r"""(<\?xml\s[^>]*?\bencoding\s*=\s*(["']))[^"']*(?=\2)""")


def load(path):
    """The document in a file of UTF-8 or UTF-16, as its first bytes tell."""
    data = pathlib.Path(path).read_bytes()
    if data[:2] == b"\xfe\xff" or (data[:1] == b"\0" and data[1:2] != b"\0"):
        text = data.decode("utf-16-be", "surrogatepass")
    elif data[:2] == b"\xff\xfe" or (data[:1] != b"\0" and data[1:2] == b"\0"):
        text = data.decode("utf-16-le", "surrogatepass")
    else:
        text = data.decode("utf-8")
    return text.removeprefix("\ufeff")


def save(path, document, encoding="utf-16"):
    """Stores a document as a file; its declaration names the encoding, "utf-16" or "utf-8".

    A file that is there is replaced as a whole once all is written, and keeps its permissions.
    """
    if encoding.lower() not in _ENCODINGS:
        raise ValueError(f"{encoding!r} is neither 'utf-16' nor 'utf-8'")
    codec, declared, mark = _ENCODINGS[encoding.lower()]
    if match := _DECLARED.match(document):
        document = match.group(1) + declared + document[match.end() :]
    data = (mark + document).encode(codec, "surrogatepass" if mark else "strict")
    target = pathlib.Path(path).resolve()
    if target.exists() and not target.is_file():
        target.write_bytes(data)
        return
    if target.exists():
        # What may not be written is not replaced either, although its folder would allow that.
        with open(target, "ab"):
            pass
    written = target.with_name(f".praxen-{secrets.token_hex(8)}.new")
    try:
        with open(written, "xb") as stream:
            # Who may not read what was there never reads what comes.
            if target.exists():
                shutil.copymode(target, written)
            stream.write(data)
        os.replace(written, target)
    except BaseException as error:
        written.unlink(missing_ok=True)
        if isinstance(error, OSError):
            raise type(error)(error.errno, error.strerror, os.fspath(path)) from None
        raise
