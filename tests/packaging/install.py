"""Installs the program into a folder and looks at everything that lies there then.

    install.py BUILD MODULES PICTURES

BUILD is the build folder, MODULES the folder of the modules below the prefix, PICTURES where the pictures
for software catalogues lie.
"""

import configparser
import glob
import os
import re
import struct
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

SIZES = [16, 22, 24, 32, 48, 64, 128, 256, 512]


class Failure(Exception):
    pass


def clean(*command, environment=None):
    """Runs a checker, which has to pass without a word of complaint."""
    done = subprocess.run(command, env=dict(os.environ, **(environment or {})), text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    if done.returncode != 0 or re.search(r"(?i)\b(hint|warning|error)\b", done.stdout):
        raise Failure(f"{' '.join(command)}: {done.stdout}")


def expect(what, seen, wanted):
    if seen != wanted:
        raise Failure(f"{what}: {seen!r} instead of {wanted!r}")


def png_size(path):
    with open(path, "rb") as file:
        head = file.read(24)
    expect(f"the head of {path}", head[:8], b"\x89PNG\r\n\x1a\n")
    return struct.unpack(">II", head[16:24])


def look_at_screenshots(metainfo, pictures):
    """What a catalogue is told of each picture holds for the file of that name."""
    images = xml.etree.ElementTree.parse(metainfo).findall(".//screenshot/image")
    if not images:
        raise Failure("the metadata name no screenshot")
    for image in images:
        name = image.text.rsplit("/", 1)[-1]
        expect(f"the size of {name}", (int(image.get("width")), int(image.get("height"))),
               png_size(os.path.join(pictures, name)))


def look(prefix, modules, pictures):
    share = os.path.join(prefix, "share")
    wanted = {"games/tarnival", f"{modules}/tarnival-sounds.so", f"{modules}/tarnival-charts.so",
              "share/applications/tarnival.desktop",
              "share/metainfo/org.kelmor.Tarnival.metainfo.xml", "share/man/man6/tarnival.6.gz",
              "share/doc/tarnival/copyright", "share/doc/tarnival/changelog.gz",
              "share/icons/hicolor/scalable/apps/tarnival.svg"}
    wanted |= {f"share/icons/hicolor/{size}x{size}/apps/tarnival.png" for size in SIZES}
    seen = {os.path.relpath(path, prefix) for path in glob.glob(f"{prefix}/**", recursive=True)
            if os.path.isfile(path)}
    expect("what was installed", sorted(seen), sorted(wanted))
    for size in SIZES:
        expect("the size of an icon", png_size(f"{share}/icons/hicolor/{size}x{size}/apps/tarnival.png"),
               (size, size))

    entry = f"{share}/applications/tarnival.desktop"
    clean("desktop-file-validate", entry)
    menu = configparser.ConfigParser(interpolation=None)
    menu.read(entry)
    program = menu["Desktop Entry"]["Exec"]
    expect("the program of the menu entry", program, f"{prefix}/games/tarnival")
    if not os.access(program, os.X_OK):
        raise Failure(f"{program} cannot be run")

    clean("appstreamcli", "validate", "--no-net", "--no-color",
          f"{share}/metainfo/org.kelmor.Tarnival.metainfo.xml")
    look_at_screenshots(f"{share}/metainfo/org.kelmor.Tarnival.metainfo.xml", pictures)
    # The tree as a whole: the entry and the icon that the metadata name are there.
    clean("appstreamcli", "validate-tree", "--no-net", "--no-color", prefix)
    clean("man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z", f"{share}/man/man6/tarnival.6.gz",
          environment={"MANWIDTH": "80", "MANROFFSEQ": ""})


def main():
    build, modules, pictures = sys.argv[1:]
    # The path goes into the menu entry, where a link to it would not be found again.
    with tempfile.TemporaryDirectory() as folder:
        prefix = os.path.join(os.path.realpath(folder), "usr")
        try:
            clean("cmake", "--install", build, "--prefix", prefix)
            look(prefix, modules, pictures)
        except Failure as failure:
            print(f"install.py: {failure}", file=sys.stderr)
            return 1
    print("install.py: all in its place")
    return 0


if __name__ == "__main__":
    sys.exit(main())
