# SPDX-License-Identifier: MIT
"""Puts the tables of one run of the benchmarks into docs/performance.md, with the machine. An earlier run
on the same machine (--before FILE) stands beside it."""

import argparse
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
    kernel = re.match(r"[0-9.]*[0-9]", platform.release())
    compiler = subprocess.run(["c++", "--version"], capture_output=True, text=True, check=False).stdout
    return (f"{os.cpu_count()} cores ({model.group(1) if model else platform.machine()}), {platform.system()} "
            f"{kernel.group() if kernel else ''}, {compiler.splitlines()[0] if compiler else 'an unknown compiler'}; load of the "
            f"machine at the end {os.getloadavg()[0]:.1f}")


def spread(repetitions):
    return f"{min(repetitions):.2f} to {max(repetitions):.2f}" if len(repetitions) > 1 else ""


def import_rows(times, before):
    earlier = results.imports(before)
    for game, (imported, floor) in results.imports(times).items():
        was = ""
        if game in earlier:
            time, its_floor = earlier[game]
            was = f"{time:.0f} ({time / its_floor:.2f})"
        yield f"| {game} | {was} | {imported:.0f} | {floor:.0f} | {imported / floor:.2f} |"


def other_rows(times, before):
    for name, repetitions in times.items():
        if name.split("/", 1)[0] in results.FLOOR or name.startswith("Import/"):
            continue
        time = median(repetitions)
        was = f"{median(before[name]):.2f}" if name in before else ""
        yield (f"| {name.removesuffix('/manual_time')} | {was} | {time:.2f} | {spread(repetitions)} | "
               f"{100 * time / results.FRAME:.0f} % |")


def tables(times, before):
    lines = [f"{machine()}.", "", "| Import of | Before, ms (ratio) | Processor, ms | Floor, ms | Ratio |",
             "|---|---|---|---|---|", *import_rows(times, before)]
    growth = results.growth(times)
    if growth is not None:
        lines += ["", f"A system in a game of 500 costs {growth:.2f} times one in a game of 40."]
    lines += ["", "| What | Before, ms | Median, ms | Repetitions, ms | Of a frame of 16 ms |", "|---|---|---|---|---|",
              *other_rows(times, before)]
    return "\n".join(lines) + "\n"


def loaded(paths):
    times = {}
    for path in paths:
        times.update(results.load(path))
    return times


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--before", action="append", default=[])
    parser.add_argument("runs", nargs="+")
    arguments = parser.parse_args()
    text = DOCUMENT.read_text(encoding="utf-8")
    before, rest = text.split(MARKS[0])
    after = rest.split(MARKS[1])[1]
    measured = tables(loaded(arguments.runs), loaded(arguments.before))
    DOCUMENT.write_text(before + MARKS[0] + measured + MARKS[1] + after, encoding="utf-8")


main()
