"""The guide for host programs shows the files that are tested."""

import re
import unittest

from support import HOST_PROGRAMS, ROOT

LANGUAGES = {".c": "c", ".cpp": "cpp", ".txt": "cmake"}


class Guide(unittest.TestCase):
    maxDiff = None

    def test_code_blocks_are_the_host_programs_word_for_word(self):
        page = (ROOT / "docs" / "host_programming.md").read_text(encoding="utf-8")
        blocks = re.findall(r"^```(\w*)\n(.*?)^```$", page, re.MULTILINE | re.DOTALL)
        files = [(LANGUAGES[file.suffix], file.read_text(encoding="utf-8"))
                 for file in HOST_PROGRAMS.iterdir()]
        self.assertEqual(sorted(blocks), sorted(files))

    def test_links_of_the_guide_lead_to_files(self):
        page = (ROOT / "docs" / "host_programming.md").read_text(encoding="utf-8")
        links = re.findall(r"\]\(([^)#]+)", page)
        self.assertIn("windows.md", links)
        for link in links:
            self.assertTrue((ROOT / "docs" / link).exists(), link)
