#!/usr/bin/python3
"""Writes the documents, the reference, pictures and the demo as pages: build.py FOLDER [--pictures DIR] [--demo DIR]

Exits with 1, after a line for each finding, if Doxygen warns, a class has no example or no pitfalls, a QML property has no comment
or no default, or a link is broken.
"""

import argparse
import json
import os
import re
import shutil
import subprocess
import sys

from pygments.formatters import HtmlFormatter

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
sys.path.insert(0, HERE)

import documents  # noqa: E402
import links  # noqa: E402
import page as pages  # noqa: E402
import qml  # noqa: E402
import reference  # noqa: E402
import reference_pages  # noqa: E402

# The page of the gallery, as its pictures are called, that shows a class.
PICTURES = {"GXDistancePickerView": "distance", "GXDurationPickerView": "duration", "GXPacePickerView": "pace", "GXSpeedPickerView": "speed",
            "GXHeartRatePickerView": "heart-rate", "GXBpmPickerView": "beats-per-minute", "GXCaloriesPickerView": "calories",
            "GXWeightPickerView": "weight", "GXHeightPickerView": "height", "GXTemperaturePickerView": "temperature",
            "GXDistanceAndDurationPicker": "add-workout-distance-and-time", "GXWeatherAndTemperaturePickerView": "add-workout-weather"}


def files_of_repository():
    command = ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"]
    names = subprocess.run(command, cwd=ROOT, check=True, capture_output=True).stdout.decode().split("\0")
    return sorted({name for name in names if name and os.path.exists(os.path.join(ROOT, name))})


def chapters():
    """The guide's chapters in the order of its own list."""
    with open(os.path.join(ROOT, "docs/guide/README.md"), encoding="utf-8") as file:
        return re.findall(r"^\| \[([^\]]+)\]\(([\w-]+)\.md\)", file.read(), re.M)


def style():
    with open(os.path.join(HERE, "style.css"), encoding="utf-8") as file:
        text = file.read()
    light = HtmlFormatter(style="friendly").get_style_defs(".code")
    dark = HtmlFormatter(style="github-dark").get_style_defs(".code")
    keep = lambda rules: "\n".join(line for line in rules.split("\n") if line.startswith(".code .") and "background" not in line)
    return f"{text}\n{keep(light)}\n@media (prefers-color-scheme: dark) {{\n.code span {{ color: inherit }}\n{keep(dark)}\n}}\n"


def demo_page(demo):
    if demo:
        body = '<h1>Demo</h1><p>The library itself, compiled to WebAssembly. A browser loads it from a server only: ' \
               '<code>./run --web</code> is one, and so is <code>python3 -m http.server -d build/site</code>.</p>' \
               '<p><a class="button" href="demo/index.html">Open the demo alone</a></p>' \
               '<iframe class="demo" src="demo/index.html" title="The gallery in the browser"></iframe>'
    else:
        body = '<h1>Demo</h1><p>This copy of the site was written without the demo, since the tools for WebAssembly were not there. ' \
               '<code>./run --web</code> builds and shows it.</p>'
    return pages.Page("demo.html", "Demo", "demo", body)


def write(folder, arguments):
    tracked = files_of_repository()
    names = [name for name in tracked if name.endswith(".md")]
    work = os.path.join(ROOT, "build/reference")
    shutil.rmtree(work, ignore_errors=True)
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)

    api = reference.Reference(ROOT, work)
    module = qml.QmlReference(ROOT)
    for type_ in module.types + module.enums:
        api.put(None, type_.page, type_.name)
    findings = api.findings + module.findings + links.check_markdown(ROOT, names, tracked)

    drawn = {}  # Pictures made now, by name.
    if arguments.pictures:
        drawn = {name: os.path.join(arguments.pictures, name) for name in os.listdir(arguments.pictures) if name.endswith(".png")}
    of_class = {}
    for name, picture in PICTURES.items():
        pair = [f"{picture}-light.png", f"{picture}-dark.png"]
        if all(side in drawn for side in pair):
            of_class[name] = ["images/" + side for side in pair]
            of_class[re.sub(r"^GX|View$", "", name)] = of_class[name]  # The type of Qt Quick.

    docs = documents.Documents(ROOT, names, tracked)
    api_pages = reference_pages.ReferencePages(api, module, of_class)
    written = docs.pages()
    for page in written:
        page.body = api.link_codes(page.body, page.path)
    written += api_pages.pages() + docs.source_pages() + [demo_page(arguments.demo)]

    others = [page for page in written if page.section == "documents" and not page.path.startswith("source/")]
    navigation = {"guide": [("Guide", [("Overview", "guide/index.html")] + [(title, f"guide/{name}.html") for title, name in chapters()])],
                  "reference": api_pages.navigation(),
                  "documents": [("Documents", sorted((page.title, page.path) for page in others))]}
    index = []
    for page in written:
        path = os.path.join(folder, page.path)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(pages.frame(page, navigation.get(page.section, [])))
        if not page.path.startswith("source/"):
            index.append([page.title, page.path, page.summary])
            index += [[name, f"{page.path}#{anchor}", summary if page.section != "reference" else f"{page.title}: {summary}"]
                      for name, anchor, summary in page.entries]
    with open(os.path.join(folder, "index.js"), "w", encoding="utf-8") as file:
        file.write("window.searchIndex = " + json.dumps(index, ensure_ascii=False, separators=(",", ":")) + ";\n")
    with open(os.path.join(folder, "style.css"), "w", encoding="utf-8") as file:
        file.write(style())
    shutil.copy(os.path.join(HERE, "site.js"), folder)

    os.makedirs(os.path.join(folder, "images"), exist_ok=True)
    wanted = {os.path.basename(image): os.path.join(ROOT, image) for image in docs.images if image in tracked}
    for name in wanted.keys() | {os.path.basename(image) for pair in of_class.values() for image in pair}:
        shutil.copy(drawn.get(name) or wanted[name], os.path.join(folder, "images", name))
    if arguments.demo:
        shutil.copytree(arguments.demo, os.path.join(folder, "demo"))
    findings += links.check_site(folder)
    old = sorted(name for name in wanted if drawn and name.endswith(".png") and name not in drawn)
    for name in old:
        print(f"the picture of the repository, which the gallery does not draw: {name}")
    print(f"{len(written)} pages, {len(api.classes)} classes, {len(module.types)} types of QML, {len(wanted)} pictures of documents, {len(of_class)} classes and types with pictures")
    return findings


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folder")
    parser.add_argument("--pictures")
    parser.add_argument("--demo")
    arguments = parser.parse_args()
    findings = write(os.path.abspath(arguments.folder), arguments)
    for finding in findings:
        print(finding)
    if findings:
        sys.exit(f"{len(findings)} findings")


main()
