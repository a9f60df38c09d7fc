#!/usr/bin/env python3
"""Writes the default blocked-encodings file that ships beside the installation settings file
(res/sample-install/BlockEncodings.dat). At its start the add-in copies it into a user's data
folder that holds none, so that the encodings page has groups to offer. Run from anywhere:
python3 res/tools/make_block_encodings.py [--check]; --check only compares and exits 1 when the
file differs from what this script writes.

The file is what the add-in itself writes: UTF-8 with a byte-order mark, lines ended by a line
feed, the header line, the whole-list value (0) on line 2, then one line per group in plain
code-unit order of the names: the name, a tab, 0 (nothing blocked), and a tab before each
Windows code page identifier of the group."""

import os
import sys

HEADER = "; Written by ORVA v3.5 (c) 2005 Halvion"
VALUE = 0

# The groups a user is most likely to block: each script's Windows, OEM (DOS), Mac, ISO, EBCDIC,
# EUC and ISO-2022 code pages together, so that one tick covers every way mail in it arrives.
GROUPS = {
    "Arabic": [708, 720, 864, 1256, 10004, 28596],
    "Baltic": [775, 1257, 28594, 28603],
    "Central European": [852, 1250, 10029, 28592],
    "Chinese Simplified": [936, 20936, 50227, 52936, 54936],
    "Chinese Traditional": [950, 20000, 20002, 50229],
    "Cyrillic": [855, 866, 1251, 10007, 20866, 21866, 28595],
    "Greek": [737, 869, 1253, 10006, 20423, 28597],
    "Hebrew": [862, 1255, 10005, 20424, 28598, 38598],
    "Japanese": [932, 20290, 20932, 50220, 50221, 50222, 51932],
    "Korean": [949, 1361, 20833, 20949, 50225, 51949],
    "Thai": [874, 10021, 20838],
    "Turkish": [857, 1254, 10081, 20905, 28599],
    "Vietnamese": [1258],
}


def file_bytes():
    lines = [HEADER, str(VALUE)]
    for name in sorted(GROUPS, key=lambda n: n.encode("utf-16-le")):
        lines.append("\t".join([name, "0"] + [str(page) for page in GROUPS[name]]))
    return b"\xef\xbb\xbf" + "".join(line + "\n" for line in lines).encode("utf-8")


def main():
    path = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "sample-install",
                        "BlockEncodings.dat")
    wanted = file_bytes()
    if "--check" in sys.argv[1:]:
        with open(path, "rb") as shipped:
            if shipped.read() != wanted:
                print(f"{path} differs from what {sys.argv[0]} writes", file=sys.stderr)
                return 1
        return 0
    with open(path, "wb") as out:
        out.write(wanted)
    return 0


if __name__ == "__main__":
    sys.exit(main())
