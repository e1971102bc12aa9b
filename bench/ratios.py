# SPDX-License-Identifier: MIT
"""Prints the ratios of one run of the benchmarks, whose result is the JSON file named first."""

import json
import sys


def main(path):
    with open(path, encoding="utf-8") as file:
        runs = json.load(file)["benchmarks"]
    times = {run["name"]: run["cpu_time"] for run in runs}
    games = [name.split("/", 1)[1] for name in times if name.startswith("Import/")]
    for game in games:
        floor = times[f"ReadAllBytes/{game}"] + times[f"InsertSameRows/{game}"]
        imported = times[f"Import/{game}"]
        print(f"import of {game}: {imported:.0f} ms of processor time, "
              f"{imported / floor:.2f} times reading the bytes and inserting the rows "
              f"({floor:.0f} ms)")
    if "demo40" in games and "demo500" in games:
        growth = (times["Import/demo500"] / 500) / (times["Import/demo40"] / 40)
        print(f"cost of a system in 500 against one in 40: {growth:.2f}")
    for name, time in times.items():
        if name.startswith(("DrawingList/", "Redraw/", "FirstRedraw/")):
            print(f"{name}: {time:.2f} ms, {100 * time / 16:.0f} % of 16 ms")


main(sys.argv[1])
