"""What the tests of the pages share: the pages, and what stands in them."""

import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parents[2]
DOCS = ROOT / "docs"


def all_pages():
    return [*ROOT.glob("*.md"), *DOCS.rglob("*.md")]


def text_of(page):
    return page.read_text(encoding="utf-8")


def without_code(text):
    """The text without its blocks, in which nothing is a heading or a link."""
    return re.sub(r"^```.*?^```$", "", text, flags=re.MULTILINE | re.DOTALL)


def fenced_blocks_of(text):
    """The fenced blocks, each behind its language."""
    return re.findall(r"^```(\w*)\n(.*?)^```$", text, re.MULTILINE | re.DOTALL)


def blocks_of(text, language=""):
    """The fenced blocks of a language."""
    return [block for of, block in fenced_blocks_of(text) if of == language]


def indented_blocks_of(text):
    """The indented blocks, without their indent."""
    blocks = re.findall(r"(?:\A|\n\n)((?:(?: {4}.*)?\n)*?(?: {4}.*\n))(?=\n|\Z)",
                        without_code(text))
    return [re.sub(r"^ {4}", "", block, flags=re.MULTILINE).strip("\n") for block in blocks]


def anchors_of(text):
    """What a link may name of a page: its headings, as they are shown on the web."""
    anchors = []
    for heading in re.findall(r"^#+ (.+)$", without_code(text), re.MULTILINE):
        words = re.sub(r"[^\w\- ]", "", heading.lower())
        anchors.append(words.replace(" ", "-"))
    return anchors


def links_of(text):
    """The targets of links and images that lie in the sources."""
    targets = re.findall(r"\]\(([^)\s]+)\)", without_code(text))
    return [target for target in targets if "://" not in target]
