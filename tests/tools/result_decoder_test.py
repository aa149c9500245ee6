#!/usr/bin/env python3
"""zekcli-result against real result files: every reading command of the
table is run on the simulated SAN with -result, and each file that carries a
payload must decode to valid JSON in which every record has a known type and
its fields. Damaged files must be refused with a message and status 1.

    result_decoder_test.py BIN_DIR COMMANDS.json
"""

import json
import os
import subprocess
import sys
import tempfile
import unittest

BIN = None
TABLE = None
# Actions that only read; others would change the simulated SAN or wait.
READING = {"show", "list", "view", "report"}
# Commands that deliver a payload on the default simulated SAN, with the
# record type they deliver: the test fails when one stops doing so.
EXPECTED = {
    ("show", "lun"): "KLunInfo",
    ("list", "lun"): "PLunID",
    ("show", "health"): "KAdapterHealthInfo",
    ("show", "memory"): "KMemoryInfo",
    ("show", "nvdimm"): "KNvdimmInfo",
    ("show", "sfp"): "KSfpInfo",
    ("show", "cluster"): "KIsaAdapterInfo",
}


class Sandbox:
    def __init__(self):
        self.dir = tempfile.TemporaryDirectory()
        self.env = dict(os.environ, HOME=self.dir.name, HBASIM_TIME="1795000000")
        self.env["PATH"] = BIN + os.pathsep + self.env.get("PATH", "")

    def run(self, *args):
        return subprocess.run(list(args), cwd=self.dir.name, env=self.env, capture_output=True,
                              stdin=subprocess.DEVNULL, timeout=60)

    def path(self, name):
        return os.path.join(self.dir.name, name)


def decode(box, name, *options):
    return box.run("zekcli-result", box.path(name), *options)


class RealResultFiles(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.box = Sandbox()
        cls.payloads = {}
        for cmd in TABLE["commands"]:
            if cmd["action"] not in READING:
                continue
            name = "%s_%s.dat" % (cmd["action"], cmd["item"])
            cls.box.run("hostcli", "-zek", cmd["action"], cmd["item"], "-zek=0", "-result=" + name)
            if os.path.exists(cls.box.path(name)) and os.path.getsize(cls.box.path(name)) > 40:
                cls.payloads[(cmd["action"], cmd["item"])] = name

    def test_expected_commands_deliver_payloads(self):
        self.assertEqual(set(), set(EXPECTED) - set(self.payloads))

    def test_every_payload_decodes_to_known_records(self):
        for (action, item), name in sorted(self.payloads.items()):
            with self.subTest(command="%s %s" % (action, item)):
                run = decode(self.box, name, "--json")
                self.assertEqual(0, run.returncode, run.stderr)
                document = json.loads(run.stdout)
                record = document["records"][-1]
                self.assertEqual((action, item), (record["action"], record["item"]))
                self.assertIsInstance(record["status"], int)
                self.assertTrue(record["status_text"])
                for decoded in record["payload"]["records"]:
                    self.assertNotEqual("unknown", decoded["record"], decoded.get("candidates"))
                    self.assertTrue(decoded["fields"])
                if (action, item) in EXPECTED:
                    types = {d["record"] for d in record["payload"]["records"]}
                    self.assertEqual({EXPECTED[(action, item)]}, types)

    def test_fields_carry_the_values_that_the_text_shows(self):
        shown = self.box.run("hostcli", "-zek", "show", "lun", "-zek=0").stdout.decode()
        record = json.loads(decode(self.box, self.payloads[("show", "lun")], "--json").stdout)["records"][0]
        vendors = {d["fields"]["szVendorId"] for d in record["payload"]["records"]}
        self.assertTrue(vendors)
        for vendor in vendors:
            self.assertIn(vendor, shown)
        listed = json.loads(decode(self.box, self.payloads[("list", "lun")], "--json").stdout)["records"][0]
        texts = [d["fields"]["text"] for d in listed["payload"]["records"]]
        self.assertTrue(all(t.startswith("LUN ") for t in texts), texts)

    def test_csv_has_a_header_and_one_line_per_record(self):
        run = decode(self.box, self.payloads[("show", "lun")], "--csv")
        self.assertEqual(0, run.returncode)
        lines = run.stdout.decode().splitlines()
        document = json.loads(decode(self.box, self.payloads[("show", "lun")], "--json").stdout)
        count = len(document["records"][0]["payload"]["records"])
        self.assertEqual(count + 1, len(lines))
        self.assertTrue(lines[0].startswith("action,item,status,record,bValid,"))


class DamagedFiles(unittest.TestCase):
    def setUp(self):
        self.box = Sandbox()
        self.box.run("hostcli", "-zek", "show", "health", "-zek=0", "-result=good.dat")
        with open(self.box.path("good.dat"), "rb") as f:
            self.good = f.read()

    def refused(self, data, message):
        with open(self.box.path("bad.dat"), "wb") as f:
            f.write(data)
        run = decode(self.box, "bad.dat", "--json")
        self.assertEqual(1, run.returncode)
        self.assertEqual(b"", run.stdout)
        self.assertIn(message.encode(), run.stderr)

    def test_empty_file(self):
        self.refused(b"", "the file is empty")

    def test_not_a_result_file(self):
        self.refused(b"#!/bin/sh\necho this is not a result file at all\n", "not a result record at byte 0")

    def test_cut_short(self):
        self.refused(self.good[:-10], "runs past the end of the file")
        self.refused(self.good[:20], "record cut short at byte 0")

    def test_second_record_cut_short(self):
        self.refused(self.good + self.good[:30], "record cut short at byte %d" % len(self.good))

    def test_missing_terminator(self):
        self.refused(self.good[:-4] + b"\x01\x00\x00\x00", "not terminated by a zero word")

    def test_missing_file(self):
        run = self.box.run("zekcli-result", self.box.path("nowhere.dat"))
        self.assertEqual(1, run.returncode)
        self.assertIn(b"cannot read", run.stderr)

    def test_usage(self):
        for args in ([], ["good.dat", "--xml"], ["a", "b", "c"]):
            run = self.box.run("zekcli-result", *args)
            self.assertEqual(2, run.returncode, args)
            self.assertIn(b"usage: zekcli-result FILE [--json|--csv]", run.stderr)

    def test_two_records_decode_in_order(self):
        with open(self.box.path("two.dat"), "wb") as f:
            f.write(self.good + self.good)
        document = json.loads(decode(self.box, "two.dat", "--json").stdout)
        self.assertEqual([0, len(self.good)], [r["offset"] for r in document["records"]])


if __name__ == "__main__":
    BIN = sys.argv[1]
    with open(sys.argv[2]) as f:
        TABLE = json.load(f)
    unittest.main(argv=sys.argv[:1])
