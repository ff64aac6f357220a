"""The Markdown documents as pages: docs/guide/testing.md becomes guide/testing.html."""

import html
import os
import re

import markdown

import page as pages

# Documents outside of docs/, and what their pages are called.
OTHERS = {"README.md": "index.html", "CONTRIBUTING.md": "contributing.html", "CHANGELOG.md": "changelog.html",
          "hosts/web/package/README.md": "npm-package.html"}


def path_of(document):
    """The page of a document, or nothing for what is none."""
    if document in OTHERS:
        return OTHERS[document]
    if document.startswith("docs/") and document.endswith(".md"):
        path = document[len("docs/"):]
        return re.sub(r"README\.md$", "index.md", path)[:-len(".md")] + ".html"
    return None


def anchor_of(heading, separator="-"):
    """The anchor of a heading, as it is on pages of a code host."""
    text = re.sub(r"[^\w\- ]", "", heading.strip().lower())
    return text.replace(" ", separator)


def blocks_apart(text):
    """Puts a blank line before lists and code where there is none, which the renderer needs."""
    result, fenced = [], False
    for line in text.split("\n"):
        before = result[-1] if result else ""
        if line.lstrip().startswith("```"):
            if not fenced and before.strip():
                result.append("")
            fenced = not fenced
        elif not fenced and re.match(r"([-*]|\d+\.) ", line) and before.strip() and not re.match(r"\s|[-*] |\d+\. ", before):
            result.append("")
        result.append(line)
    return "\n".join(result)


def rendered(text):
    """HTML of Markdown; code blocks in colours."""
    kept = []

    def keep(match):
        kept.append(pages.code(match.group(2), match.group(1)))
        return f"\n@@code{len(kept) - 1}@@\n"

    text = re.sub(r"^```(\w*)\n(.*?)^```$", keep, blocks_apart(text), flags=re.M | re.S)
    body = markdown.markdown(text, extensions=["tables", "toc", "sane_lists"], tab_length=2,
                             extension_configs={"toc": {"slugify": anchor_of}})
    body = re.sub(r"<p>@@code(\d+)@@</p>|@@code(\d+)@@", lambda match: kept[int(match.group(1) or match.group(2))], body)
    return body.replace("<table>", '<div class="table"><table>').replace("</table>", "</table></div>")


class Documents:
    """All documents, and the files of the repository that they link to."""

    def __init__(self, root, names, tracked):
        self.root = root
        self.names = [name for name in names if path_of(name)]
        self.tracked = set(tracked)
        self.folders = {os.path.dirname(name) for name in tracked}
        while any(os.path.dirname(folder) not in self.folders for folder in self.folders):
            self.folders |= {os.path.dirname(folder) for folder in self.folders}
        self.linked = set()  # Files and folders that get pages of their own.
        self.images = set()

    def target(self, document, link):
        """The place in the site of a link in a document; nothing for one that leads elsewhere."""
        path, _, anchor = link.partition("#")
        if re.match(r"\w+:", link):
            return None
        if path == "":
            return path_of(document) + "#" + anchor
        path = os.path.normpath(os.path.join(os.path.dirname(document), path))
        if path_of(path) and path in self.tracked:
            return path_of(path) + ("#" + anchor if anchor else "")
        if path.startswith("docs/images/"):
            self.images.add(path)
            return path[len("docs/"):]
        if path in self.tracked or path in self.folders:
            self.linked.add(path)
            return "source/" + path + ".html"
        return "missing/" + path  # The check of links finds it.

    def pages(self):
        return [self.page(name) for name in self.names]

    def page(self, name):
        with open(os.path.join(self.root, name), encoding="utf-8") as file:
            body = rendered(file.read())
        path = path_of(name)

        def follow(match):
            target = self.target(name, html.unescape(match.group(2)))
            return match.group(0) if target is None else f'{match.group(1)}="{html.escape(pages.relative(target, path))}"'

        body = re.sub(r'\b(href|src)="([^"]*)"', follow, body)
        heading = re.search(r"<h1[^>]*>(.*?)</h1>", body, re.S)
        title = pages.plain(heading.group(1)) if heading else os.path.basename(name)
        summary = re.search(r"<p>(.*?)</p>", body, re.S)
        section = "guide" if path.startswith("guide/") else "" if path == "index.html" else "documents"
        page = pages.Page(path, title, section, body, pages.plain(summary.group(1))[:160] if summary else "")
        for level, anchor, text in re.findall(r'<h([23]) id="([^"]*)">(.*?)</h\1>'.replace("\\1", "[23]"), body, re.S):
            page.entries.append((pages.plain(text), anchor, title))
        return page

    def source_pages(self):
        """A page for each file and folder of the repository that a document links to."""
        result = []
        for path in sorted(self.linked):
            if path in self.tracked:
                with open(os.path.join(self.root, path), encoding="utf-8", errors="replace") as file:
                    text = file.read()
                language = {".cpp": "cpp", ".h": "cpp", ".ts": "typescript", ".mjs": "javascript", ".py": "python", ".qml": "qml",
                            ".json": "json", ".cmake": "cmake", ".html": "html"}.get(os.path.splitext(path)[1], "text")
                body = pages.code(text, language)
            else:
                inside = sorted({name[len(path) + 1:].split("/")[0] for name in self.tracked if name.startswith(path + "/")})
                body = "<ul>" + "".join(f"<li><code>{html.escape(name)}</code></li>" for name in inside) + "</ul>"
            result.append(pages.Page("source/" + path + ".html", path, "documents", f"<h1>{html.escape(path)}</h1>{body}"))
        return result
