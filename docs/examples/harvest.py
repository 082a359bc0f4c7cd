"""Opens the stormwater harvesting window on a project, as a host program does. Where the user saves, the project goes back
to its file and the three results are printed.
  py harvest.py PROJECT.kav        (pywin32 has to be installed: py -m pip install pywin32)
"""
import sys
from pathlib import Path

from win32com.client import gencache

IN_HOST_PROJECT = 2


def main(path):
    file = Path(path)
    project = file.read_bytes().decode("utf-8-sig")  # with a mark or without
    reuse = gencache.EnsureDispatch("StReuse.clsStReuse")
    # What the module changes comes back after its answer.
    saved, own, results, project = reuse.Show(IN_HOST_PROJECT, "", "", project)
    if not saved:
        sys.exit("Nothing was saved.")
    file.write_bytes(project.encode("utf-8"))
    rate, efficiency, volume = results.split("\r\n")
    print("Reuse rate (gal/day):", rate)
    print("Efficiency (%):", efficiency)
    print("Storage volume (ac-ft):", volume)


main(sys.argv[1])
