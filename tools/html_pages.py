#!/usr/bin/python3
"""Turns the guide and the reference into pages for a browser.

    tools/html_pages.py FOLDER ROOT PAGE.md ...

The sources are named as they stand below ROOT; FOLDER gets a page for each in the same place, with all of them at its
head. A link to one of the sources becomes one to its page; where that lacks the heading, this is told and ends with 1.
Other links stay as they are.
Debian's own Python runs it, since the packages that it needs are Debian's.
"""
import html
import os
import sys
from pathlib import Path
from urllib.parse import urlsplit

from markdown_it import MarkdownIt
from mdit_py_plugins.anchors import anchors_plugin

PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>{title}</title>
<style>
body {{ max-width: 60em; margin: 0 auto; padding: 1em; font: 16px/1.5 "Segoe UI", sans-serif; color: #222; }}
nav {{ border-bottom: 1px solid #ccc; padding-bottom: .5em; }}
nav a {{ margin-right: 1em; }}
h1, h2, h3, h4 {{ line-height: 1.2; margin-top: 1.5em; }}
code, pre {{ font: 14px/1.4 Consolas, monospace; background: #f4f4f4; }}
pre {{ padding: .7em; overflow-x: auto; }}
table {{ border-collapse: collapse; display: block; overflow-x: auto; }}
th, td {{ border: 1px solid #ccc; padding: .2em .6em; text-align: left; vertical-align: top; }}
</style>
</head>
<body>
<nav>{pages}</nav>
{body}
</body>
</html>
"""


class Page:
    def __init__(self, root, path):
        self.path = path
        self.place = path.with_suffix(".html")
        self.parser = MarkdownIt("commonmark").enable("table").use(anchors_plugin, max_level=4)
        self.tokens = self.parser.parse((root / path).read_text(encoding="utf-8"))
        headings = [index for index, token in enumerate(self.tokens) if token.type == "heading_open"]
        self.anchors = {self.tokens[index].attrGet("id") for index in headings}
        self.title = self.tokens[headings[0] + 1].content

    def links(self):
        """Each with what it begins with."""
        for token in self.tokens:
            inside = token.children or []
            yield from (pair for pair in zip(inside, inside[1:]) if pair[0].type == "link_open")

    def bind(self, pages):
        """Leads links to pages instead of their sources; yields those to headings that are not there."""
        for link, text in self.links():
            target = urlsplit(link.attrGet("href"))
            page = pages.get(Path(os.path.normpath(self.path.parent / target.path))) if target.path else self
            if target.scheme or not page:
                continue
            if target.fragment and target.fragment not in page.anchors:
                yield f"{self.path}: {page.path} has no heading called #{target.fragment}"
            if target.path:
                text.content = text.content.removesuffix(".md")
                link.attrSet("href", self.way_to(page) + ("#" + target.fragment if target.fragment else ""))

    def way_to(self, page):
        return os.path.relpath(page.place, self.place.parent)

    def render(self, pages):
        links = " ".join(f'<a href="{self.way_to(each)}">{html.escape(each.title)}</a>' for each in pages)
        body = self.parser.renderer.render(self.tokens, self.parser.options, {})
        return PAGE.format(title=html.escape(self.title), pages=links, body=body)


def main(folder, root, *sources):
    pages = {Path(source): Page(Path(root), Path(source)) for source in sources}
    broken = [each for page in pages.values() for each in page.bind(pages)]
    print(*broken, sep="\n", end="\n" if broken else "", file=sys.stderr)
    for page in pages.values():
        place = Path(folder) / page.place
        place.parent.mkdir(parents=True, exist_ok=True)
        place.write_text(page.render(pages.values()), encoding="utf-8", newline="\n")
    return 1 if broken else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
