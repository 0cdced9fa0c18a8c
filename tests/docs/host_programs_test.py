"""The guide for host programs shows the files that are tested."""

import unittest

from pages import DOCS, fenced_blocks_of, text_of
from support import HOST_PROGRAMS

LANGUAGES = {".c": "c", ".cpp": "cpp", ".txt": "cmake"}


class HostPrograms(unittest.TestCase):
    maxDiff = None

    def test_code_blocks_are_the_host_programs_word_for_word(self):
        blocks = fenced_blocks_of(text_of(DOCS / "host_programming.md"))
        files = [(LANGUAGES[file.suffix], text_of(file)) for file in HOST_PROGRAMS.iterdir()]
        self.assertEqual(sorted(blocks), sorted(files))
