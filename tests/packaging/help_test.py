"""The manual page and the completions have the options of --help."""

import os
import re
import tempfile
import unittest

from support import COMMAND, ROOT, attempt, run

PACKAGING = ROOT / "packaging"
BASH = PACKAGING / "completions" / "bash" / "s2k2ngt"
FISH = PACKAGING / "completions" / "fish" / "s2k2ngt.fish"
ZSH = PACKAGING / "completions" / "zsh" / "_s2k2ngt"


def options_of_help(text):
    """The heads of the lines that tell of an option, such as "-o, --output DIR"."""
    section = re.search(r"^Options:\n(.*?)\n\n", text, re.MULTILINE | re.DOTALL).group(1)
    return re.findall(r"^  (-.*?)(?:  .*)?$", section, re.MULTILINE)


def options_of_page(page):
    """The same of a manual page: the heads of its paragraphs, without their markup."""
    section = re.search(r"^\.SH OPTIONS\n(.*?)^\.SH", page, re.MULTILINE | re.DOTALL).group(1)
    heads = re.findall(r"^\.TP.*\n(?:\.[BIR]+ )?(.*)$", section, re.MULTILINE)
    plain = [re.sub(r"\\f.", "", head).replace('"', "").replace("\\", "") for head in heads]
    return [re.sub(r" +", " ", head).replace(" ,", ",") for head in plain]


def names(options):
    return sorted(name for option in options for name in re.findall(r"(?<![\w-])--?[\w-]+", option))


class Help(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.options = options_of_help(run(COMMAND, "--help"))

    def complete_in_bash(self, *words, folder):
        """What bash offers for the last of the words of a command line."""
        script = ('source "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); '
                  '_s2k2ngt; printf "%s\\n" "${COMPREPLY[@]}"')
        return sorted(run("bash", "--norc", "-euc", script, "bash", BASH, "s2k2ngt", *words,
                          cwd=folder).split())

    def test_manual_page_has_the_options_in_their_order(self):
        page = (PACKAGING / "s2k2ngt.1").read_text()
        self.assertEqual(options_of_page(page), self.options)

    def test_manual_page_is_without_mistakes(self):
        done = attempt("groff", "-man", "-Tutf8", "-ww", "-z", PACKAGING / "s2k2ngt.1")
        self.assertEqual((done.returncode, done.stderr), (0, ""))

    def test_options_are_read_from_help_and_page_alike(self):
        help_text = ("Options:\n  --json            print it\n  -o, --output DIR  write there\n"
                     "  -j N              at once\n  --a-very-long-option FILE\n"
                     "                    as it says\n\nResults\n")
        page = ('.SH OPTIONS\n.TP\n.B \\-\\-json\nPrint it.\n.TP\n'
                '.BR \\-o ", " \\-\\-output " \\fIDIR\\fR"\nWrite.\n.TP\n.BI \\-j " N"\nAt once.\n'
                '.TP\n.BI \\-\\-a\\-very\\-long\\-option " FILE"\nAs it says.\n.SH FILES\n')
        expected = ["--json", "-o, --output DIR", "-j N", "--a-very-long-option FILE"]
        self.assertEqual(options_of_page(page), expected)
        self.assertEqual(options_of_help(help_text), expected)
        self.assertEqual(names(expected),
                         ["--a-very-long-option", "--json", "--output", "-j", "-o"])

    def test_bash_offers_every_option(self):
        self.assertEqual(self.complete_in_bash("-", folder=ROOT), names(self.options))

    def test_bash_offers_what_a_word_begins(self):
        self.assertEqual(self.complete_in_bash("--no", folder=ROOT), ["--no-progress"])

    def test_bash_offers_source_files(self):
        with tempfile.TemporaryDirectory() as folder:
            for name in ["bridge.s2k", "BEAM.S2K", "bridge.ngt", "-tower.s2k"]:
                (open(f"{folder}/{name}", "w", encoding="utf-8")).close()
            self.assertEqual(self.complete_in_bash("--quiet", "", folder=folder),
                             ["-tower.s2k", "BEAM.S2K", "bridge.s2k"])
            self.assertEqual(self.complete_in_bash("--quiet", "br", folder=folder), ["bridge.s2k"])
            self.assertEqual(self.complete_in_bash("--", "-", folder=folder), ["-tower.s2k"])

    def test_bash_offers_what_an_option_wants(self):
        with tempfile.TemporaryDirectory() as folder:
            for name in ["lost.html", "lost.json", "bridge.s2k", "notes.txt"]:
                (open(f"{folder}/{name}", "w", encoding="utf-8")).close()
            os.mkdir(f"{folder}/converted")
            self.assertEqual(self.complete_in_bash("--report", "", folder=folder),
                             ["lost.html", "lost.json"])
            self.assertEqual(self.complete_in_bash("-o", "", folder=folder), ["converted"])
            self.assertEqual(self.complete_in_bash("--output-dir", "", folder=folder),
                             ["converted"])
            self.assertEqual(self.complete_in_bash("-j", "", folder=folder), [])

    def test_bash_completes_the_command(self):
        registered = run("bash", "--norc", "-euc", f'source "{BASH}"; complete -p s2k2ngt')
        self.assertIn("-F _s2k2ngt", registered)
        self.assertIn("-o plusdirs", registered)

    def test_fish_offers_every_option(self):
        with tempfile.TemporaryDirectory() as home:
            offered = run("fish", "--no-config", "-c",
                          f'source {FISH}; complete -C "s2k2ngt --"; complete -C "s2k2ngt -"',
                          env={"HOME": home, "PATH": "/usr/bin:/bin"})
        self.assertEqual(sorted({line.split("\t")[0] for line in offered.splitlines()}),
                         names(self.options))

    def test_zsh_knows_every_option(self):
        run("zsh", "-n", ZSH)
        # What it hands to the function of zsh that completes by such descriptions.
        described = run("zsh", "-fec", f'_arguments() {{ print -rl -- "$@" }}; source {ZSH}')
        heads = [re.match(r"(?:\(.*?\)|\*)?(-[\w-]*)", line) for line in described.splitlines()]
        self.assertEqual(sorted(head.group(1) for head in heads if head), names(self.options))
