"""The page of the output has the commands, columns and lines that outputs have."""

import pathlib
import re
import shutil
import tempfile
import unittest

from pages import DOCS, ROOT, blocks_of, text_of, without_code
from support import COMMAND, run

EXAMPLES = sorted((ROOT / "examples").glob("*.s2k"))
FAULT_MODELS = sorted((ROOT / "tests" / "faults" / "models").glob("*.s2k"))
GOLDEN = sorted((ROOT / "tests" / "golden").glob("*.ngt"))
COMMAND_LINE = re.compile(r"^\t?\*([A-Z-]+)")
# Columns of most commands, empty in all of them.
ALWAYS_EMPTY = {"GROUP", "DESC"}


def commands_in(output):
    return [match[1] for match in map(COMMAND_LINE.match, output.splitlines()) if match]


def names_in(text):
    """The names of columns in a text, without what stands for further ones."""
    return set(re.findall(r"[A-Za-z][\w-]*(?: LIST)?", text))


def names_in_code(text):
    return names_in(" ".join(re.findall(r"`([^`]*)`", text)))


def sections_of(output):
    """The lines of each command; those that frame loads are of USE-STLD."""
    sections = {}
    name = None
    for line in output.splitlines():
        inline = re.match(r"; \*([A-Z-]+),", line)  # of commands without a line of their own
        match = inline or COMMAND_LINE.match(line)
        name = match[1] if match else name
        name = "USE-STLD" if line.startswith(";End of data") else name
        sections.setdefault(name, []).append(line.rstrip())
    return sections


class OutputPage(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        page = text_of(DOCS / "output.md")
        parts = re.split(r"^(##+) `\*([A-Z-]+)`$", page, flags=re.MULTILINE)
        levels, names, texts = parts[1::3], parts[2::3], parts[3::3]
        cls.commands = names
        cls.text = dict(zip(names, texts))
        cls.sections = [name for level, name in zip(levels, names) if level == "##"]
        with tempfile.TemporaryDirectory() as folder:
            models = [pathlib.Path(shutil.copy(model, folder))
                      for model in EXAMPLES + FAULT_MODELS]
            run(COMMAND, "--quiet", *models)
            cls.outputs = [text_of(model.with_suffix(".ngt")) for model in models]

    def test_sections_are_those_of_the_code_in_their_order(self):
        code = text_of(ROOT / "src" / "run" / "sections.cpp")
        written = [name for names in re.findall(r'\{"(\*.*?)", ', code)
                   for name in re.findall(r"\*([A-Z-]+)", names)]
        self.assertEqual(self.sections, written + ["ENDDATA"])

    def test_commands_are_those_that_outputs_have(self):
        written = {name for output in self.outputs for name in commands_in(output)}
        self.assertEqual(sorted(self.commands), sorted(written))

    def test_outputs_have_the_commands_in_the_order_of_the_page(self):
        place = self.commands.index
        loads = place("USE-STLD")
        for output in self.outputs:
            last = 0
            for name in commands_in(output):
                if name == "USE-STLD":
                    self.assertLess(last, place("NODALMASS"))
                    last = loads
                else:
                    self.assertGreaterEqual(place(name), last, name)
                    last = place(name)

    def test_guide_tells_what_each_command_comes_from(self):
        table = text_of(DOCS / "guide.md").split("| From | To |")[1].split("\n\n")[0]
        told = re.findall(r"`\*([A-Z-]+)`", table)
        self.assertEqual(sorted(set(told) | {"VERSION", "USE-STLD", "ENDDATA"}),
                         sorted(self.commands))

    def test_lines_shown_are_lines_of_expected_outputs(self):
        of_outputs = [sections_of(text_of(output)) for output in GOLDEN]
        for name in self.commands:
            lines = {line for sections in of_outputs for line in sections.get(name, [])}
            shown = "".join(blocks_of(self.text[name])).splitlines()
            self.assertTrue(shown, name)
            for line in shown:
                self.assertIn(line.rstrip(), lines, name)

    def test_columns_of_the_lines_shown_are_explained(self):
        for name in self.commands:
            explained = names_in_code(without_code(self.text[name]))
            for head in re.findall(r"^;([^;\n]*)", "".join(blocks_of(self.text[name])), re.MULTILINE):
                # What a name stands for, and the name of a kind, are no columns.
                head = re.sub(r"=NAME|=CODE|\*[A-Z-]+|\[\w+\] +:|End of data.*", "", head)
                # Of numbered columns the first stands for all.
                columns = {re.sub(r"(?<=[A-Za-z])[2-9]$|(?<=[A-Z]1)[2-9]$", "1", column)
                           for column in names_in(head)}
                self.assertEqual(columns - explained - ALWAYS_EMPTY, set(), f"{name}: {head}")

    def test_columns_explained_are_named_in_outputs(self):
        literals = [literal for file in (ROOT / "src").rglob("*.cpp")
                    for literal in re.findall(r'".*"', text_of(file))]
        comments = [line for output in self.outputs for line in output.splitlines()
                    if line.startswith(";")]
        named = names_in(" ".join(literals + comments))
        for name in self.commands:
            for cell in re.findall(r"^\| ([^|]*`[^|]*) \|", self.text[name], re.MULTILINE):
                self.assertEqual(names_in_code(cell) - named, set(), name)
