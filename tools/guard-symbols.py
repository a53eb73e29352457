#!/usr/bin/env python3
"""Filter for reports of the guard allocator: turns each "module+0xoffset" into "function at file:line".

    ./test.sh grid 2>&1 | tools/guard-symbols.py
"""

import functools
import re
import subprocess
import sys

TRIPLE = "x86_64-w64-mingw32-"


def output_of(*command):
    return subprocess.run(command, capture_output=True, text=True, check=False).stdout


@functools.lru_cache(None)
def image_base(path):
    match = re.search(r"^ImageBase\s+([0-9a-f]+)", output_of(TRIPLE + "objdump", "-p", path), re.M)
    return int(match[1], 16) if match else None


def resolve(match):
    path = re.sub(r"^[zZ]:", "", match[1].replace("\\", "/"))
    base = image_base(path)
    if base is None:
        return match[0]
    address = hex(base + int(match[2], 16))
    where = output_of(TRIPLE + "addr2line", "-Cfpie", path, address).strip()
    return where.replace("\n", "\n         ") if where and not where.startswith("??") else match[0]


for line in sys.stdin:
    sys.stdout.write(re.sub(r"([A-Za-z]:\\[^+\n]+)\+0x([0-9a-f]+)", resolve, line))
    sys.stdout.flush()
