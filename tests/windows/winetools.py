"""What the Windows checks share: the tools they need, and Wine with a prefix of its own."""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

SKIPPED = 77  # CTest shows a test that ends with this as skipped

COMPILER = "x86_64-w64-mingw32-g++-posix"
PACKAGES = {
    COMPILER: "g++-mingw-w64-x86-64-posix",
    "wine": "wine wine64",
    "wineserver": "wine wine64",
    "makensis": "nsis",
}


def require(*tools):
    """Ends this check as skipped, saying what is missing, unless all the tools are there."""
    missing = [tool for tool in tools if not shutil.which(tool)]
    if missing:
        packages = sorted({word for tool in missing for word in PACKAGES[tool].split()})
        print(f"SKIPPED: {', '.join(missing)} not found; on Debian: apt-get install {' '.join(packages)}")
        sys.exit(SKIPPED)


def compile_windows(output, sources, options=()):
    """Makes a program that needs nothing but what Windows itself has."""
    subprocess.run(
        [COMPILER, "-std=c++17", "-Wall", "-Wextra", "-Werror", "-O1", "-static", "-municode", "-DUNICODE",
         "-D_UNICODE", "-DNOMINMAX", "-D_WIN32_WINNT=0x0601", *options, *map(str, sources), "-ldbghelp", "-o",
         str(output)],
        check=True)


def wait_until(condition, seconds, what):
    """Waits until the condition holds; fails after so many seconds."""
    end = time.monotonic() + seconds
    while not condition():
        if time.monotonic() > end:
            raise AssertionError(f"waited {seconds} s in vain: {what}")
        time.sleep(0.05)


class Wine:
    """A Windows of its own, without a display, in a temporary folder that goes with it."""

    def __enter__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="orvane-wine-"))
        self.prefix = self.folder / "prefix"
        # Nothing of the machine's own Wine is touched. Without the named libraries a fresh prefix takes 3 s and
        # offers no downloads; without winedbg.exe a crash is not described at length; without winemenubuilder.exe the
        # machine's own menus stay as they are.
        self.environment = {
            **{name: value for name, value in os.environ.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY")},
            "HOME": str(self.folder), "LANG": "C.UTF-8", "LC_ALL": "C.UTF-8",
            "WINEPREFIX": str(self.prefix), "WINEARCH": "win64", "WINEDEBUG": "-all",
            "WINEDLLOVERRIDES": "mscoree,mshtml=;winedbg.exe,winemenubuilder.exe=d",
        }
        try:
            self.run("wineboot", "--init", seconds=300)
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        subprocess.run(["wineserver", "-k"], env=self.environment, timeout=60, check=False,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        shutil.rmtree(self.folder, ignore_errors=True)

    def start(self, *command):
        """Starts a Windows program; its output is to be read."""
        return subprocess.Popen(["wine", *map(str, command)], env=self.environment, cwd=self.folder,
                                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)

    def run(self, *command, seconds=180):
        """Runs a Windows program to its end. The result's returncode is what a Unix shell sees: the low byte."""
        with self.start(*command) as process:
            try:
                output, _ = process.communicate(timeout=seconds)
            except subprocess.TimeoutExpired:
                process.kill()
                raise
        return subprocess.CompletedProcess(command, process.returncode, output.decode("utf-8", "replace"))

    def path(self, windows_path):
        """The file behind a path such as C:\\users."""
        drive, rest = windows_path[0].lower(), windows_path[3:].replace("\\", "/")
        return self.prefix / "dosdevices" / f"{drive}:" / rest

    def windows_path(self, path):
        return "Z:" + str(path).replace("/", "\\")

    def registry(self, key):
        """The texts and numbers directly in a key such as HKCU\\Software\\Orvane; None if there is no such key."""
        result = self.run("reg", "query", key)
        if result.returncode != 0:
            return None
        values = {}
        for line in result.stdout.splitlines():
            parts = line.strip().split("    ", 2)
            if len(parts) >= 2 and parts[1] in ("REG_SZ", "REG_EXPAND_SZ"):
                values[parts[0]] = parts[2] if len(parts) > 2 else ""
            elif len(parts) == 3 and parts[1] == "REG_DWORD":
                values[parts[0]] = int(parts[2], 16)
        return values
