#!/usr/bin/env python3
"""Compiles every source file of the client for Windows.

    sources.py SOURCE_DIR BUILD_DIR QT_CMAKE_DIR

What was compiled in BUILD_DIR before is compiled again only if it changed.
"""
import pathlib
import subprocess
import sys
import time

import winetools


def main():
    winetools.require(winetools.COMPILER)
    source, build, qt = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
    start = time.monotonic()
    subprocess.run(
        ["cmake", "-S", source / "tests/windows/sources", "-B", build, "-G", "Ninja",
         f"-DCMAKE_TOOLCHAIN_FILE={source}/cmake/mingw-w64.cmake", f"-DCMAKE_PREFIX_PATH={qt}"],
        check=True, stdout=subprocess.DEVNULL)
    # Everything that does not compile is to be seen at once.
    result = subprocess.run(["ninja", "-C", build, "-k", "0"], stdout=subprocess.PIPE, text=True, check=False)
    if result.returncode != 0:
        print(result.stdout)
        return 1
    files = len(list((source / "client").rglob("*.cpp")))
    objects = [path for path in build.rglob("*.cpp.obj") if "client" in path.parts]
    print(f"{files} source files, {len(objects)} of them compiled, in {time.monotonic() - start:.0f} s")
    return 0 if len(objects) >= files > 0 else 1


if __name__ == "__main__":
    sys.exit(main())
