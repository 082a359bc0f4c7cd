"""The table of climate stations, src/engine/Stations.def, for the scripts that read it."""
import re
from collections import namedtuple
from pathlib import Path

TABLE = Path(__file__).resolve().parent.parent / "src" / "engine" / "Stations.def"

Station = namedtuple("Station", "name record_of record place latitude longitude side")


def stations():
    """Its rows in their order."""
    text = TABLE.read_text(encoding="utf-8")
    rows = re.findall(r'^ORVIK_STATION\("(.+?)", "(.*?)", "(.+?)", "(.+?)", ([-\d.]+), ([-\d.]+), (\w+)\)$', text, flags=re.M)
    if not rows or len(rows) != len(re.findall(r"^ORVIK_STATION", text, flags=re.M)):
        raise ValueError(f"{TABLE}: a row is not one line as its head describes")
    return [Station(*row[:4], float(row[4]), float(row[5]), row[6]) for row in rows]
