#!/usr/bin/env python3
"""Prints the medians of two sets of benchmark results and the ratio of each pair, or, with a second
argument that describes the run, the table of one set."""
import collections
import glob
import json
import re
import statistics
import sys

NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


def results(folder, name):
    """Lists of nanoseconds, by benchmark."""
    times = collections.defaultdict(list)
    for path in glob.glob(f"{folder}/{name}.*_bench"):
        try:
            with open(path, encoding="utf-8") as file:
                benchmarks = json.load(file)["benchmarks"]
        except ValueError:  # a program without the benchmarks that were asked for
            continue
        for one in benchmarks:
            # Of a benchmark that repeats itself the median counts.
            if one.get("aggregate_name", "median") != "median":
                continue
            what = re.sub("/(iterations|repeats):[0-9]+|/(manual|real|process)_time|_median$", "",
                          one["name"])
            if name == "ours" and "real_time" in one:
                wall[what].append(one["real_time"] * NANOSECONDS[one["time_unit"]])
            if "processor ms" in one:
                time = one["processor ms"] * 1e6
            elif "cpu_time" in one:
                time = one["cpu_time"] * NANOSECONDS[one["time_unit"]]
            else:
                continue
            if "frame" in one:
                times[f"{what}, a frame"].append(one["frame"] * 1e9)
            times[what].append(time)
    for path in glob.glob(f"{folder}/{name}.*.times"):
        with open(path, encoding="utf-8") as file:
            for line in file:
                what, seconds = line.rstrip().split(":")
                times[what].append(sum(map(float, seconds.split())) * 1e9)
    return times


def text(times):
    if not times:
        return "missing"
    time = statistics.median(times)
    unit = max((u for u in NANOSECONDS if NANOSECONDS[u] <= time), key=NANOSECONDS.get, default="ns")
    return f"{time / NANOSECONDS[unit]:.3g} {unit}"


wall = collections.defaultdict(list)
ours, theirs = (results(sys.argv[1], name) for name in ("ours", "theirs"))
if len(sys.argv) > 2:
    print(sys.argv[2] + "\n\n| benchmark | processor time | wall time |\n|---|---|---|")
    for name in ours:
        print(f"| `{name}` | {text(ours[name])} | {text(wall[name]) if name in wall else ''} |")
    sys.exit()
print(f"{'processor time':40}{'theirs':>10}{'ours':>10}{'ratio':>8}")
for name in dict.fromkeys([*ours, *theirs]):
    ratio = "-"
    if ours[name] and theirs[name]:
        ratio = f"{statistics.median(ours[name]) / statistics.median(theirs[name]):.2f}"
    print(f"{name:40}{text(theirs[name]):>10}{text(ours[name]):>10}{ratio:>8}")
