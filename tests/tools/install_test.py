#!/usr/bin/env python3
"""The install: "cmake --install BUILD --prefix DIR" puts programs, manual
pages and completion where a Debian system looks for them, and the installed
hostcli runs from there against the simulated SAN.

    install_test.py BUILD_DIR
"""

import json
import os
import stat
import subprocess
import sys
import tempfile
import unittest

BUILD = None


class Install(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tmp = tempfile.TemporaryDirectory()
        cls.prefix = os.path.join(cls.tmp.name, "usr")
        run = subprocess.run(["cmake", "--install", BUILD, "--prefix", cls.prefix], capture_output=True, text=True)
        assert run.returncode == 0, run.stderr
        cls.home = os.path.join(cls.tmp.name, "home")
        os.mkdir(cls.home)
        # Nothing of the build tree on PATH: only what was installed.
        cls.env = {"HOME": cls.home, "HBASIM_TIME": "1795000000", "PATH": "/usr/bin:/bin", "LANG": "C"}
        cls.env.update({k: v for k, v in os.environ.items() if k.split("_")[0] in ("ASAN", "UBSAN", "LSAN")})

    @classmethod
    def tearDownClass(cls):
        cls.tmp.cleanup()

    def run_installed(self, *args):
        return subprocess.run([os.path.join(self.prefix, "bin", args[0])] + list(args[1:]), cwd=self.home,
                              env=self.env, capture_output=True, text=True, timeout=60)

    def test_installed_hostcli_runs_against_the_simulator(self):
        run = self.run_installed("hostcli", "-zek", "list", "adapter")
        self.assertEqual(0, run.returncode, run.stderr)
        self.assertIn("-zek=2000001B32A10C00", run.stdout)
        self.assertTrue(os.path.exists(os.path.join(self.home, ".hbasim", "san.json")))

    def test_installed_decoder_reads_a_result_of_the_installed_hostcli(self):
        run = self.run_installed("hostcli", "-zek", "show", "memory", "-zek=0", "-result=memory.dat")
        self.assertEqual(0, run.returncode, run.stderr)
        decoded = self.run_installed("zekcli-result", os.path.join(self.home, "memory.dat"), "--json")
        self.assertEqual(0, decoded.returncode, decoded.stderr)
        record = json.loads(decoded.stdout)["records"][0]
        self.assertEqual(["show", "memory", "KMemoryInfo"],
                         [record["action"], record["item"], record["payload"]["records"][0]["record"]])

    def test_commands_on_path_lead_into_the_private_folder(self):
        for program in ("hostcli", "hbasim"):
            link = os.path.join(self.prefix, "bin", program)
            self.assertTrue(os.path.islink(link), program)
            self.assertEqual(os.path.join(self.prefix, "libexec", "zekcli", program), os.path.realpath(link))
        for library in ("libzekcli.so", "libhbaclient.so"):
            mode = os.stat(os.path.join(self.prefix, "libexec", "zekcli", library)).st_mode
            self.assertEqual(0o644, stat.S_IMODE(mode), library)

    def test_manual_completion_and_package_documents_are_installed(self):
        man = os.path.join(self.prefix, "share", "man", "man1")
        for page in ("zekcli", "hostcli", "hbasim", "zekcli-result", "zekcli-show-lun", "zekcli-enable-cache"):
            self.assertTrue(os.path.exists(os.path.join(man, page + ".1.gz")), page)
        completion = os.path.join(self.prefix, "share", "bash-completion", "completions", "hostcli")
        with open(completion) as f:
            self.assertIn("complete -F _zekcli_complete hostcli", f.read())
        for document in ("copyright", "changelog.gz"):
            self.assertTrue(os.path.exists(os.path.join(self.prefix, "share", "doc", "zekcli", document)))


if __name__ == "__main__":
    BUILD = sys.argv[1]
    unittest.main(argv=sys.argv[:1])
