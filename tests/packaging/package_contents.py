#!/usr/bin/env python3
"""What the Debian package holds and needs.

    package_contents.py SOURCE_DIR BUILD_DIR
"""
import pathlib
import re
import shutil
import stat
import subprocess
import sys
import tempfile
import unittest

SKIPPED = 77
TOOLS = {"cpack": "cmake", "dpkg-deb": "dpkg", "dpkg-shlibdeps": "dpkg-dev", "file": "file"}
SOURCE, BUILD = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])


class PackageContents(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        work = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory(prefix="orvane-package-")))
        result = subprocess.run(["cpack", "-G", "DEB", "--config", BUILD / "CPackConfig.cmake", "-B", work],
                                stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
        if result.returncode != 0:
            raise AssertionError(result.stdout)
        (cls.package,) = work.glob("*.deb")
        cls.root = work / "root"
        subprocess.run(["dpkg-deb", "-x", cls.package, cls.root], check=True)
        cls.files = {path.relative_to(cls.root).as_posix() for path in cls.root.rglob("*") if not path.is_dir()}

    def field(self, name):
        return subprocess.run(["dpkg-deb", "-f", self.package, name], check=True, stdout=subprocess.PIPE,
                              text=True).stdout.strip()

    def test_name_and_version(self):
        version = re.search(r"project\(Orvane VERSION (\S+)", (SOURCE / "CMakeLists.txt").read_text())[1]
        self.assertEqual(self.field("Package"), "orvane")
        self.assertEqual(self.field("Version"), version)
        self.assertRegex(self.package.name, rf"^orvane_{re.escape(version)}_\w+\.deb$")

    def test_needs_what_it_is_linked_with(self):
        needed = {re.match(r"\S+", name)[0] for name in self.field("Depends").split(", ")}
        self.assertLessEqual({"libqt5core5a", "libqt5webenginewidgets5", "libqt5svg5", "libstdc++6"}, needed)
        for library in ("libavcodec", "libprotobuf-lite", "libssl"):
            self.assertTrue([name for name in needed if name.startswith(library)], library)
        # What the service and the tests need.
        for library in ("libsqlite3", "libx264", "libqt5test5"):
            self.assertFalse([name for name in needed if name.startswith(library)], library)

    def test_client_with_page_translations_and_licences(self):
        folder = "usr/lib/orvane/"
        languages = {path.stem for path in (SOURCE / "client/res/translations").glob("*.ts")}
        translations = folder + "res/translations/orvane/"
        self.assertEqual({name for name in self.files if name.startswith(translations)},
                         {f"{translations}{language}.qm" for language in languages})
        page = {path.relative_to(BUILD / "bin").as_posix() for path in (BUILD / "bin/res/html").rglob("*")
                if path.is_file() and path.name != "licences.txt"}
        self.assertIn("res/html/orvane/index.html", page)
        self.assertEqual({name for name in self.files if name.startswith(folder + "res/html")},
                         {folder + name for name in page})
        self.assertEqual({name for name in self.files if not name.startswith(folder + "res/")}, {
            folder + "orvane", "usr/bin/orvane", "usr/share/applications/orvane.desktop",
            "usr/share/icons/hicolor/scalable/apps/orvane.svg", "usr/share/man/man1/orvane.1.gz",
            "usr/share/doc/orvane/copyright", "usr/share/doc/orvane/frontend-licences.txt"})
        self.assertEqual((self.root / "usr/bin/orvane").readlink(), pathlib.Path("../lib/orvane/orvane"))

    def test_desktop_entry_fits(self):
        entry = (self.root / "usr/share/applications/orvane.desktop").read_text()
        self.assertIn("\nExec=orvane\n", entry)
        self.assertIn("\nIcon=orvane\n", entry)

    def test_notices_of_the_page_s_libraries(self):
        notices = (self.root / "usr/share/doc/orvane/frontend-licences.txt").read_text()
        for library in ("vue ", "vue-router ", "jmuxer ", "@bufbuild/protobuf "):
            self.assertRegex(notices, rf"(?m)^{library}\d")
        self.assertNotIn("vitest", notices)

    def test_nobody_else_may_write(self):
        for path in self.root.rglob("*"):
            if not path.is_symlink():
                mode = path.stat().st_mode
                self.assertFalse(mode & (stat.S_IWGRP | stat.S_IWOTH | stat.S_ISUID | stat.S_ISGID), path)
                self.assertTrue(mode & stat.S_IROTH, path)


if __name__ == "__main__":
    absent = [tool for tool in TOOLS if not shutil.which(tool)]
    if absent:
        print(f"SKIPPED: {', '.join(absent)} not found; on Debian: apt-get install "
              + " ".join(TOOLS[tool] for tool in absent))
        sys.exit(SKIPPED)
    unittest.main(argv=sys.argv[:1], verbosity=2)
