#!/usr/bin/env python3
"""contrib/plot-statistics.gp turns a per-LUN statistics file and a merge csv
table into PNG charts, and refuses other input with a message.

    plot_test.py SOURCE_DIR BIN_DIR
"""

import os
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest

SOURCE = None
BIN = None


def png_size(path):
    with open(path, "rb") as f:
        head = f.read(24)
    assert head[:8] == b"\x89PNG\r\n\x1a\n", "not a PNG"
    return struct.unpack(">II", head[16:24])


@unittest.skipUnless(shutil.which("gnuplot"), "gnuplot is not installed")
class Plot(unittest.TestCase):
    def setUp(self):
        self.tmp = tempfile.TemporaryDirectory()
        self.dir = self.tmp.name
        self.script = os.path.join(SOURCE, "contrib", "plot-statistics.gp")
        self.luns = os.path.join(SOURCE, "tests", "e2e", "cases", "csv-merge-lun-statistics")

    def tearDown(self):
        self.tmp.cleanup()

    def plot(self, settings):
        return subprocess.run(["gnuplot", "-e", settings, self.script], cwd=self.dir, capture_output=True,
                              text=True, timeout=60)

    def assert_chart(self, csv):
        run = self.plot("input='%s'; output='chart.png'" % csv)
        self.assertEqual(0, run.returncode, run.stderr)
        self.assertEqual("plot-statistics.gp: chart.png written\n", run.stderr)
        self.assertEqual((1200, 700), png_size(os.path.join(self.dir, "chart.png")))

    def test_per_lun_file(self):
        self.assert_chart(os.path.join(self.luns, "lun0vpg0_5006-0160-39A0-1122.csv"))

    def test_merge_csv_table(self):
        env = dict(os.environ, HOME=self.dir, HBASIM_TIME="1795000000")
        merge = subprocess.run([os.path.join(BIN, "hostcli"), "-zek", "merge", "csv", "-csv_folder=" + self.luns,
                                "-file=merged.csv"], cwd=self.dir, env=env, capture_output=True, timeout=60)
        self.assertEqual(0, merge.returncode, merge.stdout)
        self.assert_chart("merged.csv")

    def test_other_input_is_refused_without_an_image(self):
        with open(os.path.join(self.dir, "other.csv"), "w") as f:
            f.write("a,b\n1,2\n")
        cases = [("input='other.csv'", 1, "is neither a LUN statistics file nor a merge csv table"),
                 ("input='missing.csv'", 1, "missing.csv is empty or cannot be read"),
                 ("output='x.png'", 2, "set input='FILE.csv'")]
        for settings, status, message in cases:
            run = self.plot(settings)
            self.assertEqual(status, run.returncode, settings)
            self.assertIn(message, run.stderr)
        self.assertEqual(["other.csv"], os.listdir(self.dir))


if __name__ == "__main__":
    SOURCE, BIN = sys.argv[1], sys.argv[2]
    unittest.main(argv=sys.argv[:1])
