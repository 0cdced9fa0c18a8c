"""What the tests of the packages share."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
HOST_PROGRAMS = ROOT / "docs" / "host_programs"
BUILD = pathlib.Path(os.environ["S2K2NGT_BUILD"])
VERSION = os.environ["S2K2NGT_VERSION"]
LIBDIR = os.environ["S2K2NGT_LIBDIR"]
MAJOR = VERSION.split(".")[0]
COMMAND = BUILD / "s2k2ngt"
# What no text of a message is if the catalogue was found.
NO_CATALOGUE = "DLL is not loaded"
EXAMPLE = "portal_frame"
HEADERS = ["account.h", "converter.h", "drawing.h", "entry_points.h", "exceptions.h", "export.h",
           "platform.h", "s2k2ngt.h", "version.h"]


def attempt(*words, **options):
    """Runs a program, whatever its exit status."""
    return subprocess.run([str(word) for word in words], encoding="utf-8", stdout=subprocess.PIPE,
                          stderr=subprocess.PIPE, stdin=subprocess.DEVNULL, **options)


def run(*words, **options):
    """Runs a program that must end well, and returns what it prints."""
    done = attempt(*words, **options)
    if done.returncode != 0:
        raise AssertionError(f"{' '.join(map(str, words))} ended with {done.returncode}:\n"
                             f"{done.stdout}{done.stderr}")
    return done.stdout


def files_below(folder):
    """The paths of all files and links, relative to the folder."""
    return {str(path.relative_to(folder)) for path in folder.rglob("*")
            if path.is_symlink() or not path.is_dir()}


class PackagingTest(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="s2k2ngt-"))
        cls.addClassCleanup(shutil.rmtree, cls.folder)

    def check_conversion(self, program, **options):
        """The program converts an example as it must, and what it prints is returned."""
        with tempfile.TemporaryDirectory(dir=self.folder) as folder:
            # Under its bare name, which stands in the output.
            shutil.copy(ROOT / "examples" / f"{EXAMPLE}.s2k", folder)
            printed = run(program, f"{EXAMPLE}.s2k", cwd=folder, **options)
            output = (pathlib.Path(folder) / f"{EXAMPLE}.ngt").read_bytes()
        self.assertEqual(output, (ROOT / "tests" / "golden" / f"{EXAMPLE}.ngt").read_bytes())
        return printed

    def check_host(self, program, **options):
        """A program of the guide converts an example, and shows its messages in words."""
        *messages, output = self.check_conversion(program, **options).splitlines()
        self.assertEqual(output, f"{EXAMPLE}.ngt")
        keys = (ROOT / "tests" / "golden" / f"{EXAMPLE}.messages").read_text().split()
        self.assertEqual([message.split(": ")[0] for message in messages], keys)
        self.assertNotIn(NO_CATALOGUE, "".join(messages))

    def check_command(self, command):
        """The command converts an example, and finds the texts of its messages."""
        self.check_conversion(command)
        messages = run(command, "--list-messages")
        self.assertEqual(len(messages.splitlines()), 59)
        self.assertNotIn(NO_CATALOGUE, messages)
