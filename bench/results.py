# SPDX-License-Identifier: MIT
"""Results of the benchmarks: reading them, and the ratios that matter."""

import json
import math
from statistics import median

# What any import does at least: it reads the bytes and inserts the rows.
FLOOR = ("ReadAllBytes", "InsertSameRows")
# Somebody waits for these, and other threads take part.
REDRAWS = ("Redraw/", "SwitchRedraw/", "NamesRedraw/", "FirstRedraw/", "FineRedraw/")
PAINTING = ("DrawingList/", *REDRAWS)
FRAME = 16  # milliseconds
MILLISECONDS = {"ns": 1e-6, "us": 1e-3, "ms": 1, "s": 1e3}


def load(path):
    """The milliseconds of each benchmark, one for each repetition: of the processor, or those that passed
    if it is a redraw or the benchmark took the time itself. Those that failed are left out."""
    with open(path, encoding="utf-8") as file:
        runs = json.load(file)["benchmarks"]
    times = {}
    for run in runs:
        if run.get("run_type", "iteration") != "iteration" or run.get("error_occurred"):
            continue
        name = run["run_name"] if "run_name" in run else run["name"]
        passed = name.endswith("/manual_time") or name.startswith(REDRAWS)
        time = run["real_time" if passed else "cpu_time"]
        times.setdefault(name, []).append(time * MILLISECONDS[run["time_unit"]])
    return times


def games(times):
    return [name.split("/", 1)[1] for name in times if name.startswith("Import/")]


def floor(times, game):
    return sum(median(times[f"{part}/{game}"]) for part in FLOOR)


def imports(times):
    """For each game: milliseconds of the import and of its floor."""
    return {game: (median(times[f"Import/{game}"]), floor(times, game)) for game in games(times)
            if all(f"{part}/{game}" in times for part in FLOOR)}


def growth(times):
    """What a system costs in a game of 500 of them against one of 40; None if either was not measured."""
    done = imports(times)
    if "demo40" not in done or "demo500" not in done:
        return None
    return (done["demo500"][0] / 500) / (done["demo40"][0] / 40)


def machine_factor(old, new):
    """How many times longer the work that is not ours took in the newer run: the machine, not the program."""
    names = [name for name in old if name in new and name.split("/", 1)[0] in FLOOR]
    if not names:
        return None
    return math.exp(sum(math.log(median(new[name]) / median(old[name])) for name in names) / len(names))


def compare(old, new):
    """For each benchmark of both runs: name, the older and the newer milliseconds, their ratio without the
    machine's share, and whether it changed beyond noise: no repetition of one run comes between those of the
    other, and there is more than one. None for the last where there is one only."""
    factor = machine_factor(old, new) or 1
    rows = []
    for name in old:
        if name not in new or name.split("/", 1)[0] in FLOOR:
            continue
        before, after = old[name], [time / factor for time in new[name]]
        if min(len(before), len(after)) < 2:
            changed = None
        else:
            changed = max(after) < min(before) or min(after) > max(before)
        rows.append((name, median(before), median(new[name]), median(after) / median(before), changed))
    return rows
