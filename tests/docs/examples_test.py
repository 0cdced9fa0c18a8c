"""What README and the guide show is what one gets."""

import pathlib
import re
import shutil
import tempfile
import unittest

from help_test import options_of_help
from pages import DOCS, ROOT, blocks_of, indented_blocks_of, text_of
from support import BUILD, COMMAND, attempt, run

README = ROOT / "README.md"


def transcripts_of(text):
    """The blocks of a terminal, each a list of commands with what they print."""
    transcripts = []
    for block in indented_blocks_of(text):
        if block.startswith("$ "):
            parts = re.split(r"^\$ (.*)\n?", block + "\n", flags=re.MULTILINE)
            transcripts.append(list(zip(parts[1::2], parts[2::2])))
    return transcripts


def pattern_of(printed):
    """What is printed, where "..." stands for anything: for whole lines on a line of its own."""
    lines = [r"(?:.*\n)*?" if line == "..." else re.escape(line).replace(r"\.\.\.", ".*") + r"\n"
             for line in printed.splitlines()]
    return "".join(lines)


class Examples(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        shutil.copytree(ROOT / "examples", self.folder / "examples")
        (self.folder / "build").mkdir()
        (self.folder / "build" / "release").symlink_to(BUILD)

    def check_transcripts(self, page, folder):
        """Runs all commands of a page one after the other, each with the status of the last."""
        status = 0
        transcripts = transcripts_of(text_of(page))
        self.assertTrue(transcripts)
        for command, printed in (step for transcript in transcripts for step in transcript):
            done = attempt("bash", "-c", f'export PATH={BUILD}:$PATH\n(exit {status})\n'
                           f"{{ {command}\n}} 2>&1", cwd=folder)
            status = done.returncode
            # The last line of an output has no end.
            text = re.sub(r"(?<=[^\n])\Z", "\n", done.stdout)
            self.assertRegex(text, rf"\A{pattern_of(printed)}\Z", command)

    def test_transcripts_of_readme(self):
        self.check_transcripts(README, self.folder)

    def test_transcripts_of_the_guide(self):
        self.check_transcripts(DOCS / "guide.md", self.folder / "examples")

    def test_a_transcript_is_compared_line_by_line(self):
        transcript = "Text:\n\n    $ one\n    a ...\n    ...\n    z\n    $ two\n\nText.\n"
        self.assertEqual(transcripts_of(transcript), [[("one", "a ...\n...\nz\n"), ("two", "")]])
        pattern = rf"\A{pattern_of('a ...' + chr(10) + '...' + chr(10) + 'z' + chr(10))}\Z"
        self.assertRegex("a b\nc\nd\nz\n", pattern)
        self.assertRegex("a b\nz\n", pattern)
        self.assertNotRegex("b\nz\n", pattern)
        self.assertNotRegex("a b\nz\ny\n", pattern)

    def test_failures_of_the_guide_are_those_of_the_code(self):
        guide = text_of(DOCS / "guide.md").split("| It says | What to do |")[1].split("\n\n")[0]
        code = "".join(text_of(file) for folder in ("src", "cli")
                       for file in (ROOT / folder).rglob("*.cpp"))
        literals = re.sub(r'"\s*"', "", code).replace('\\"', '"')
        told = [failure for row in guide.splitlines()[2:]
                for failure in re.findall(r"`([^`]*)`", row.split("|")[1])]
        self.assertTrue(told)
        self.assertEqual([failure for failure in told
                          if not all(part.strip() in literals for part in failure.split("..."))], [])

    def test_options_of_readme_are_those_of_help(self):
        rows = re.findall(r"^\| (`-.*?) \|", text_of(README), re.MULTILINE)
        options = [option for row in rows for option in re.findall(r"`(-[^`]*)`", row)]
        told = [option for head in options_of_help(run(COMMAND, "--help"))
                for option in head.split(", ")]
        self.assertEqual(options, told)

    def test_program_of_readme_converts(self):
        program, = blocks_of(text_of(README), "c")
        (self.folder / "program.c").write_text(program, encoding="utf-8")
        run("cc", "-Wall", "-Wextra", "-Werror", "program.c", "-I", ROOT / "include", "-I",
            BUILD / "include", "-L", BUILD, f"-Wl,-rpath,{BUILD}", "-ls2k2ngt", "-o", "program",
            cwd=self.folder)
        (self.folder / "examples" / "portal_frame.s2k").rename(self.folder / "bridge.s2k")
        *messages, last = run(self.folder / "program", cwd=self.folder).splitlines()
        keys = text_of(ROOT / "tests" / "golden" / "portal_frame.messages").split()
        self.assertEqual([message.split(": ")[0] for message in messages], keys)
        self.assertEqual(last, "written: bridge.ngt")
        self.assertTrue((self.folder / "bridge.ngt").exists())
