# SPDX-License-Identifier: MIT
"""Prints the results of several programs of benchmarks as those of one."""

import json
import sys

joined = {"benchmarks": []}
for path in sys.argv[1:]:
    with open(path, encoding="utf-8") as file:
        result = json.load(file)
    joined.setdefault("context", result["context"])
    joined["benchmarks"] += result["benchmarks"]
json.dump(joined, sys.stdout, indent=1)
