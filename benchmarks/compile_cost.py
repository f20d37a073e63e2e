"""Tells what a source file takes the compiler that uses the layout map and the engine.

usage: compile_cost.py [BUILD_FOLDER [SOURCE]]

The commands are those of the build folder (its compile_commands.json), once without optimising and
once as users get it. What counts is the time in the compiler, not that on the clock.
"""

import json
import os
import re
import shlex
import subprocess
import sys


def measured(command, folder):
    """User time in seconds and the largest process in MB."""
    process = subprocess.Popen(command, cwd=folder)
    _, status, usage = os.wait4(process.pid, 0)
    if status != 0:
        sys.exit("the compiler failed: " + shlex.join(command))
    return usage.ru_utime, usage.ru_maxrss / 1024


def main(build="build/benchmarks", source="layout/xml.cpp"):
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as file:
        found = [entry for entry in json.load(file) if entry["file"].endswith("/" + source)]
    if not found:
        sys.exit(f"{source} is not built in {build}")
    words = shlex.split(found[0]["command"])
    words = [word for word in words if not re.fullmatch("-O.?", word)]
    words[words.index("-o") + 1] = os.devnull
    print(f"What {source} takes the compiler\n")
    print("| | user time, s | memory, MB |\n| --- | --- | --- |")
    for level in ("-O0", "-O3"):
        seconds, memory = measured(words + [level], found[0]["directory"])
        print(f"| `{level}` | {seconds:.1f} | {memory:.0f} |")


if __name__ == "__main__":
    main(*sys.argv[1:])
