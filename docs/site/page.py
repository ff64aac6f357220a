"""What all pages share: the frame around them, links between them, and code in colours."""

import functools
import html
import os
import re

from pygments import highlight
from pygments.formatters import HtmlFormatter
from pygments.lexers import get_lexer_by_name
from pygments.util import ClassNotFound

SECTIONS = [("guide", "Guide", "guide/index.html"), ("reference", "Reference", "reference/index.html"),
            ("documents", "Documents", "architecture.html"), ("demo", "Demo", "demo.html")]


class Page:
    """One page: its path in the site, its title, its section, and what it says."""

    def __init__(self, path, title, section, body, summary=""):
        self.path = path
        self.title = title
        self.section = section
        self.body = body
        self.summary = summary
        self.entries = []  # For the search: (name, anchor, summary).


@functools.cache
def path_from(folder, path):
    return os.path.relpath(path, folder or ".")


def relative(target, page):
    """The link from a page to a path of the site, which may end in an anchor."""
    path, mark, anchor = target.partition("#")
    link = path_from(os.path.dirname(page), path) if path != page else ""
    return (link + mark + anchor) or os.path.basename(page)


def code(text, language):
    """A block of code in colours; as it is in a language that is not known."""
    try:
        lexer = get_lexer_by_name(language or "text", stripnl=False)
    except ClassNotFound:
        lexer = get_lexer_by_name("text", stripnl=False)
    lines = highlight(text, lexer, HtmlFormatter(nowrap=True)).rstrip("\n")
    return f'<pre class="code" tabindex="0"><code>{lines}</code></pre>'


def plain(text):
    return html.unescape(re.sub(r"<[^>]+>", "", text)).strip()


def frame(page, navigation):
    """The whole page. `navigation` is a list of (heading, [(title, path)]) for its section."""
    def link(path):
        return html.escape(relative(path, page.path))

    top = "".join(f'<a href="{link(path)}"{" aria-current=true" if key == page.section else ""}>{title}</a>'
                  for key, title, path in SECTIONS)
    side = ""
    for heading, entries in navigation:
        side += f"<h2>{html.escape(heading)}</h2><ul>" if heading else "<ul>"
        for title, path in entries:
            current = ' aria-current="page"' if path == page.path else ""
            side += f'<li><a href="{link(path)}"{current}>{html.escape(title)}</a></li>'
        side += "</ul>"
    if side:
        side = f'<nav class="side" aria-label="Pages"><details open><summary>Pages</summary>{side}</details></nav>'
    title = "GXUIPickers" if page.path == "index.html" else f"{page.title} – GXUIPickers"
    return f"""<!doctype html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="color-scheme" content="light dark">
<title>{html.escape(title)}</title>
<link rel="stylesheet" href="{link("style.css")}">
<script src="{link("index.js")}" defer></script>
<script src="{link("site.js")}" data-root="{html.escape(os.path.relpath(".", os.path.dirname(page.path) or "."))}" defer></script>
</head>
<body class="{"with-side" if side else "without-side"}">
<a class="skip" href="#content">To the content</a>
<header class="top"><a class="home" href="{link("index.html")}">GXUIPickers</a><nav aria-label="Sections">{top}</nav>
<form role="search"><input type="search" id="search" placeholder="Search" aria-label="Search" autocomplete="off"><ul id="found" hidden></ul></form></header>
{side}
<main id="content">
{page.body}
</main>
</body>
</html>
"""
