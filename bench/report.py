"""Turns the figures of bench_engine into ratios."""

import json
import statistics
import sys

times = {}
for run in json.load(open(sys.argv[1]))["benchmarks"]:
    if run.get("run_type") == "iteration":
        times.setdefault(run["run_name"], []).append(run["real_time"])
median = {name: statistics.median(values) for name, values in times.items()}

print(f"{'controls':>9} {'in a row':>9} {'walk ns':>9} {'search ns':>10} {'search / walk':>14}   (ns per control)")
for count, row in ((100, 20), (1000, 20), (10000, 20), (100000, 20), (100000, 100000)):
    walk, search = (median[f"BM_{what}/{count}/{row}"] / count for what in ("PlainWalk", "Search"))
    print(f"{count:>9} {row:>9} {walk:>9.1f} {search:>10.1f} {search / walk:>14.2f}")

print("== steps of a request, microseconds")
for name, value in median.items():
    if name.startswith("BM_Step"):
        print(f"{name.removeprefix('BM_Step').removesuffix('/real_time'):>16} {value / 1000:8.2f}")
