#!/usr/bin/env python3
"""The manual: every command of the table has its page, every page names all
of its command's keywords, and groff renders every page without a warning.

    man_pages_test.py COMMANDS.json MAN_DIR
"""

import gzip
import json
import os
import shutil
import subprocess
import sys
import unittest

TABLE = None
MAN_DIR = None


def page_text(name):
    with gzip.open(os.path.join(MAN_DIR, name + ".1.gz"), "rt", encoding="ascii") as f:
        return f.read()


def page_name(cmd):
    action = {"?": "qhelp"}.get(cmd["action"], cmd["action"])
    return "zekcli-%s-%s" % (action, cmd["item"])


def render(source):
    """groff's complaints about the source, empty when there are none."""
    run = subprocess.run(["groff", "-ww", "-man", "-Tutf8", "-z"], input=source, capture_output=True)
    return run.stderr + (b"" if run.returncode == 0 else b"exit status %d" % run.returncode)


class ManPages(unittest.TestCase):
    def test_every_command_has_its_page(self):
        pages = {f[: -len(".1.gz")] for f in os.listdir(MAN_DIR) if f.endswith(".1.gz")}
        wanted = {page_name(c) for c in TABLE["commands"]} | {"zekcli", "zekcli-result", "hostcli", "hbasim"}
        self.assertEqual(set(), wanted - pages, "commands without a page")
        self.assertEqual(set(), pages - wanted, "pages without a command")
        self.assertGreater(len(TABLE["commands"]), 80)

    def test_each_page_shows_its_command_and_keywords(self):
        for cmd in TABLE["commands"]:
            text = page_text(page_name(cmd))
            self.assertIn("\\-zek %s %s" % (cmd["action"], cmd["item"]), text)
            for keyword in cmd["keywords"]:
                if keyword["required"] != "internal":
                    self.assertIn("\\-" + keyword["name"].replace("-", "\\-"), text,
                                  "%s %s" % (cmd["action"], cmd["item"]))

    def test_overview_lists_every_command_and_exit_code(self):
        text = page_text("zekcli")
        for cmd in TABLE["commands"]:
            self.assertIn(".BR %s (1)" % page_name(cmd).replace("-", "\\-"), text)
        for code in TABLE["return_codes"]:
            self.assertIn(".B %d\n" % code["code"], text)
        for section in ("SYNOPSIS", "EXIT STATUS", "FILES", "ENVIRONMENT", "EXAMPLES"):
            self.assertIn(".SH " + section, text)

    @unittest.skipUnless(shutil.which("groff"), "groff is not installed")
    def test_groff_renders_every_page_without_warnings(self):
        # One groff run for all pages keeps this quick; a complaint is
        # then traced to its page.
        names = sorted(n for n in os.listdir(MAN_DIR) if n.endswith(".1.gz"))
        sources = {}
        for name in names:
            with gzip.open(os.path.join(MAN_DIR, name), "rb") as f:
                source = f.read()
            # A page that points to another is read by man, not groff.
            if source.startswith(b".so man1/"):
                target = source[len(b".so man1/"):].strip().decode() + ".gz"
                self.assertTrue(os.path.exists(os.path.join(MAN_DIR, target)), name)
                continue
            sources[name] = source
        if render(b"".join(sources.values())):
            for name in names:
                self.assertEqual(b"", render(sources[name]), name)


if __name__ == "__main__":
    with open(sys.argv[1]) as f:
        TABLE = json.load(f)
    MAN_DIR = sys.argv[2]
    unittest.main(argv=sys.argv[:1])
