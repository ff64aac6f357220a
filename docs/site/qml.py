"""The reference of the QML module: a page for each type, from the comments of its sources.

- A type is a document in hosts/quick/qml; its class comment is the page's beginning.
- A property is an alias there. Its text is the comment of the item's Q_PROPERTY, which says what it
  is and what bad values do, and behind it the alias's own, which says unit, range and default.
- What all types have is PickerControl.qml's; the enumerations are those of QuickEnums.h.
- An example stands in docs/examples/reference/*.qml, between two marks with the type's name.

Anything of these that is missing is a finding. That the defaults are right, and what the examples
show, is tested by tests/hosts/quick/tst_reference.qml.
"""

import html
import os
import re

import documents
import page as pages
from reference import EXAMPLES, examples_in

TYPES = "hosts/quick/qml"
ITEMS = {"PickerItem": "hosts/quick/Pickers/QuickPickerItem.h", "ColumnsItem": "hosts/quick/Pickers/QuickColumnsItem.h"}
ENUMS = "hosts/quick/Pickers/QuickEnums.h"
COMMON = "PickerControl"
# What types are called in QML.
NAMES = {"double": "real", "QString": "string", "QStringList": "list<string>", "QList<double>": "list<real>", "QVariantList": "list<var>"}
HAVE_DEFAULTS = ("real", "int", "bool", "enumeration")
COMMENT = r"((?:^ *///[^\n]*\n)*)"


def text_of(comment):
    """Markdown of `///` lines."""
    return re.sub(r"^ */// ?", "", comment, flags=re.M).strip()


class Property:
    def __init__(self, name, kind, text, is_readonly=False):
        self.name = name
        self.kind = kind
        self.text = text
        self.is_readonly = is_readonly


class Type:
    def __init__(self, name, path, text):
        self.name = name
        self.path = path
        self.text = text
        self.properties = []
        self.signals = []
        self.values = []  # Of an enumeration.

    @property
    def page(self):
        return f"reference/qml-{self.name}.html"


class QmlReference:
    def __init__(self, root):
        self.root = root
        self.findings = []
        self.enums = self.read_enums()
        self.items = {name: self.read_item(path) for name, path in ITEMS.items()}
        self.common = self.read_type(COMMON)
        names = sorted(name[:-len(".qml")] for name in os.listdir(os.path.join(root, TYPES)) if name.endswith(".qml"))
        self.types = [self.read_type(name) for name in names if name != COMMON]
        self.examples = examples_in(root, ".qml")
        for type_ in self.types:
            if not "".join(self.examples.get(type_.name, {"code": []})["code"]).strip():
                self.findings.append(f"{type_.path}: {type_.name} has no example in {EXAMPLES}")
        for name in self.examples.keys() - {type_.name for type_ in self.types}:
            self.findings.append(f"{self.examples[name]['file']}: {name} is no type of the QML module")

    def read(self, path):
        with open(os.path.join(self.root, path), encoding="utf-8") as file:
            return file.read()

    def find(self, path, text, place, what):
        self.findings.append(f"{path}:{text.count(chr(10), 0, place) + 1}: {what}")

    def read_enums(self):
        result, source = [], self.read(ENUMS)
        pattern = COMMENT + r"^namespace (\w+) \{\nQ_NAMESPACE\n.*?^enum Value \{ (.*?) \};"
        for match in re.finditer(pattern, source, re.M | re.S):
            if not match.group(1):
                self.find(ENUMS, source, match.start(2), f"{match.group(2)} has no comment")
            enum = Type(match.group(2), ENUMS, text_of(match.group(1)))
            enum.values = [value.partition(" ")[0] for value in match.group(3).split(", ")]
            result.append(enum)
        return result

    def read_item(self, path):
        """The properties of an item, by name."""
        result, source = {}, self.read(path)
        for match in re.finditer(COMMENT + r"^ *Q_PROPERTY\(\s*([\w:<>]+)\s+(\w+)\s+([^)]*)\)", source, re.M):
            if not match.group(1):
                self.find(path, source, match.start(2), f"the property {match.group(3)} has no comment")
            enum = re.fullmatch(r"gx::quick::(\w+)::Value", match.group(2))
            kind = "enumeration " + enum.group(1) if enum else NAMES.get(match.group(2), match.group(2))
            result[match.group(3)] = Property(match.group(3), kind, text_of(match.group(1)), "WRITE" not in match.group(4))
        return result

    def read_type(self, name):
        path = f"{TYPES}/{name}.qml"
        source = self.read(path)
        begin = re.search(COMMENT + r"^(?:T\.)?(\w+) \{$", source, re.M)
        result = Type(name, path, text_of(begin.group(1)))
        if not result.text:
            self.find(path, source, begin.start(2), f"{name} has no comment")
        item = re.search(r"^    wheel: (\w+) \{$", source, re.M)
        known = self.items[item.group(1)] if item else {}
        for match in re.finditer(COMMENT + r"^    (?:readonly )?property (?:alias (\w+): item\.(\w+)|(\w+) (\w+): .*)$", source, re.M):
            comment = text_of(match.group(1))
            if match.group(2):
                behind = known.get(match.group(3))
                if not behind:
                    self.find(path, source, match.start(2), f"{item.group(1)} has no property {match.group(3)}")
                    continue
                found = Property(match.group(2), behind.kind, f"{behind.text}\n\n{comment}".strip(), behind.is_readonly)
            else:
                found = Property(match.group(5), match.group(4), comment)
            if not found.text:
                self.find(path, source, match.end(1), f"{name}.{found.name} has no comment")
            if found.kind.partition(" ")[0] in HAVE_DEFAULTS and not found.is_readonly and not re.search(r"\bDefault: ", comment):
                self.find(path, source, match.end(1), f"{name}.{found.name} does not say its default, as \"Default: 0.\"")
            result.properties.append(found)
        for match in re.finditer(COMMENT + r"^    signal (\w+).*$", source, re.M):
            if not match.group(1):
                self.find(path, source, match.start(2), f"the signal {match.group(2)} has no comment")
            result.signals.append(Property(match.group(2) + "()", "signal", text_of(match.group(1))))
        return result


class QmlPages:
    """The pages. `link` adds links to what a page names in `code`."""

    def __init__(self, qml, link, pictures):
        self.qml = qml
        self.link = link
        self.pictures = pictures  # Of a type: the pictures of its picker, as HTML for a page.

    def all_types(self):
        return self.qml.types + self.qml.enums

    def navigation(self):
        return [(type_.name, type_.page) for type_ in self.all_types()]

    def pages(self):
        return [self.page_of_type(type_) for type_ in self.qml.types] + [self.page_of_enum(enum) for enum in self.qml.enums]

    def briefs(self):
        return [(type_.name, type_.page, self.brief(type_.text)) for type_ in self.all_types()]

    @staticmethod
    def brief(text):
        return pages.plain(documents.rendered(re.split(r"(?<=\.)\s", text.split("\n\n")[0])[0]))

    def begin(self, type_, path):
        return f'<p class="where"><code>import GXUIPickers</code></p><h1>{type_.name}</h1><div class="purpose">' + \
            self.rendered(type_.text, path) + "</div>"

    def rendered(self, text, path):
        return self.link(documents.rendered(text), path)

    def page_of_type(self, type_):
        page = pages.Page(type_.page, type_.name, "reference", "", self.brief(type_.text))
        body = self.begin(type_, page.path) + self.pictures(type_.name, page.path)
        example = self.qml.examples.get(type_.name)
        if example:
            body += '<h2 id="example">Example</h2>' + "".join(pages.code(block, "qml") for block in example["code"])
            if example["pitfalls"].strip():
                body += f'<h2 id="pitfalls">Pitfalls</h2><div class="pitfalls">{self.rendered(example["pitfalls"], page.path)}</div>'
        body += '<h2 id="properties">Properties</h2>' + self.members(type_.properties, page)
        body += '<h2 id="all-pickers">Of all pickers</h2>' + self.rendered(self.qml.common.text, page.path) + \
            self.members(self.qml.common.properties + self.qml.common.signals, page)
        page.body = body
        return page

    def page_of_enum(self, enum):
        page = pages.Page(enum.page, enum.name, "reference", "", self.brief(enum.text))
        values = "".join(f"<li><code>{enum.name}.{value}</code></li>" for value in enum.values)
        page.body = self.begin(enum, page.path) + f'<h2 id="values">Values</h2><ul>{values}</ul>'
        return page

    def members(self, properties, page):
        result = ""
        for entry in properties:
            kind, _, enum = entry.kind.partition(" ")
            type_ = f'<a href="qml-{enum}.html">{enum}</a>' if enum else html.escape(kind)
            shown = entry.name if kind == "signal" else f"{entry.name} : {type_}"
            marks = "signal" if kind == "signal" else "read-only" if entry.is_readonly else ""
            anchor = entry.name.removesuffix("()")
            result += f'<section class="member"><h3 id="{anchor}"><code>{shown}</code>' + \
                (f'<span class="mark">{marks}</span>' if marks else "") + "</h3>" + self.rendered(entry.text, page.path) + "</section>"
            page.entries.append((anchor, anchor, self.brief(entry.text)))
        return result
