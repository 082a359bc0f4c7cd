"""The rooms of the code, for the scripts that look at them: who includes whom, as the sources say."""
import re
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
SOURCE = ROOT / "src"


def room_of(path):
    """The room of a source file or of an include, both relative to src."""
    parts = path.split("/")
    if parts[0] == "base":  # one room: its folders hold what each system does in its own way
        return "base"
    return "/".join(parts[:2]) if len(parts) > 2 else parts[0]


def sources():
    """(path relative to src, what it includes in quotes), of every source file."""
    for path in sorted(SOURCE.rglob("*.*")):
        if path.suffix in (".cpp", ".h", ".def"):
            text = path.read_text(encoding="utf-8")
            yield path.relative_to(SOURCE).as_posix(), re.findall(r'^\s*#\s*include\s*"([^"]+)"', text, flags=re.M)


def arrows():
    """{(room, room it includes): the includes behind it, as (source, included)}."""
    found = {}
    for source, includes in sources():
        for include in includes:
            room, other = room_of(source), room_of(include)
            if other != room and (SOURCE / other).is_dir():
                found.setdefault((room, other), []).append((source, include))
    return found
