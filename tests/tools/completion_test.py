#!/usr/bin/env python3
"""The bash completion of hostcli, driven as bash drives it: COMP_WORDS and
COMP_CWORD are set in a bash subprocess, the completion function runs, and
COMPREPLY is compared.

    completion_test.py COMPLETION_FILE BIN_DIR COMMANDS.json
"""

import json
import os
import shlex
import subprocess
import sys
import tempfile
import unittest

SCRIPT = None
BIN = None
TABLE = None


def complete_all(lines):
    """COMPREPLY for each list of words, the last being the one completed."""
    program = ["source " + shlex.quote(SCRIPT)]
    for words in lines:
        program.append("COMP_WORDS=(%s); COMP_CWORD=%d; COMPREPLY=(); _zekcli_complete; "
                       "printf '%%s\\x1f' \"${COMPREPLY[@]}\"; printf '\\n'"
                       % (" ".join(shlex.quote(w) for w in words), len(words) - 1))
    with tempfile.TemporaryDirectory() as home:
        env = dict(os.environ, HOME=home, HBASIM_TIME="1795000000",
                   PATH=BIN + os.pathsep + os.environ.get("PATH", ""))
        run = subprocess.run(["bash", "--norc", "--noprofile", "-c", "\n".join(program)], env=env,
                             capture_output=True, text=True, timeout=60, cwd=home)
    assert run.returncode == 0 and not run.stderr, run.stderr
    out = run.stdout.split("\n")[: len(lines)]
    return [[w for w in line.split("\x1f") if w] for line in out]


def complete(*words):
    return complete_all([list(words)])[0]


class Completion(unittest.TestCase):
    def test_actions_and_items_come_from_the_table(self):
        actions = sorted({c["action"] for c in TABLE["commands"]})
        self.assertEqual(actions, sorted(complete("hostcli", "-zek", "")))
        for action in actions:
            items = sorted(c["item"] for c in TABLE["commands"] if c["action"] == action)
            self.assertEqual(items, sorted(complete("hostcli", "-zek", action, "")), action)
        self.assertEqual(["lun", "lun_statistics"], complete("hostcli", "-zek", "show", "lun"))

    def test_abbreviated_words_name_their_command(self):
        self.assertEqual(["/profile="], complete("hostcli", "-zek", "en", "ca", "/pro"))
        self.assertEqual(["lun", "lun_statistics"], complete("hostcli", "-pr", "zek", "sh", "lu"))

    def test_every_command_completes_its_own_keywords(self):
        commands = TABLE["commands"]
        replies = complete_all([["hostcli", "-zek", c["action"], c["item"], "-"] for c in commands])
        for cmd, reply in zip(commands, replies):
            for keyword in cmd["keywords"]:
                if keyword["required"] == "internal":
                    continue
                word = "-" + keyword["name"] + ("=" if keyword["value"] == "required" else "")
                self.assertIn(word, reply, "%s %s" % (cmd["action"], cmd["item"]))
            self.assertIn("-result", reply)
            self.assertIn("-zek=", reply)

    def test_slash_keywords_keep_their_slash(self):
        self.assertEqual(["/mode="], complete("hostcli", "-zek", "enable", "cache", "/mo"))

    def test_enumerated_values(self):
        modes = ["read_write_through", "read_write_back", "read_only", "write_through_only", "write_back_only"]
        self.assertEqual(modes, complete("hostcli", "-zek", "enable", "cache", "-mode", "=", ""))
        self.assertEqual(["read_write_through", "read_write_back"],
                         complete("hostcli", "-zek", "enable", "cache", "-mode", "=", "read_w"))
        self.assertEqual(["-mode=read_only"], complete("hostcli", "-zek", "enable", "cache", "-mode=read_o"))
        self.assertEqual(["auto", "2gb", "4gb", "8gb", "10gb", "16gb"],
                         complete("hostcli", "-zek", "set", "fc", "-fc_link_rate", "="))
        self.assertEqual(["warning"], complete("hostcli", "-zek", "list", "log", "-severity", "=", "w"))
        self.assertEqual(["start", "end"], complete("hostcli", "-zek", "view", "log", "-basepos", "="))

    def test_adapters_come_from_the_simulated_san(self):
        listed = complete("hostcli", "-zek", "show", "lun", "-zek", "=", "")
        self.assertEqual(["2000001B32A10C00", "2000001B32A10D00", "2000001B32A10E00", "2000001B32A10F00"], listed)
        self.assertEqual(["-mirror=2000001B32A10D00"],
                         complete("hostcli", "-zek", "enable", "cache", "-mirror=2000001B32A10D"))
        self.assertEqual(["prodcluster"], complete("hostcli", "-zek", "show", "cluster", "-clusterid", "=", "p"))

    def test_no_adapters_without_the_program(self):
        global BIN
        saved, BIN = BIN, "/nonexistent"
        try:
            self.assertEqual([], complete("hostcli", "-zek", "show", "lun", "-zek", "=", ""))
        finally:
            BIN = saved

    def test_file_values_complete_file_names(self):
        with tempfile.TemporaryDirectory() as folder:
            open(os.path.join(folder, "result.dat"), "w").close()
            reply = complete("hostcli", "-zek", "show", "lun", "-result=" + folder + "/res")
            self.assertEqual(["-result=" + folder + "/result.dat"], reply)

    def test_nothing_after_a_whole_command_but_keywords(self):
        self.assertEqual([], complete("hostcli", "-zek", "show", "lun", "x"))
        self.assertEqual([], complete("hostcli", "-zek", "nosuchaction", ""))


if __name__ == "__main__":
    SCRIPT, BIN = sys.argv[1], sys.argv[2]
    with open(sys.argv[3]) as f:
        TABLE = json.load(f)
    unittest.main(argv=sys.argv[:1])
