"""Links, and paths of the sources, lead to something that is there; every page is listed."""

import re
import unittest

from pages import DOCS, ROOT, all_pages, anchors_of, links_of, text_of

FOLDERS = "bench|catalogue|cli|cmake|docs|examples|fuzz|include|packaging|report|scripts|src|tests"


class Links(unittest.TestCase):
    maxDiff = None

    def test_links_lead_to_files_and_headings(self):
        broken = []
        for page in all_pages():
            for link in links_of(text_of(page)):
                name, _, anchor = link.partition("#")
                target = (page.parent / name).resolve() if name else page
                if not target.exists():
                    broken.append(f"{page.relative_to(ROOT)}: {link}: no such file")
                elif anchor and anchor not in anchors_of(text_of(target)):
                    broken.append(f"{page.relative_to(ROOT)}: {link}: no such heading")
        self.assertEqual(broken, [])

    def test_paths_of_the_sources_are_there(self):
        missing = []
        for page in all_pages():
            for path in re.findall(rf"`((?:{FOLDERS})/[\w./-]*)`", text_of(page)):
                if not (ROOT / path).exists():
                    missing.append(f"{page.relative_to(ROOT)}: {path}")
        self.assertEqual(missing, [])

    def test_index_and_readme_list_every_page(self):
        pages = {page for page in all_pages() if page.parent == DOCS and page.name != "README.md"}
        for list_of_pages in (DOCS / "README.md", ROOT / "README.md"):
            linked = {(list_of_pages.parent / link.partition("#")[0]).resolve()
                      for link in links_of(text_of(list_of_pages))}
            self.assertEqual({page.name for page in pages - linked}, set(), list_of_pages)
