#!/usr/bin/env python3
"""The strings check must catch what it promises to catch: each case below plants one
fault in a small strings resource or window source and expects it reported."""

import os
import sys
import tempfile
import textwrap
import unittest

sys.dont_write_bytecode = True  # no __pycache__ in the source tree
sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import check_strings  # noqa: E402

ENGLISH = {"makeMenuFile": "File", "makeMenuAppQuit": "Quit %1", "yes": "Yes"}


def ts(language, messages, raw=""):
    """A TS file; messages maps id to text, or to (text, type attribute)."""
    body = []
    for key, value in messages.items():
        text, kind = value if isinstance(value, tuple) else (value, "")
        kind = f' type="{kind}"' if kind else ""
        source = ENGLISH.get(key, text)
        body.append(f'<message id="{key}"><source>{source}</source>'
                    f"<translation{kind}>{text}</translation></message>")
    return (f'<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n'
            f'<TS version="2.1" language="{language}">\n<context><name>Menus</name>\n'
            + "\n".join(body) + raw + "\n</context>\n</TS>\n")


class StringsCheckTest(unittest.TestCase):
    def run_check(self, files, sources=None):
        """files: {name: text} in the translations folder; sources: {name: code} in the
        window folder (None: no window folder at all)."""
        with tempfile.TemporaryDirectory() as root:
            translations = os.path.join(root, "translations")
            os.mkdir(translations)
            for name, text in files.items():
                with open(os.path.join(translations, name), "w", encoding="utf-8") as f:
                    f.write(text)
            window = os.path.join(root, "customWin")
            if sources is not None:
                for name, code in sources.items():
                    path = os.path.join(window, name)
                    os.makedirs(os.path.dirname(path), exist_ok=True)
                    with open(path, "w", encoding="utf-8") as f:
                        f.write(textwrap.dedent(code))
            errors, _, _ = check_strings.check(translations, [window])
            return [e.replace(root + os.sep, "") for e in errors]

    def assertFault(self, errors, *parts):
        self.assertTrue(any(all(p in e for p in parts) for e in errors),
                        f"no fault naming {parts} in {errors}")

    def test_a_clean_resource_passes(self):
        code = """
            #include "customWin/Strings.h"
            // The title of the File menu; text("ghost") in a comment is no lookup.
            void title() {
                menu->setTitle(text("makeMenuFile"));
                quit->setText(orrery::window::textWith("makeMenuAppQuit", name));
                const QString text("not a key");
                auto raw = R"(text("ghost"))";
            }
        """
        errors = self.run_check({"orrery_en.ts": ts("en", ENGLISH),
                                 "orrery_de.ts": ts("de", {"makeMenuFile": "Datei",
                                                           "makeMenuAppQuit": "%1 beenden",
                                                           "yes": "Ja"})},
                                {"mainWindow.cpp": code})
        self.assertEqual(errors, [])

    def test_no_window_folder_has_nothing_to_check(self):
        self.assertEqual(self.run_check({"orrery_en.ts": ts("en", ENGLISH)}), [])

    def test_duplicate_id(self):
        raw = '<message id="yes"><source>Yes</source><translation>OK</translation></message>'
        self.assertFault(self.run_check({"orrery_en.ts": ts("en", ENGLISH, raw)}),
                         "orrery_en.ts:", "duplicate id \"yes\"")

    def test_empty_translation(self):
        self.assertFault(self.run_check({"orrery_en.ts": ts("en", dict(ENGLISH, yes=""))}),
                         "\"yes\" has an empty translation")

    def test_translation_equal_to_its_id(self):
        self.assertFault(self.run_check({"orrery_en.ts": ts("en", dict(ENGLISH, yes="yes"))}),
                         "equals its id")

    def test_english_text_losing_its_argument(self):
        raw = ('<message id="deletePlanetMsg"><source>Delete “%1”?</source>'
               "<translation>Delete the planet?</translation></message>")
        self.assertFault(self.run_check({"orrery_en.ts": ts("en", ENGLISH, raw)}),
                         "\"deletePlanetMsg\" has arguments []")

    def test_argument_mismatch_between_languages(self):
        german = {"makeMenuFile": "Datei", "makeMenuAppQuit": "%2 beenden", "yes": "Ja"}
        self.assertFault(self.run_check({"orrery_en.ts": ts("en", ENGLISH),
                                         "orrery_de.ts": ts("de", german)}),
                         "orrery_de.ts:", "\"makeMenuAppQuit\" has arguments [2]")

    def test_unknown_key_in_window_code(self):
        code = """
            void title() {
                return text("makeMenuFiel");
            }
        """
        self.assertFault(self.run_check({"orrery_en.ts": ts("en", ENGLISH)},
                                        {"tableView1/cell.cpp": code}),
                         os.path.join("customWin", "tableView1", "cell.cpp") + ":3:",
                         "makeMenuFiel")

    def test_unknown_key_through_qttrid_and_noop_markers(self):
        code = 'auto a = qtTrId("ghost1");\nconst char* b[] = {QT_TRID_NOOP("ghost2")};\n'
        errors = self.run_check({"orrery_en.ts": ts("en", ENGLISH)}, {"menus.h": code})
        self.assertFault(errors, "menus.h:1:", "ghost1")
        self.assertFault(errors, "menus.h:2:", "ghost2")

    def test_key_in_a_table_rather_than_a_call(self):
        code = 'const Item items[] = {{&a, "makeMenuFile"}, {&b, "makeMenuSceneColorTransparent"}};\n'
        errors = self.run_check({"orrery_en.ts": ts("en", ENGLISH)}, {"MenuBar.cpp": code})
        self.assertFault(errors, "MenuBar.cpp:1:", "makeMenuSceneColorTransparent")
        self.assertEqual(len(errors), 1, errors)

    def test_unknown_family_key_in_a_format_call(self):
        code = "int n = 1'000;\nx = textWith(\"makeMenuAppQiut\", name);\n"
        self.assertFault(self.run_check({"orrery_en.ts": ts("en", ENGLISH)}, {"a.cpp": code}),
                         "a.cpp:2:", "makeMenuAppQiut")

    def test_format_call_on_a_text_without_argument(self):
        self.assertFault(self.run_check({"orrery_en.ts": ts("en", ENGLISH)},
                                        {"a.cpp": 'x = textWith("yes", name);'}),
                         "a.cpp:1:", "takes no %1")

    def test_translation_missing_a_key(self):
        german = {"makeMenuFile": "Datei", "yes": "Ja"}
        self.assertFault(self.run_check({"orrery_en.ts": ts("en", ENGLISH),
                                         "orrery_de.ts": ts("de", german)}),
                         "orrery_de.ts:", "\"makeMenuAppQuit\" of the English file is missing")

    def test_untranslated_key(self):
        german = {"makeMenuFile": ("Datei", "unfinished"), "makeMenuAppQuit": "%1 beenden",
                  "yes": "Ja"}
        self.assertFault(self.run_check({"orrery_en.ts": ts("en", ENGLISH),
                                         "orrery_de.ts": ts("de", german)}),
                         "\"makeMenuFile\" is marked unfinished")

    def test_language_attribute_that_disagrees_with_the_file_name(self):
        self.assertFault(self.run_check({"orrery_en.ts": ts("en", ENGLISH),
                                         "orrery_fr.ts": ts("de", ENGLISH)}),
                         "orrery_fr.ts:1:", "says language \"de\"")

    def test_broken_xml(self):
        self.assertFault(self.run_check({"orrery_en.ts": ts("en", ENGLISH).replace("</TS>", "")}),
                         "not well-formed")


if __name__ == "__main__":
    unittest.main()
