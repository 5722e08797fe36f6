#!/usr/bin/env python3
"""Plays a user of the installer in a fresh Wine: installs, upgrades while the meter runs, uninstalls.

    installer_test.py <folder of the release>

The prefix is that of WINEPREFIX, which is made anew.
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import zipfile

PREFIX = pathlib.Path(os.environ["WINEPREFIX"])
DRIVE = PREFIX / "drive_c"
SETTINGS = r"HKCU\Software\Korvane\Dravenlow\Settings"
RUN = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Run"
# What Wine writes while programs run, and the folder that the system empties.
OF_THE_SYSTEM = ("/Temp/", "/temp/", r"\Software\Wine" + "\\", r"\NetworkCards" + "\\")


def wine(*words):
    """What the program writes; None when it fails."""
    with tempfile.TemporaryFile() as output:  # a pipe would stay open in what Wine starts besides
        done = subprocess.run(["wine", *map(str, words)], stdout=output, stderr=output, timeout=60)
        output.seek(0)
        return output.read().decode("utf-8", "replace") if done.returncode == 0 else None


def value(key, name):
    text = wine("reg", "query", key, "/v", name)
    return text and text.strip().splitlines()[-1].split(None, 2)[2]


def wait_for(what, condition):
    end = time.monotonic() + 30
    while not (result := condition()):
        assert time.monotonic() < end, "waited in vain for " + what
        time.sleep(0.2)
    return result


def wait_for_scan():
    wine("reg", "delete", SETTINGS, "/v", "InfoMaxDL", "/f")
    wait_for("a scan", lambda: value(SETTINGS, "InfoMaxDL"))


def of_programs(names):
    return {name for name in names if not any(part in name for part in OF_THE_SYSTEM)}


def files():
    return of_programs(f"/{path.relative_to(DRIVE).as_posix()}/" for path in DRIVE.rglob("*"))


def registry():
    """Each value with its key before it."""
    lines = set()
    for root in ("HKCU", r"HKLM\Software"):
        path = PREFIX / "exported.reg"
        wine("reg", "export", root, f"Z:{path}", "/y")
        key = ""
        for line in path.read_text("utf-16").splitlines():
            key = line if line.startswith("[") else key
            lines.add(key + line)
        path.unlink()
    return of_programs(lines)


def rewrite(path, keep_time):
    """Writes something behind the file: as its user, or, with its time kept, as an older release."""
    stamp = path.stat().st_mtime_ns
    path.write_bytes(path.read_bytes() + b"\r\n; changed\r\n")
    if keep_time:
        os.utime(path, ns=(stamp, stamp))


class Installed:
    def __init__(self, setup):
        self.setup = setup
        self.folder = next(DRIVE.glob("users/*/AppData/Local")) / "Programs/Korvane Tremolux"

    def install(self, *words):
        assert wine(self.setup, "/S", *words) is not None, "the installer failed"

    def uninstall(self, *words):
        wine(self.folder / "uninstall.exe", "/S", *words)  # a copy of it does the work
        wait_for("the uninstaller", lambda: not (self.folder / "uninstall.exe").exists())
        subprocess.run(["wineserver", "--wait"], check=True, timeout=60)  # no meter runs any more

    def start(self):
        return subprocess.Popen(["wine", str(self.folder / "Tremolux.exe")])

    def bytes_of(self, name):
        return (self.folder / name).read_bytes()

    def left(self):
        return {path.relative_to(self.folder).as_posix() for path in self.folder.rglob("*")
                if path.is_file()}


def upgrade_while_it_runs(copy):
    shipped = {name: copy.bytes_of(name) for name in ("Tremolux.exe", "Languages/English.lng")}
    for name in shipped:
        rewrite(copy.folder / name, keep_time=True)
    rewrite(copy.folder / "Languages/German.lng", keep_time=False)
    for name in ("Languages/Own.lng", "WindowTitles.tit", "err.log"):
        (copy.folder / name).write_bytes(b"of the user")
    kept = {name: copy.bytes_of(name) for name in
            ("Languages/German.lng", "Languages/Own.lng", "WindowTitles.tit", "err.log")}

    meter = copy.start()
    wait_for("the first start", lambda: value(SETTINGS, "ExecuteTime"))
    wait_for_scan()
    copy.install()
    assert meter.wait(timeout=10) == 0, "the meter did not end as it should"
    wait_for_scan()  # it runs again
    for name, content in (shipped | kept).items():
        assert copy.bytes_of(name) == content, name
    return set(kept)


def names_in(archive):
    """The files of the zip, without the folder that all of them are in."""
    with zipfile.ZipFile(archive) as opened:
        return {name.split("/", 1)[1] for name in opened.namelist()}


def play(copy, shipped):
    files_before, registry_before = files(), registry()
    copy.install("/AUTOSTART=1")
    assert copy.left() == shipped | {"uninstall.exe"}, copy.left() ^ shipped
    program = value(RUN, "BrisantoXP")
    assert program.startswith("C:\\") and program.endswith(r"\Korvane Tremolux\Tremolux.exe"), program
    assert value(SETTINGS, "AutoStart") == "0x1"
    kept = upgrade_while_it_runs(copy)
    assert value(RUN, "BrisantoXP") == program, "an upgrade changed the start with Windows"

    copy.uninstall()
    assert copy.left() == kept
    assert value(SETTINGS, "ExecuteTime") == "0x2", "the settings are there, after two starts"
    assert not value(RUN, "BrisantoXP")

    (copy.folder / "Languages/Own.lng").unlink()  # what the user made is his to remove

    copy.install()
    assert value(RUN, "BrisantoXP") == program, "as it is in the settings"
    copy.uninstall("/REMOVESETTINGS")
    assert files() == files_before, files() ^ files_before
    assert registry() == registry_before, registry() ^ registry_before


def main():
    (setup,) = pathlib.Path(sys.argv[1]).glob("*-setup.exe")
    (archive,) = pathlib.Path(sys.argv[1]).glob("*.zip")
    shutil.rmtree(PREFIX, ignore_errors=True)
    try:
        wine("wineboot", "--init")
        wine("reg", "query", RUN)
        play(Installed(setup), names_in(archive))
    finally:
        subprocess.run(["wineserver", "--kill"], check=False)


if __name__ == "__main__":
    main()
