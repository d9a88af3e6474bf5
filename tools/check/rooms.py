# The rooms of the tree and which of them may know which; used by the checks.
import pathlib

# Each room with those that it may know; xml and automation do not know each other.
_BELOW = {
    'core': '',
    'xml': 'core',
    'automation': 'core',
    'describe': 'core xml automation',
    'model': 'core xml automation describe',
    'factory': 'core xml automation describe model',
    'server': 'core xml automation describe model factory',
    'tools': 'core xml automation describe model factory server praxen.h',
}
ROOMS = {room: {room, *below.split()} for room, below in _BELOW.items()}


def room_of(path):
    """The room of a file named from the root of the project, 'praxen.h' for the header of all;
    None for tests and whatever else may know every room."""
    parts = pathlib.PurePosixPath(path).parts
    if parts[0] == 'tools':
        return 'tools'
    return parts[1] if parts[0] == 'praxen' else None
