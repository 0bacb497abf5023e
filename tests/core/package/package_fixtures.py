#!/usr/bin/env python3
"""Project packages written and read by an independent implementation: Python's plistlib.

    package_fixtures.py make OUTDIR    write fixture packages and OUTDIR/manifest.json
    package_fixtures.py dump PACKAGE   print a package as JSON, read with plistlib only

"make" writes packages in the NSKeyedArchiver layout, with everything a reader of that
layout meets (shared entries, mutable classes, colours in several spaces, both forms of
reference), plus broken ones; the manifest says what reading each must give. "dump" lets
the tests check that the packages our writer produces are readable by a reader that is not
ours.
"""

import json
import os
import plistlib
import shutil
import sys

# --------------------------------------------------------------------------------------
# Writing keyed archives


class Archive:
    """Builds a keyed archive's object table. With xml=True references are written as
    {"CF$UID": n} dictionaries inside an XML property list, else as binary UIDs."""

    def __init__(self, xml=False):
        self.xml = xml
        self.objects = ["$null"]
        self.texts = {}
        self.classes = {}

    def ref(self, index):
        return {"CF$UID": index} if self.xml else plistlib.UID(index)

    def add(self, obj):
        self.objects.append(obj)
        return len(self.objects) - 1

    def text(self, value):
        """Equal texts share one entry, as keyed archivers store them."""
        if value not in self.texts:
            self.texts[value] = self.add(value)
        return self.texts[value]

    def cls(self, *chain):
        if chain not in self.classes:
            self.classes[chain] = self.add({"$classname": chain[0], "$classes": list(chain)})
        return self.classes[chain]

    def array(self, items, chain=("NSMutableArray", "NSArray", "NSObject")):
        return self.add({"NS.objects": [self.ref(i) for i in items],
                         "$class": self.ref(self.cls(*chain))})

    def dictionary(self, pairs, chain=("NSDictionary", "NSObject")):
        return self.add({"NS.keys": [self.ref(k) for k, _ in pairs],
                         "NS.objects": [self.ref(v) for _, v in pairs],
                         "$class": self.ref(self.cls(*chain))})

    def color(self, space, **fields):
        obj = {"NSColorSpace": space, "$class": self.ref(self.cls("NSColor", "NSObject"))}
        obj.update(fields)
        return self.add(obj)

    def mutable_text(self, value):
        return self.add({"NS.string": value,
                         "$class": self.ref(self.cls("NSMutableString", "NSString",
                                                     "NSObject"))})

    def dumps(self, root):
        archive = {"$archiver": "NSKeyedArchiver", "$version": 100000,
                   "$top": {"root": self.ref(root)}, "$objects": self.objects}
        fmt = plistlib.FMT_XML if self.xml else plistlib.FMT_BINARY
        return plistlib.dumps(archive, fmt=fmt, sort_keys=False)


KEYS = ["tsecs", "name", "state", "styleindex", "surfaceindex", "xvalue", "yvalue",
        "zvalue", "radius", "color", "value1", "value2", "value3", "value4", "value5"]

SETTINGS = ["960", "540", "3", "45.0", "60.0", "0.000000", "-12.500000", "500.000000",
            "1", "0", "10.000000", "20.000000", "30.000000"] + ["0"] * 18

ALL_PASS = {"width": True, "height": True, "background": True, "camera": True,
            "cameraFields": [True] * 5, "light": True, "lightFields": [True] * 3}


def planet(tsecs, name, color, **values):
    record = {"tsecs": tsecs, "name": name, "state": "1", "styleindex": "0",
              "surfaceindex": "0", "xvalue": "0", "yvalue": "0", "zvalue": "0",
              "radius": "24", "color": color}
    record.update(values)
    return record


def write_records(archive, records, dictionary_chain=("NSDictionary", "NSObject")):
    """Archives records whose values are texts or prepared entry indices (colours,
    mutable strings); value1..value5 hold "7" so that the reader must reset them."""
    entries = []
    for record in records:
        pairs = []
        for key in KEYS:
            value = record.get(key, "7")
            pairs.append((archive.text(key),
                          archive.text(value) if isinstance(value, str) else value))
        entries.append(archive.dictionary(pairs, dictionary_chain))
    return archive.array(entries)


def light_colors(archive, first, others=None):
    entries = [first] + (others if others is not None else [first] * 4)
    return archive.dumps(archive.array(entries, ("NSArray", "NSObject")))


def write_package(folder, data1, data2, data3):
    os.makedirs(folder)
    for name, content in (("data1.xml", data1), ("data2.xml", data2), ("data3.xml", data3)):
        if content is not None:
            with open(os.path.join(folder, name), "wb") as f:
                f.write(content)


def settings_xml(values):
    return plistlib.dumps(values, fmt=plistlib.FMT_XML)


# --------------------------------------------------------------------------------------
# The fixtures


def full_system(xml):
    """Five planets covering every colour form, shared entries, a mutable dictionary class,
    a mutable string and a non-ASCII name. Returns the package files and what reading
    them must give."""
    a = Archive(xml)
    blue = a.color(1, NSRGB=b"0 0 1\x00")
    device = a.color(2, NSRGB=b"0.5 0.25 0.125 0.75")
    white = a.color(3, NSWhite=b"0.5\x00")
    white_alpha = a.color(4, NSWhite=b"0.25 0.5\x00")
    space = a.add({"NSID": 7, "$class": a.ref(a.cls("NSColorSpace", "NSObject"))})
    components = a.color(1, NSComponents=b"1 0 0 1", NSCustomColorSpace=a.ref(space))
    records = [
        planet("1424700000", "Sun", blue, radius="80", surfaceindex="12"),
        planet("1424700001", "\u00c6r\u00f8 \u2609 \U0001fa90", device, xvalue="-12.5",
               state="0"),
        planet("1424700001", a.mutable_text("Twin"), white, styleindex="81"),
        planet("1424700002", "Twin", white_alpha, yvalue="1e30", zvalue="nan"),
        planet("1424700003", "", components, radius="0.1"),
    ]
    root = write_records(a, records, ("NSMutableDictionary", "NSDictionary", "NSObject"))
    data1 = a.dumps(root)

    light = Archive(xml)
    data3 = light_colors(light, light.color(1, NSRGB=b"1 0.5 0.25\x00"))

    expected_planets = []
    colors = {blue: [0, 0, 1, 1], device: [0.5, 0.25, 0.125, 0.75],
              white: [0.5, 0.5, 0.5, 1], white_alpha: [0.25, 0.25, 0.25, 0.5],
              components: [1, 0, 0, 1]}
    for record in records:
        expected = {k: v for k, v in record.items()}
        expected["color"] = colors[record["color"]]
        if not isinstance(expected["name"], str):
            expected["name"] = "Twin"
        for key in KEYS[10:]:
            expected[key] = "0"
        expected_planets.append(expected)
    expect = {"settings": SETTINGS[:13], "lightColor": [1, 0.5, 0.25, 1],
              "planets": expected_planets, "checks": ALL_PASS,
              "orthographic": True, "zRange": False}
    return (data1, settings_xml(SETTINGS), data3), expect


def empty_system():
    """No planets, the shortest settings list that can be opened, and a light colour list
    whose later elements differ from the first (only the first is read)."""
    a = Archive()
    data1 = a.dumps(a.array([]))
    light = Archive()
    first = light.color(3, NSWhite=b"1\x00")
    others = [light.color(1, NSRGB=b"0 1 0\x00") for _ in range(4)]
    data3 = light_colors(light, first, others)
    settings = ["401", "301", "0", "30", "90", "0", "0", "0.001", "0", "1", "0", "0", "0"]
    expect = {"settings": settings, "lightColor": [1, 1, 1, 1], "planets": [],
              "checks": ALL_PASS, "orthographic": False, "zRange": True}
    return (data1, settings_xml(settings), data3), expect


def absurd_values():
    """Well-formed values that fail their checks, and a name of a million characters:
    the package opens; the checks say what not to apply."""
    a = Archive()
    name = "N" * 1000000
    data1 = a.dumps(write_records(a, [planet("1", name, a.color(1, NSRGB=b"0 0 1\x00"))]))
    light = Archive()
    data3 = light_colors(light, light.color(1, NSRGB=b"1 1 1\x00"))
    settings = ["1e30", "nan", "7", "95", "45.0", "0", "0", "500", "1", "1",
                "0", "abc", "0"] + ["0"] * 18
    expected = planet("1", name, [0, 0, 1, 1])
    for key in KEYS[10:]:
        expected[key] = "0"
    checks = {"width": False, "height": False, "background": False, "camera": False,
              "cameraFields": [False, True, True, True, True], "light": False,
              "lightFields": [True, False, True]}
    expect = {"settings": settings[:13], "lightColor": [1, 1, 1, 1], "planets": [expected],
              "checks": checks, "orthographic": True, "zRange": True}
    return (data1, settings_xml(settings), data3), expect


def valid_light():
    light = Archive()
    return light_colors(light, light.color(1, NSRGB=b"1 1 1\x00"))


def one_planet_archive(edit=None):
    """A one-planet archive; `edit` may change the table before it is written."""
    a = Archive()
    root = write_records(a, [planet("1", "P", a.color(1, NSRGB=b"0 0 1\x00"))])
    if edit:
        root = edit(a, root) or root
    return a.dumps(root)


def first_record(a, root):
    return a.objects[root]["NS.objects"][0].data


def broken_planet_lists():
    """Planet lists the reader must refuse, each with the words its error must contain."""
    cases = {}

    def uid_out_of_range(a, root):
        a.objects[first_record(a, root)]["NS.objects"][3] = a.ref(9999)
    cases["uid-out-of-range"] = (one_planet_archive(uid_out_of_range), "refers to entry 9999")

    def cycle(a, root):
        a.objects[root]["NS.objects"].append(a.ref(root))
    cases["cycle"] = (one_planet_archive(cycle), "contains itself")

    def mismatch(a, root):
        a.objects[first_record(a, root)]["NS.objects"].pop()
    cases["keys-objects-mismatch"] = (one_planet_archive(mismatch), "15 keys but 14 values")

    def deep(a, root):
        inner = root
        for _ in range(600):
            inner = a.array([inner])
        return inner
    cases["deep-nesting"] = (one_planet_archive(deep), "nested deeper than 512")

    def class_is_text(a, root):
        a.objects[first_record(a, root)]["$class"] = a.ref(a.text("name"))
    cases["class-not-description"] = (one_planet_archive(class_is_text),
                                      "is not a class description")

    def unknown_class(a, root):
        data = a.add({"NS.data": b"xyz", "$class": a.ref(a.cls("NSData", "NSObject"))})
        a.objects[root]["NS.objects"][0] = a.ref(data)
    cases["unknown-class"] = (one_planet_archive(unknown_class), "class NSData")

    def missing_key(a, root):
        record = a.objects[first_record(a, root)]
        index = [ref.data for ref in record["NS.keys"]].index(a.text("radius"))
        del record["NS.keys"][index]
        del record["NS.objects"][index]
    cases["missing-key"] = (one_planet_archive(missing_key), 'planet record 1 has no "radius"')

    def wrong_type(a, root):
        record = a.objects[first_record(a, root)]
        record["NS.objects"][1] = record["NS.objects"][9]  # the colour as the name
    cases["wrong-type"] = (one_planet_archive(wrong_type), 'has a "name" that is not text')

    def number_entry(a, root):
        record = a.objects[first_record(a, root)]
        record["NS.objects"][8] = a.ref(a.add(24))
    cases["number-entry"] = (one_planet_archive(number_entry), "a type a package never holds")

    def named_color(a, root):
        record = a.objects[first_record(a, root)]
        color = a.color(6, NSCatalogName="System", NSColorName="controlColor")
        record["NS.objects"][9] = a.ref(color)
    cases["color-space-6"] = (one_planet_archive(named_color), "colour space (6)")

    def nan_color(a, root):
        record = a.objects[first_record(a, root)]
        record["NS.objects"][9] = a.ref(a.color(1, NSRGB=b"nan 0 1\x00"))
    cases["color-nan"] = (one_planet_archive(nan_color), "not 3 or 4 decimal numbers")

    def root_is_text(a, root):
        return a.text("planets")
    cases["root-not-array"] = (one_planet_archive(root_is_text), "not hold a list of planets")

    cases["not-keyed-archive"] = (plistlib.dumps([1, 2, 3], fmt=plistlib.FMT_BINARY),
                                  "not a keyed archive")
    return cases


def make(outdir):
    if os.path.exists(outdir):
        shutil.rmtree(outdir)
    os.makedirs(outdir)
    manifest = []

    def valid(name, files_expect):
        files, expect = files_expect
        write_package(os.path.join(outdir, name), *files)
        manifest.append({"package": name, "expect": expect})

    def broken(name, files, file, words):
        write_package(os.path.join(outdir, name), *files)
        manifest.append({"package": name, "error": {"file": file, "contains": words}})

    valid("binary-uids.kvx", full_system(xml=False))
    valid("xml-uids.kvx", full_system(xml=True))
    valid("empty.kvx", empty_system())
    valid("absurd-values.kvx", absurd_values())

    settings = settings_xml(SETTINGS)
    for name, (data1, words) in broken_planet_lists().items():
        broken(name + ".kvx", (data1, settings, valid_light()), "data1.xml", words)

    planets = one_planet_archive()
    broken("missing-light.kvx", (planets, settings, None), "data3.xml", "the file is missing")
    broken("short-settings.kvx", (planets, settings_xml(SETTINGS[:12]), valid_light()),
           "data2.xml", "holds 12 elements")
    broken("settings-not-text.kvx",
           (planets, settings_xml(SETTINGS[:5] + [5] + SETTINGS[6:]), valid_light()),
           "data2.xml", "element 5 of the settings list is not text")
    broken("settings-not-array.kvx", (planets, settings_xml({"a": "b"}), valid_light()),
           "data2.xml", "not an array")
    empty_light = Archive()
    broken("light-empty.kvx",
           (planets, settings, empty_light.dumps(empty_light.array([], ("NSArray",)))),
           "data3.xml", "does not hold a list of colours")

    with open(os.path.join(outdir, "manifest.json"), "w") as f:
        json.dump(manifest, f)


# --------------------------------------------------------------------------------------
# Reading keyed archives, for "dump"


def decode_archive(data):
    archive = plistlib.loads(data)
    assert archive["$archiver"] == "NSKeyedArchiver"
    objects = archive["$objects"]

    def index(ref):
        return ref.data if isinstance(ref, plistlib.UID) else ref["CF$UID"]

    def value(i):
        obj = objects[i]
        if isinstance(obj, str):
            return obj
        chain = objects[index(obj["$class"])]["$classes"]
        if "NSDictionary" in chain:
            return {value(index(k)): value(index(v))
                    for k, v in zip(obj["NS.keys"], obj["NS.objects"], strict=True)}
        if "NSArray" in chain:
            return [value(index(item)) for item in obj["NS.objects"]]
        if "NSColor" in chain:
            assert obj["NSColorSpace"] == 1
            numbers = [float(n) for n in obj["NSRGB"].rstrip(b"\x00").decode().split(" ")]
            return numbers + [1.0] * (4 - len(numbers))
        raise ValueError("unexpected class %s" % chain[0])

    return value(index(archive["$top"]["root"]))


def dump(package):
    def read(name):
        with open(os.path.join(package, name), "rb") as f:
            return f.read()
    result = {"planets": decode_archive(read("data1.xml")),
              "settings": plistlib.loads(read("data2.xml")),
              "lightColors": decode_archive(read("data3.xml"))}
    json.dump(result, sys.stdout)


if __name__ == "__main__":
    if len(sys.argv) != 3 or sys.argv[1] not in ("make", "dump"):
        sys.exit(__doc__)
    (make if sys.argv[1] == "make" else dump)(sys.argv[2])
