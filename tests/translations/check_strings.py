#!/usr/bin/env python3
"""Checks the strings resource (resources/translations/orrery_*.ts) against itself and
against the window code that looks texts up in it:

  - every file: no duplicate or empty id, no empty or unfinished translation, no text
    equal to its id (text() could not tell it from a missing key), and the %1, %2 ...
    of a translation agree with its source;
  - every text("key"), textWith("key", ...) and qtTrId("key") in the window code, and
    every literal of the menu and control key families (keys travel through tables),
    names a key of orrery_en.ts; textWith() only a key whose text takes an argument;
  - every other orrery_<lang>.ts translates every English key with the same arguments.

usage: check_strings.py TRANSLATIONS_FOLDER SOURCE_FOLDER
Faults are printed as "file:line: what is wrong"; the exit status is 1 when there are any.
"""

import os
import re
import sys
import xml.etree.ElementTree as ElementTree

ARGUMENT = re.compile(r"%L?([1-9][0-9]?)")
LOOKUP = re.compile(r'\b(text|textWith|qtTrId)\s*\(\s*"([^"\\\n]*)"')
KEY_LITERAL = re.compile(
    r'"((?:makeMenu|controlPreferences|controlIntroduction|controlAccessory|'
    r'introductionDescript)[A-Za-z0-9]*)"')


def arguments(text):
    return sorted(set(ARGUMENT.findall(text or "")))


def read_ts(path, errors):
    """The live messages of a TS file as {key: translation}."""
    texts = {}
    for message in ElementTree.parse(path).getroot().iter("message"):
        key = message.get("id", "")
        translation = message.find("translation")
        if translation is not None and translation.get("type") in ("obsolete", "vanished"):
            continue
        text = translation.text if translation is not None else None
        source = message.findtext("source")
        where = f"{path}: \"{key}\""
        if not key:
            errors.append(f"{path}: a message without an id")
        elif key in texts:
            errors.append(f"{where} appears twice")
        elif not (text or "").strip() or translation.get("type") == "unfinished":
            errors.append(f"{where} has no finished translation")
        elif text == key:
            errors.append(f"{where}: the text equals the id, which reads as a missing key")
        elif source and arguments(source) != arguments(text):
            errors.append(f"{where}: the text takes {arguments(text)}, its source "
                          f"{arguments(source)}")
        texts.setdefault(key, text)
    return texts


def code_lines(path):
    """Each line of code with its number; comment lines are left out."""
    with open(path, encoding="utf-8", errors="replace") as f:
        for number, line in enumerate(f, 1):
            if not line.lstrip().startswith(("//", "*")):
                yield number, line


def check_sources(folder, english, errors):
    for root, _, files in os.walk(folder):
        for name in sorted(files):
            if not name.endswith((".cpp", ".h")):
                continue
            path = os.path.join(root, name)
            for number, line in code_lines(path):
                where = f"{path}:{number}"
                for function, key in LOOKUP.findall(line):
                    if key not in english:
                        errors.append(f"{where}: {function}(\"{key}\"): no such key")
                    elif function == "textWith" and not arguments(english[key]):
                        errors.append(f"{where}: textWith(\"{key}\"): its text takes no %1")
                for key in KEY_LITERAL.findall(line):
                    if key not in english:
                        errors.append(f"{where}: \"{key}\": no such key")


def main(translations, sources):
    errors = []
    english = read_ts(os.path.join(translations, "orrery_en.ts"), errors)
    for name in sorted(os.listdir(translations)):
        if name.startswith("orrery_") and name.endswith(".ts") and name != "orrery_en.ts":
            path = os.path.join(translations, name)
            theirs = read_ts(path, errors)
            for key, text in english.items():
                if key not in theirs:
                    errors.append(f"{path}: \"{key}\" is not translated")
                elif arguments(theirs[key]) != arguments(text):
                    errors.append(f"{path}: \"{key}\" takes {arguments(theirs[key])}, the "
                                  f"English text {arguments(text)}")
    if os.path.isdir(sources):
        check_sources(sources, english, errors)
    for error in errors:
        print(error)
    print(f"{len(errors)} fault(s) in the strings resource" if errors
          else f"strings resource OK: {len(english)} keys")
    return 1 if errors else 0


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1], sys.argv[2]))
