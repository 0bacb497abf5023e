#!/usr/bin/env python3
"""Checks the strings resource (resources/translations/orrery_*.ts) against itself and
against the window code that looks texts up in it.

  (a) every TS file: no duplicate id, no message without an id, no empty or unfinished
      translation, no translation equal to its id (the window's text() could not tell
      it from a missing key), and the %1, %2 ... arguments of a text agree with its
      source and with the English text;
  (b) every text("key"), textWith("key", ...), qtTrId("key") and QT_TRID_NOOP("key")
      in the *.cpp and *.h files under the source folders names a key of orrery_en.ts,
      and textWith() is only used with a key whose text takes an argument; so does
      every literal of the menu and control key families ("makeMenu...", "controlPreferences...",
      ...), wherever it stands, since tables of keys are not calls;
  (c) every other orrery_<lang>.ts translates every key of the English file.

Standard library only. Exit status 0 when all is well, 1 when a fault was found, 2 on
bad usage. Faults are printed as "file:line: what is wrong", one a line.
"""

import argparse
import bisect
import os
import re
import sys
import xml.parsers.expat
from dataclasses import dataclass, field

ENGLISH = "en"
SOURCE_SUFFIXES = (".cpp", ".h")
# QString::arg() markers: %1 to %99, optionally localised (%L1).
ARGUMENT = re.compile(r"%L?([1-9][0-9]?)")


@dataclass
class Message:
    key: str
    line: int
    source: str = ""
    translation: str = ""
    kind: str = ""  # the translation's type attribute: "", "unfinished", "obsolete", "vanished"


@dataclass
class TsFile:
    path: str
    language: str = ""
    messages: list = field(default_factory=list)

    def live(self):
        """The messages that lrelease compiles (obsolete ones are not)."""
        return [m for m in self.messages if m.kind not in ("obsolete", "vanished")]


def arguments(text):
    return sorted(set(int(n) for n in ARGUMENT.findall(text)))


def read_ts(path):
    """Parses a TS file with line numbers. Raises ValueError when it is not well-formed."""
    ts = TsFile(path)
    stack = []
    current = None
    parser = xml.parsers.expat.ParserCreate()

    def start(name, attrs):
        nonlocal current
        stack.append(name)
        if name == "TS":
            ts.language = attrs.get("language", "")
        elif name == "message":
            current = Message(attrs.get("id", ""), parser.CurrentLineNumber)
            ts.messages.append(current)
        elif name == "translation" and current is not None:
            current.kind = attrs.get("type", "")

    def end(name):
        nonlocal current
        stack.pop()
        if name == "message":
            current = None

    def data(text):
        if current is None or not stack:
            return
        # Plural forms (numerusform) count as translation text too.
        if stack[-1] == "source" and "message" in stack:
            current.source += text
        elif "translation" in stack:
            current.translation += text

    parser.StartElementHandler = start
    parser.EndElementHandler = end
    parser.CharacterDataHandler = data
    with open(path, "rb") as f:
        try:
            parser.ParseFile(f)
        except xml.parsers.expat.ExpatError as error:
            raise ValueError(f"{path}:{error.lineno}: not well-formed XML: {error}") from None
    return ts


def language_of(path):
    """orrery_pt_BR.ts -> "pt_BR"."""
    name = os.path.basename(path)
    return name[len("orrery_"):-len(".ts")]


def check_file(ts, errors):
    """(a) for one TS file. Returns {key: message} of its live messages."""
    expected = language_of(ts.path)
    if ts.language != expected:
        errors.append(f"{ts.path}:1: the TS element says language \"{ts.language}\", "
                      f"the file name says \"{expected}\"")
    by_key = {}
    for m in ts.live():
        where = f"{ts.path}:{m.line}"
        if not m.key:
            errors.append(f"{where}: message without an id (the strings resource is id-based)")
            continue
        if m.key in by_key:
            errors.append(f"{where}: duplicate id \"{m.key}\" (first at line {by_key[m.key].line})")
            continue
        by_key[m.key] = m
        if not m.translation.strip():
            errors.append(f"{where}: \"{m.key}\" has an empty translation")
            continue
        if m.kind == "unfinished":
            errors.append(f"{where}: \"{m.key}\" is marked unfinished")
        if m.translation == m.key:
            errors.append(f"{where}: the text of \"{m.key}\" equals its id, "
                          "so the window cannot tell it from a missing key")
        if m.source and arguments(m.source) != arguments(m.translation):
            errors.append(f"{where}: \"{m.key}\" has arguments {arguments(m.translation)} "
                          f"but its source has {arguments(m.source)}")
    return by_key


def check_translation(english, ts, keys, errors, warnings):
    """(c) and the cross-language half of (a): one other language against English."""
    for key, m in english.items():
        if key not in keys:
            errors.append(f"{ts.path}:1: \"{key}\" of the English file is missing")
            continue
        theirs = keys[key]
        if theirs.translation.strip() and arguments(theirs.translation) != arguments(m.translation):
            errors.append(f"{ts.path}:{theirs.line}: \"{key}\" has arguments "
                          f"{arguments(theirs.translation)}, the English text has "
                          f"{arguments(m.translation)}")
    for key, theirs in keys.items():
        if key not in english:
            warnings.append(f"{ts.path}:{theirs.line}: \"{key}\" is not a key of the English "
                            "file any more")


RAW_OPENING = re.compile(r'R"([^()\\\s]{0,16})\(')


def raw_string_at(code, i):
    """A raw string literal R"delim( ... )delim" starts at i (an R that ends an
    identifier, like the one in `fooR"`, does not start one unless it is a u8/u/U/L
    prefix)."""
    if not RAW_OPENING.match(code, i):
        return False
    identifier = re.search(r"[A-Za-z0-9_]+$", code[max(0, i - 64):i])
    return identifier is None or identifier.group(0) in ("u8", "u", "U", "L")


def blank_comments(code):
    """The code with every comment replaced by spaces (newlines kept, so lines still
    count), leaving string and character literals as they are; and the (start, end)
    spans of those literals, so that a lookup written inside one is not taken for a
    call."""
    out, literals = [], []
    i, n = 0, len(code)
    while i < n:
        c = code[i]
        if code.startswith("//", i):
            j = code.find("\n", i)
            j = n if j < 0 else j
            out.append(" " * (j - i))
            i = j
        elif code.startswith("/*", i):
            j = code.find("*/", i + 2)
            j = n if j < 0 else j + 2
            out.append(re.sub(r"[^\n]", " ", code[i:j]))
            i = j
        elif raw_string_at(code, i):
            match = RAW_OPENING.match(code, i)
            close = ")" + match.group(1) + '"'
            j = code.find(close, match.end())
            j = n if j < 0 else j + len(close)
            out.append(code[i:j])
            literals.append((i, j))
            i = j
        elif c == '"' or c == "'" and not (i > 0 and code[i - 1].isalnum()):  # not 1'000
            j = i + 1
            while j < n and code[j] != c and code[j] != "\n":
                j += 2 if code[j] == "\\" else 1
            j = min(j + 1, n)
            out.append(code[i:j])
            literals.append((i, j))
            i = j
        else:
            out.append(c)
            i += 1
    return "".join(out), literals


def inside(spans, index):
    """Whether index lies inside one of the sorted, disjoint (start, end) spans."""
    k = bisect.bisect_right(spans, (index, float("inf"))) - 1
    return k >= 0 and spans[k][0] < index < spans[k][1]


LOOKUP = re.compile(
    r"\b(text|textWith|qtTrId|QT_TRID_NOOP|QT_TRID_N_NOOP)\s*\(\s*"
    r'(?:u8|u|U|L)?"((?:[^"\\\n]|\\.)*)"')
TR_CALL = re.compile(r'\btr\s*\(\s*"')
# Keys often travel through tables and helpers ({item, "makeMenuFileNew"}, title(menu,
# "makeMenuFile")) rather than straight into text(). A literal of one of these key
# families is a key whatever the call, so it is checked too: these prefixes name no
# object, field or file in the program.
KEY_FAMILY = re.compile(
    r"(?:makeMenu|controlPreferences|controlIntroduction|controlAccessory|"
    r"introductionDescript)[A-Za-z0-9]*")
PLAIN_LITERAL = re.compile(r'(?:u8|u|U|L)?"(.*)"', re.S)
# Words that may stand before a call; any other identifier before "text(" makes it a
# declaration such as `QString text("...")`, which is no lookup.
CALL_CONTEXT = {"return", "co_return", "co_yield", "throw", "case", "else", "do"}


def previous_token(code, index):
    j = index - 1
    while j >= 0 and code[j].isspace():
        j -= 1
    if j < 0:
        return ""
    if code[j].isalnum() or code[j] == "_":
        k = j
        while k >= 0 and (code[k].isalnum() or code[k] == "_"):
            k -= 1
        return code[k + 1:j + 1]
    return code[j]


def source_files(folders):
    for folder in folders:
        for root, dirs, files in os.walk(folder):
            dirs.sort()
            for name in sorted(files):
                if name.endswith(SOURCE_SUFFIXES):
                    yield os.path.join(root, name)


def check_sources(folders, english, errors, warnings):
    """(b): every key the window code names is a key of the English file."""
    calls = family = 0
    for path in source_files(folders):
        with open(path, encoding="utf-8", errors="replace") as f:
            code, literals = blank_comments(f.read())
        for match in LOOKUP.finditer(code):
            if inside(literals, match.start()):
                continue
            function, key = match.groups()
            token = previous_token(code, match.start())
            if function in ("text", "textWith") and (
                    (token[:1].isalnum() or token[:1] == "_") and token not in CALL_CONTEXT
                    or token in ("*", "&", ">")):
                continue  # a declaration, e.g. `QString text("...")`
            calls += 1
            line = code.count("\n", 0, match.start()) + 1
            where = f"{path}:{line}"
            if key not in english:
                if not KEY_FAMILY.fullmatch(key):  # those are reported with the literals
                    errors.append(f"{where}: {function}(\"{key}\"): no such key in orrery_en.ts")
            elif function == "textWith" and not arguments(english[key].translation):
                errors.append(f"{where}: textWith(\"{key}\", ...): the text of \"{key}\" "
                              "takes no %1, so the argument would be lost")
        for start, end in literals:
            literal = PLAIN_LITERAL.fullmatch(code, start, end)
            if not (literal and KEY_FAMILY.fullmatch(literal.group(1))):
                continue
            family += 1
            if literal.group(1) not in english:
                line = code.count("\n", 0, start) + 1
                errors.append(f"{path}:{line}: \"{literal.group(1)}\" looks like a key of the "
                              "strings resource, but orrery_en.ts has no such key")
        for match in TR_CALL.finditer(code):
            if inside(literals, match.start()):
                continue
            line = code.count("\n", 0, match.start()) + 1
            warnings.append(f"{path}:{line}: tr() is not looked up in the strings resource; "
                            "use text(\"key\")")
    return calls, family


def check(translations, sources):
    """Runs every check. Returns (errors, warnings, summary)."""
    errors, warnings = [], []
    english_path = os.path.join(translations, f"orrery_{ENGLISH}.ts")
    paths = sorted(os.path.join(translations, name) for name in os.listdir(translations)
                   if name.startswith("orrery_") and name.endswith(".ts"))
    if english_path not in paths:
        return [f"{english_path}:1: the English strings resource is missing"], warnings, ""
    files = {}
    for path in paths:
        try:
            ts = read_ts(path)
        except ValueError as error:
            errors.append(str(error))
            continue
        files[path] = (ts, check_file(ts, errors))
    if english_path not in files:
        return errors, warnings, ""
    english = files[english_path][1]
    for path, (ts, keys) in files.items():
        if path != english_path:
            check_translation(english, ts, keys, errors, warnings)
    present = [folder for folder in sources if os.path.isdir(folder)]
    calls, family = check_sources(present, english, errors, warnings)
    summary = (f"{len(english)} keys, {len(files)} language(s), "
               f"{calls} lookup(s) and {family} key literal(s) in {', '.join(present) if present else 'no source folder'}")
    return errors, warnings, summary


def main(argv):
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--translations", required=True,
                        help="the folder that holds orrery_en.ts and the other languages")
    parser.add_argument("--sources", action="append", default=[],
                        help="a folder of window code to scan (repeatable); "
                             "a folder that does not exist has nothing to check")
    args = parser.parse_args(argv)
    if not os.path.isdir(args.translations):
        print(f"{args.translations}: no such folder", file=sys.stderr)
        return 2
    errors, warnings, summary = check(args.translations, args.sources)
    for warning in warnings:
        print(f"warning: {warning}")
    for error in errors:
        print(error)
    if errors:
        print(f"{len(errors)} fault(s) in the strings resource")
        return 1
    print(f"strings resource OK: {summary}")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
