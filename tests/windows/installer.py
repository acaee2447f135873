#!/usr/bin/env python3
"""The Windows installer: made by tools/release, and run under Wine. What it does is read from the files and the
registry, never from exit codes.

    installer.py SOURCE_DIR
"""
import base64
import contextlib
import hashlib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

import winetools

ROOT = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".").resolve()
GUID = "{0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F0}"
UNINSTALL = rf"Software\Microsoft\Windows\CurrentVersion\Uninstall\{GUID}"
FOR_USER, FOR_ALL = "HKCU\\" + UNINSTALL, "HKLM\\" + UNINSTALL
SECONDS = 180
FIRST_SECONDS = 60
PREFIXES = 3
SIGNATURE = "signed by the test"

# What each version consists of, besides orvane.exe; folders and names as real ones may be.
FILES = {
    "1.2.5": {"res/html/orvane/index.html": "page 1", "res/translations/orvane/zh_CN.qm": "texts",
              "plugins/old plugin/only in 1.2.5.dll": "gone later", "licences/$a {b} 用户.txt": "licence"},
    "1.3.0": {"res/html/orvane/index.html": "page 2", "res/translations/orvane/zh_CN.qm": "texts",
              "plugins/new plugin.dll": "new"},
}


def files_below(folder):
    return {path.relative_to(folder).as_posix() for path in folder.rglob("*") if path.is_file()}


class Installer(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.work = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory(prefix="orvane-installer-")))
        cls.client = cls.work / "orvane.exe"
        winetools.compile_windows(cls.client, [ROOT / "tests/windows/installer/stand_in_client.cpp"])
        cls.setup = {version: cls.release(version) for version in FILES}
        cls.wine = cls.wine_that_installs()
        (user,) = [path for path in (cls.wine.prefix / "drive_c/users").iterdir() if path.name != "Public"]
        cls.user = user
        cls.per_user = user / "AppData/Local/Programs/Orvane"
        cls.for_all = cls.wine.prefix / "drive_c/Program Files/Orvane"

    @classmethod
    def wine_that_installs(cls):
        """Once in many times a fresh prefix of Wine runs programs, but no installer gets to its end in it. Such a one
        is left for another; an installer that is broken fails in all of them."""
        for _ in range(PREFIXES):
            with contextlib.ExitStack() as stack:
                wine = stack.enter_context(winetools.Wine())
                result = cls.run_line_in(wine, f'"{wine.windows_path(cls.setup["1.2.5"])}" /S /currentuser')
                try:
                    winetools.wait_until(lambda: (wine.registry(FOR_USER) or {}).get("NoRepair") == 1, FIRST_SECONDS,
                                         "the first installation is registered")
                except AssertionError as error:
                    print(f"{error}: the installer returned {result.returncode} and said {result.stdout!r}; "
                          f"registered: {wine.registry(FOR_USER)}, below drive C: "
                          f"{sorted(path.name for path in (wine.prefix / 'drive_c').iterdir())}")
                    continue
                cls.uninstall_from(wine, FOR_USER)
                cls.addClassCleanup(stack.pop_all().close)
                return wine
        raise AssertionError("the installer gets to its end in no Wine")

    @classmethod
    def release(cls, version):
        payload, build = cls.work / f"payload {version}", cls.work / f"build-{version}"
        # A "signature" at the end, as real ones are.
        sign = cls.work / "sign it"
        sign.write_text(f'#!/bin/sh\nprintf "{SIGNATURE}" >>"$1"\n')
        sign.chmod(0o755)
        for name, text in FILES[version].items():
            path = payload / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
        shutil.copy(cls.client, payload / "orvane.exe")
        build.mkdir()
        (build / "CMakeCache.txt").write_text(
            f"CMAKE_PROJECT_VERSION:STATIC={version}\nORVANE_UNINSTALL_GUID:STRING={GUID}\n")
        output = cls.work / f"releases/{version}"
        result = subprocess.run(
            [ROOT / "tools/release", "--payload", payload, "--build", build, "--output", output],
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False,
            env={**os.environ, "SIGN_COMMAND": str(sign)})
        print(result.stdout, end="")
        if result.returncode != 0:
            raise AssertionError("tools/release failed")
        return output / f"Orvane_Setup_{version}.exe"

    def tearDown(self):
        for key in (FOR_USER, FOR_ALL):
            values = self.wine.registry(key)
            if values:
                self.uninstall(key)
        self.assertEqual(self.shortcuts(), set())

    # Runs an installer and waits until it is registered with that version. The arguments come as one text, since a
    # folder's name is not quoted.
    def install(self, version, arguments="", *, key):
        self.run_line(f'"{self.wine.windows_path(self.setup[version])}" /S {arguments}')
        winetools.wait_until(lambda: (self.wine.registry(key) or {}).get("NoRepair") == 1 and
                             self.wine.registry(key)["DisplayVersion"] == version, SECONDS, f"{key} is registered")
        values = self.wine.registry(key)
        self.assertEqual(values["DisplayVersion"], version)
        return values

    def run_line(self, line):
        self.run_line_in(self.wine, line)

    # Runs a command line exactly as it is.
    @staticmethod
    def run_line_in(wine, line):
        batch = wine.folder / "line.bat"
        batch.write_bytes(line.encode() + b"\r\n")
        return wine.run("cmd", "/c", wine.windows_path(batch), seconds=SECONDS)

    def uninstall(self, key):
        self.uninstall_from(self.wine, key)

    # An uninstaller goes on in a copy of itself, so its end is what it leaves.
    @classmethod
    def uninstall_from(cls, wine, key):
        values = wine.registry(key)
        folder = wine.path(values["InstallLocation"])
        cls.run_line_in(wine, values["QuietUninstallString"])
        winetools.wait_until(lambda: wine.registry(key) is None, SECONDS, f"{key} goes")
        winetools.wait_until(lambda: not (folder / "Uninstall.exe").exists(), SECONDS, "the uninstaller goes")

    def shortcuts(self):
        return {path.relative_to(self.wine.folder).as_posix() for path in self.wine.folder.rglob("Orvane.lnk")}

    def shared_shortcuts(self):
        return {path for path in self.shortcuts() if "/Public/" in path or "/ProgramData/" in path}

    def assertInstalled(self, folder, version, others=()):
        self.assertEqual(files_below(folder), {"orvane.exe", "Uninstall.exe", *FILES[version], *others})
        self.assertEqual((folder / "orvane.exe").read_bytes(), self.client.read_bytes())
        for name, text in FILES[version].items():
            self.assertEqual((folder / name).read_text(), text)

    def test_release_describes_its_installer(self):
        setup = self.setup["1.2.5"]
        content = setup.read_bytes()
        self.assertTrue(content.endswith(SIGNATURE.encode()))
        digest = base64.b64encode(hashlib.sha512(content).digest()).decode()
        by_openssl = subprocess.run(f'openssl dgst -sha512 -binary "{setup}" | base64 -w0', shell=True, check=True,
                                    stdout=subprocess.PIPE, text=True).stdout
        self.assertEqual(by_openssl, digest)
        lines = (setup.parent / "latest.yml").read_text().splitlines()
        self.assertEqual(lines[:-1], [
            "version: 1.2.5", "files:", "  - url: Orvane_Setup_1.2.5.exe", f"    sha512: {digest}",
            f"    size: {len(content)}", "path: Orvane_Setup_1.2.5.exe", f"sha512: {digest}"])
        self.assertRegex(lines[-1], r"^releaseDate: '\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.000Z'$")

    def test_release_refuses_what_is_no_client(self):
        result = subprocess.run([ROOT / "tools/release", "--payload", self.work / "releases"], check=False,
                                stderr=subprocess.PIPE, text=True)
        self.assertEqual(result.returncode, 1)
        self.assertIn("holds no orvane.exe", result.stderr)

    def test_for_this_user(self):
        values = self.install("1.2.5", "/currentuser", key=FOR_USER)
        print(f"{FOR_USER}: {values}")
        self.assertTrue((self.per_user / "Uninstall.exe").read_bytes().endswith(SIGNATURE.encode()))
        self.assertInstalled(self.per_user, "1.2.5")
        self.assertIsNone(self.wine.registry(FOR_ALL))
        folder = values["InstallLocation"]
        self.assertEqual(self.wine.path(folder).resolve(), self.per_user.resolve())
        self.assertEqual(values["DisplayName"], "Orvane")
        self.assertEqual(values["DisplayIcon"], folder + r"\orvane.exe")
        self.assertEqual(values["UninstallString"], f'"{folder}\\Uninstall.exe" /currentuser')
        self.assertEqual(values["QuietUninstallString"], f'"{folder}\\Uninstall.exe" /currentuser /S')
        self.assertEqual((values["NoModify"], values["NoRepair"]), (1, 1))
        self.assertGreater(values["EstimatedSize"], 0)
        self.assertEqual(len(self.shortcuts()), 2)
        self.assertEqual(self.shared_shortcuts(), set())

        self.uninstall(FOR_USER)
        winetools.wait_until(lambda: not self.per_user.exists(), SECONDS, "the folder goes")
        self.assertEqual(self.shortcuts(), set())

    def test_for_everybody(self):
        values = self.install("1.2.5", "/allusers", key=FOR_ALL)
        self.assertInstalled(self.for_all, "1.2.5")
        self.assertIsNone(self.wine.registry(FOR_USER))
        self.assertEqual(values["InstallLocation"], r"C:\Program Files\Orvane")
        self.assertEqual(values["QuietUninstallString"], r'"C:\Program Files\Orvane\Uninstall.exe" /allusers /S')
        self.assertEqual(len(self.shortcuts()), 2)
        self.assertEqual(len(self.shared_shortcuts()), 2)

        self.uninstall(FOR_ALL)
        winetools.wait_until(lambda: not self.for_all.exists(), SECONDS, "the folder goes")

    def test_clean_up_by_the_client(self):
        """The client for everybody removes the one for this user, as its start-up does."""
        self.install("1.2.5", "/currentuser", key=FOR_USER)
        self.install("1.2.5", "/allusers", key=FOR_ALL)
        value = self.wine.registry(FOR_USER)["QuietUninstallString"]
        # Qt takes the value as the program's name: it turns its slashes round and adds the arguments.
        self.run_line(value.replace("/", "\\") + " /currentuser /S")
        winetools.wait_until(lambda: self.wine.registry(FOR_USER) is None, SECONDS, f"{FOR_USER} goes")
        winetools.wait_until(lambda: not self.per_user.exists(), SECONDS, "the folder goes")
        self.assertInstalled(self.for_all, "1.2.5")
        self.assertIsNotNone(self.wine.registry(FOR_ALL))

    def test_update_stays_where_the_version_before_is(self):
        folder = self.wine.prefix / "drive_c/My Programs/Cloud Phone"
        self.install("1.2.5", r"/currentuser /D=C:\My Programs\Cloud Phone", key=FOR_USER)
        self.assertInstalled(folder, "1.2.5")
        (folder / "notes.txt").write_text("the user's own")
        desktop = next(path for path in self.wine.folder.rglob("Orvane.lnk") if "Start Menu" not in str(path))
        desktop.unlink()

        values = self.install("1.3.0", key=FOR_USER)
        self.assertEqual(values["InstallLocation"], r"C:\My Programs\Cloud Phone")
        self.assertInstalled(folder, "1.3.0", others=["notes.txt"])
        self.assertIsNone(self.wine.registry(FOR_ALL))
        self.assertFalse(desktop.exists(), "a shortcut that the user removed does not come back")
        self.assertEqual(len(self.shortcuts()), 1)

        self.uninstall(FOR_USER)
        self.assertEqual(files_below(folder), {"notes.txt"})

    def test_another_folder_replaces_the_first(self):
        self.install("1.2.5", "/currentuser", key=FOR_USER)
        self.install("1.3.0", r"/currentuser /D=C:\Elsewhere", key=FOR_USER)
        self.assertInstalled(self.wine.prefix / "drive_c/Elsewhere", "1.3.0")
        self.assertFalse(self.per_user.exists())

    def test_user_data_is_left_alone(self):
        data = self.user / "AppData/Roaming/orvane/log/2026-01-01.log"
        data.parent.mkdir(parents=True, exist_ok=True)
        data.write_text("kept")
        self.install("1.2.5", "/currentuser", key=FOR_USER)
        self.uninstall(FOR_USER)
        self.assertEqual(data.read_text(), "kept")

    def test_update_waits_for_the_client_to_end(self):
        self.install("1.2.5", "/currentuser", key=FOR_USER)
        end, index = self.wine.folder / "end", self.per_user / "res/html/orvane/index.html"
        folder = self.wine.registry(FOR_USER)["InstallLocation"]
        client = self.wine.start(folder + r"\orvane.exe", "wait", self.wine.windows_path(end))
        self.addCleanup(client.communicate)
        self.addCleanup(end.touch)
        winetools.wait_until((self.wine.folder / "end.started").exists, SECONDS, "the client starts")
        setup = self.wine.start(self.wine.windows_path(self.setup["1.3.0"]), "/S")
        # Its plug-ins are there: it has begun. Nothing has changed by the time another program has come and gone.
        winetools.wait_until(lambda: list((self.user / "Temp").glob("ns*.tmp")), SECONDS, "the installer starts")
        self.wine.run("cmd", "/c", "exit")
        self.assertIsNone(client.poll())
        self.assertIsNone(setup.poll())
        self.assertEqual(index.read_text(), "page 1")
        end.touch()
        setup.communicate(timeout=SECONDS)
        self.assertInstalled(self.per_user, "1.3.0")


if __name__ == "__main__":
    winetools.require("makensis", "wine", "wineserver", winetools.COMPILER)
    unittest.main(argv=sys.argv[:1], verbosity=2)
