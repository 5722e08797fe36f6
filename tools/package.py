#!/usr/bin/env python3
"""Makes a release of a program folder: a zip, an installer and SHA256SUMS.

Whatever machine and hour, the same program folder gives the same bytes: every file bears the time
of the commit. With TREMOLUX_CERTIFICATE, a PKCS #12 file, the program and the installer are signed;
its password is in TREMOLUX_CERTIFICATE_PASSWORD, and TREMOLUX_TIMESTAMP may name a time stamp server.
"""
import argparse
import hashlib
import os
import pathlib
import shlex
import shutil
import subprocess
import sys
import tempfile
import time
import zipfile

import make_icon

SOURCE = pathlib.Path(__file__).resolve().parents[1]
PRODUCT = "Korvane Tremolux"


def time_of_commit():
    """Seconds since 1970; SOURCE_DATE_EPOCH where there is no repository."""
    given = os.environ.get("SOURCE_DATE_EPOCH")
    return int(given or subprocess.check_output(
        ["git", "-C", SOURCE, "log", "-1", "--format=%ct"]))


def sign(path):
    certificate = os.environ.get("TREMOLUX_CERTIFICATE")
    if not certificate:
        return
    command = ["osslsigncode", "sign", "-pkcs12", certificate, "-h", "sha256", "-n", PRODUCT]
    server = os.environ.get("TREMOLUX_TIMESTAMP")
    if server:
        command += ["-ts", server]
    signed = path.with_name(path.name + ".signed")
    with tempfile.NamedTemporaryFile("w") as password:  # a command line can be read by others
        password.write(os.environ.get("TREMOLUX_CERTIFICATE_PASSWORD", ""))
        password.flush()
        subprocess.check_call(
            command + ["-readpass", password.name, "-in", path, "-out", signed])
    signed.replace(path)


def names_of(folder):
    """The names of its files, in an order that no file system decides."""
    return sorted(path.relative_to(folder).as_posix() for path in folder.rglob("*")
                  if path.is_file())


def list_for_installer(names):
    """All but the program, which the installer treats by itself."""
    def call(macro, *words):
        return f"  !insertmacro ${{{macro}}} " + " ".join(f'"{word}"' for word in words)

    def windows(folder):
        return "" if folder == pathlib.PurePath(".") else "\\" + str(folder).replace("/", "\\")

    files = [pathlib.PurePath(name) for name in names if name != "Tremolux.exe"]
    folders = sorted({windows(file.parent) for file in files} - {""}, reverse=True)
    return "\n".join(
        ["!macro ShippedFiles DO", *(call("DO", windows(f.parent), f.name) for f in files),
         "!macroend", "!macro ShippedFolders DO", *(call("DO", f) for f in folders),
         "!macroend", ""])


def make_installer(folder, version, date, path):
    with tempfile.TemporaryDirectory() as work:
        files = pathlib.Path(work) / "files.nsh"
        files.write_text(list_for_installer(names_of(folder)), encoding="utf-8")
        banner = pathlib.Path(work) / "banner.bmp"
        banner.write_bytes(make_icon.banner(164, 314))
        os.utime(banner, (date, date))
        defines = {"VERSION": version, "FOLDER": folder, "FILES": files, "BANNER": banner,
                   "OUTPUT": path}
        if os.environ.get("TREMOLUX_CERTIFICATE"):
            defines["SIGN"] = shlex.join([sys.executable, str(SOURCE / "tools/package.py"), "--sign"])
        subprocess.check_call(
            ["makensis", "-V2", "-WX", "-INPUTCHARSET", "UTF8",
             *(f"-D{name}={value}" for name, value in defines.items()),
             SOURCE / "assets/installer/tremolux.nsi"])
    sign(path)


def make_zip(folder, date, path):
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
        for name in names_of(folder):
            entry = zipfile.ZipInfo(f"{PRODUCT}/{name}", time.gmtime(date)[:6])
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.external_attr = 0o644 << 16
            archive.writestr(entry, (folder / name).read_bytes())


def make_release(program, version, output):
    date = time_of_commit()
    shutil.rmtree(output, ignore_errors=True)
    output.mkdir(parents=True)
    with tempfile.TemporaryDirectory() as work:
        folder = pathlib.Path(work) / "program"
        shutil.copytree(program, folder)
        sign(folder / "Tremolux.exe")
        for name in names_of(folder):
            os.utime(folder / name, (date, date))
        stem = f"{PRODUCT.replace(' ', '')}-{version}"
        make_installer(folder, version, date, output / f"{stem}-setup.exe")
        make_zip(folder, date, output / f"{stem}.zip")
    sums = [f"{hashlib.sha256((output / name).read_bytes()).hexdigest()}  {name}\n"
            for name in names_of(output)]
    (output / "SHA256SUMS").write_text("".join(sums))


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--sign", type=pathlib.Path, help="only signs this file")
    parser.add_argument("--program", type=pathlib.Path, help="a fresh program folder")
    parser.add_argument("--version")
    parser.add_argument("--output", type=pathlib.Path, help="is emptied first")
    given = parser.parse_args()
    if given.sign:
        sign(given.sign)
    else:
        make_release(given.program, given.version, given.output.resolve())


if __name__ == "__main__":
    main()
