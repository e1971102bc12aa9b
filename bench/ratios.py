# SPDX-License-Identifier: MIT
"""Prints the ratios of one run of the benchmarks, whose result is the JSON file named first."""

import sys
from statistics import median

import results

times = results.load(sys.argv[1])
for game, (imported, floor) in results.imports(times).items():
    print(f"import of {game}: {imported:.0f} ms of processor time, {imported / floor:.2f} times reading the bytes "
          f"and inserting the rows ({floor:.0f} ms)")
growth = results.growth(times)
if growth is not None:
    print(f"cost of a system in 500 against one in 40: {growth:.2f}")
for name, repetitions in times.items():
    if name.startswith(results.PAINTING):
        time = median(repetitions)
        print(f"{name}: {time:.2f} ms, {100 * time / results.FRAME:.0f} % of {results.FRAME} ms")
