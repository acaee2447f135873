#!/usr/bin/env python3
"""The client's crash handler on Windows, played by Wine.

    crash_handler.py SOURCE_DIR
"""
import datetime
import pathlib
import re
import sys
import tempfile
import unittest

import winetools

ROOT = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".").resolve()
ACCESS_VIOLATION = 0xC0000005 & 0xFF  # what is left of the status
AE_DEBUG = r"HKLM\Software\Microsoft\Windows NT\CurrentVersion\AeDebug"
END_IN_SECONDS = 180  # a process that shows a dialog would stay; a busy machine takes its time


class CrashHandler(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.build = cls.enterClassContext(tempfile.TemporaryDirectory(prefix="orvane-crash-"))
        cls.program = pathlib.Path(cls.build) / "crashing_program.exe"
        winetools.compile_windows(
            cls.program,
            [ROOT / "tests/windows/crash/crashing_program.cpp", ROOT / "client/app/CrashDumpWriter.cpp",
             ROOT / "client/app/CrashDumpFile.cpp"],
            ["-I", str(ROOT / "client")])
        cls.wine = cls.enterClassContext(winetools.Wine())
        cls.users = cls.wine.folder / "data"
        cls.users.mkdir()

    def crash(self, folder):
        return self.wine.run(self.program, "crash", self.wine.windows_path(folder), seconds=END_IN_SECONDS)

    def assertEnded(self, result, folder):
        self.assertEqual(result.returncode, ACCESS_VIOLATION)
        self.assertEqual(result.stdout.splitlines(),
                         ["dump!!!!!", "dumpPath ---> " + self.wine.windows_path(folder)])

    def test_null_pointer_leaves_a_dump(self):
        for name in ("dump", "dump of 用户"):
            with self.subTest(name):
                folder = self.users / name
                before = datetime.datetime.now().replace(microsecond=0)
                result = self.crash(folder)
                after = datetime.datetime.now()
                self.assertEnded(result, folder)
                (dump,) = folder.iterdir()
                stamp = re.fullmatch(r"dump-(\d{8}-\d{6})\.dmp", dump.name)
                self.assertTrue(stamp, dump.name)
                time = datetime.datetime.strptime(stamp[1], "%Y%m%d-%H%M%S")
                self.assertTrue(before <= time <= after, f"{before} <= {time} <= {after}")
                content = dump.read_bytes()
                self.assertEqual(content[:4], b"MDMP")
                self.assertGreater(len(content), 1000)
                print(f"{dump.name}: {len(content)} bytes, begins with {content[:4].decode()}")

    def test_dump_that_cannot_be_created_still_ends_the_process(self):
        folder = self.users / "missing" / "dump"  # only the last folder is made
        self.assertEnded(self.crash(folder), folder)
        self.assertFalse(folder.parent.exists())

    def test_path_beyond_the_buffer_still_ends_the_process(self):
        folder = self.users / ("long/" * 300 + "dump")
        self.assertEnded(self.crash(folder), folder)

    def test_the_system_asks_nobody(self):
        """The system's own reaction, which is a dialog unless a debugger is named, does not come."""
        mark = self.wine.folder / "asked"
        program, target = self.wine.windows_path(self.program), self.wine.windows_path(mark)
        self.assertEqual(self.wine.run("reg", "add", AE_DEBUG, "/f", "/v", "Auto", "/d", "1").returncode, 0)
        self.assertEqual(self.wine.run("reg", "add", AE_DEBUG, "/f", "/v", "Debugger", "/d",
                                       f"{program} mark {target} %ld %ld").returncode, 0)
        self.wine.run(self.program, "unhandled", seconds=END_IN_SECONDS)
        self.assertTrue(mark.exists(), "without the handler the system reacts")
        mark.unlink()
        folder = self.users / "unasked"
        self.assertEnded(self.crash(folder), folder)
        self.assertEqual(len(list(folder.iterdir())), 1)
        self.assertFalse(mark.exists())


if __name__ == "__main__":
    winetools.require(winetools.COMPILER, "wine", "wineserver")
    unittest.main(argv=sys.argv[:1], verbosity=2)
