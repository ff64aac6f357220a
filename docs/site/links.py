"""Finds broken links, without network: in the Markdown documents, and in the pages of a site."""

import html
import os
import re
import urllib.parse

import documents


def links_of_markdown(text):
    """(line, target) of each link and picture outside of code."""
    fenced = False
    for number, line in enumerate(text.split("\n"), 1):
        if line.lstrip().startswith("```"):
            fenced = not fenced
        if fenced:
            continue
        line = re.sub(r"`[^`]*`", "", line)
        for match in re.finditer(r"\]\(\s*([^)\s]+)[^)]*\)|\b(?:src|href)=\"([^\"]*)\"", line):
            yield number, match.group(1) or match.group(2)


def anchors_of_markdown(text):
    found, used, fenced = set(), {}, False
    for line in text.split("\n"):
        if line.lstrip().startswith("```"):
            fenced = not fenced
        heading = None if fenced else re.match(r"#+ (.*)$", line)
        if heading:
            words = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", heading.group(1)).replace("`", "")
            anchor = documents.anchor_of(words)
            used[anchor] = used.get(anchor, 0) + 1
            found.add(anchor if used[anchor] == 1 else f"{anchor}-{used[anchor] - 1}")
    return found


def check_markdown(root, names, tracked):
    """Links of documents to files, folders and headings that are not there."""
    texts = {}
    for name in names:
        with open(os.path.join(root, name), encoding="utf-8") as file:
            texts[name] = file.read()
    known = set(tracked)
    folders = {name[:at] for name in tracked for at in range(len(name)) if name[at] == "/"} | {""}
    findings = []
    for name, text in texts.items():
        for number, link in links_of_markdown(text):
            if re.match(r"\w+:", link):
                continue
            path, _, anchor = urllib.parse.unquote(link).partition("#")
            path = os.path.normpath(os.path.join(os.path.dirname(name), path)) if path else name
            if path not in known and path not in folders and path != ".":
                findings.append(f"{name}:{number}: there is no {path}")
            elif anchor and path in texts and anchor not in anchors_of_markdown(texts[path]):
                findings.append(f"{name}:{number}: {path} has no heading #{anchor}")
    return findings


def check_site(folder):
    """Links of pages to files and anchors that are not there. The demo's own pages are left alone."""
    anchors, links = {}, []
    for at, folders, names in os.walk(folder):
        if os.path.abspath(at) == os.path.abspath(os.path.join(folder, "demo")):
            folders.clear()
            continue
        for name in names:
            path = os.path.join(at, name)
            if not name.endswith(".html"):
                continue
            with open(path, encoding="utf-8") as file:
                text = file.read()
            ids = re.findall(r'\bid="([^"]*)"', text)
            anchors[path] = set(ids)
            for twice in {key for key in ids if ids.count(key) > 1}:
                links.append((path, None, twice))
            for target in re.findall(r'\b(?:href|src|srcset)="([^"]*)"', text):
                links.append((path, html.unescape(target), None))
    findings = []
    for path, target, twice in links:
        name = os.path.relpath(path, folder)
        if twice is not None:
            findings.append(f"{name}: two elements with the id {twice}")
            continue
        if re.match(r"\w+:", target):
            continue
        place, _, anchor = target.partition("#")
        place = os.path.normpath(os.path.join(os.path.dirname(path), urllib.parse.unquote(place))) if place else path
        if not os.path.isfile(place):
            findings.append(f"{name}: there is no {target}")
        elif anchor and place in anchors and urllib.parse.unquote(anchor) not in anchors[place]:
            findings.append(f"{name}: there is no anchor {target}")
    return sorted(set(findings))
