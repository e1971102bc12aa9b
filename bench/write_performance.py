# SPDX-License-Identifier: MIT
"""Puts the tables of one run of the benchmarks into docs/performance.md, with the machine."""

import os
import platform
import re
import subprocess
import sys
from pathlib import Path
from statistics import median

import results

DOCUMENT = Path(__file__).resolve().parent.parent / "docs" / "performance.md"
MARKS = ("<!-- measured: begin -->\n", "<!-- measured: end -->\n")


def machine():
    text = Path("/proc/cpuinfo").read_text(encoding="utf-8")
    model = re.search(r"model name\s*: (.*)", text)
    compiler = subprocess.run(["c++", "--version"], capture_output=True, text=True, check=False).stdout
    return (f"{os.cpu_count()} cores ({model.group(1) if model else platform.machine()}), {platform.system()} "
            f"{platform.release()}, {compiler.splitlines()[0] if compiler else 'an unknown compiler'}; load of the "
            f"machine at the end {os.getloadavg()[0]:.1f}")


def spread(repetitions):
    return f"{min(repetitions):.2f} to {max(repetitions):.2f}" if len(repetitions) > 1 else ""


def tables(times):
    lines = [f"{machine()}.", "", "| Import of | Processor, ms | Floor, ms | Ratio |", "|---|---|---|---|"]
    for game, (imported, floor) in results.imports(times).items():
        lines.append(f"| {game} | {imported:.0f} | {floor:.0f} | {imported / floor:.2f} |")
    growth = results.growth(times)
    if growth is not None:
        lines += ["", f"A system in a game of 500 costs {growth:.2f} times one in a game of 40."]
    lines += ["", "| What | Median, ms | Repetitions, ms | Of a frame of 16 ms |", "|---|---|---|---|"]
    for name, repetitions in times.items():
        if name.split("/", 1)[0] in results.FLOOR or name.startswith("Import/"):
            continue
        time = median(repetitions)
        lines.append(f"| {name.removesuffix('/manual_time')} | {time:.2f} | {spread(repetitions)} | "
                     f"{100 * time / results.FRAME:.0f} % |")
    return "\n".join(lines) + "\n"


def main(paths):
    times = {}
    for path in paths:
        times.update(results.load(path))
    text = DOCUMENT.read_text(encoding="utf-8")
    before, rest = text.split(MARKS[0])
    after = rest.split(MARKS[1])[1]
    DOCUMENT.write_text(before + MARKS[0] + tables(times) + MARKS[1] + after, encoding="utf-8")


main(sys.argv[1:])
