"""The reference: pages of what Doxygen reads from the public headers, with examples and pitfalls.

Anything that Doxygen warns of is an error, and so is a public class without an example that is
compiled, or without its pitfalls. Both stand in docs/examples/reference, between two marks with
the class's name; `///` lines there are the pitfalls.
"""

import html
import os
import re
import subprocess
import textwrap
import xml.etree.ElementTree as ElementTree

import headers
import page as pages

FLOORS = [("platform", "Platform"), ("services", "Services"), ("pickers", "Pickers"), ("hosts/qt", "Qt")]
EXAMPLES = "docs/examples/reference"


def examples_in(root, ending):
    """For each name between marks: its pitfalls as a text, its code, and the file of both."""
    found = {}
    for name in sorted(os.listdir(os.path.join(root, EXAMPLES))):
        if not name.endswith(ending):
            continue
        with open(os.path.join(root, EXAMPLES, name), encoding="utf-8") as file:
            text = file.read()
        for match in re.finditer(r"^ *// \[([\w: ]+)\]\n(.*?)^ *// \[\1\]$", text, re.M | re.S):
            block = textwrap.dedent(match.group(2))
            pitfalls = re.match(r"(?:///.*\n)*", block).group()
            for key in match.group(1).split():
                entry = found.setdefault(key, {"pitfalls": "", "code": [], "file": f"{EXAMPLES}/{name}"})
                entry["pitfalls"] += re.sub(r"^/// ?", "", pitfalls, flags=re.M)
                entry["code"].append(block[len(pitfalls):].strip("\n"))
    return found


class Reference:
    def __init__(self, root, work):
        self.root = root
        self.sources = headers.write_copies(root, os.path.join(work, "headers"))
        self.findings = self.run_doxygen(work)
        self.compounds, self.namespaces = {}, []
        folder = os.path.join(work, "xml")
        for name in sorted(os.listdir(folder)):
            if re.match(r"(class|struct|concept|namespace)", name):
                compound = ElementTree.parse(os.path.join(folder, name)).getroot().find("compounddef")
                if compound.get("kind") == "namespace":
                    self.namespaces.append(compound)
                elif compound.get("prot") in ("public", "protected", None):
                    self.compounds[compound.get("id")] = compound
        self.examples = {"gx::" + key: example for key, example in examples_in(root, ".cpp").items()}
        self.classes = {key: c for key, c in self.compounds.items() if c.get("kind") in ("class", "struct")}
        self.places = {}  # Of each thing that Doxygen knows: its page and anchor.
        self.by_name = {}  # The same by its name, such as "UIWindow::tick".
        self.functions = {}  # What is in no class, by header.
        self.place_all()
        self.check_examples()

    def run_doxygen(self, work):
        """Doxygen's warnings, each at the place in the header that it comes from."""
        with open(os.path.join(self.root, "docs/site/Doxyfile"), encoding="utf-8") as file:
            settings = file.read()
        copies = os.path.join(work, "headers")
        settings += f'\nINPUT = "{copies}"\nSTRIP_FROM_PATH = "{copies}"\nOUTPUT_DIRECTORY = "{work}"\n'
        done = subprocess.run(["doxygen", "-"], input=settings, capture_output=True, text=True)
        findings = []
        for line in done.stderr.splitlines():
            place = re.match(r"(?:.*/)?([^/]*\.h):(\d+): (?:warning: |error: )?(.*)", line)
            if place and place.group(1) in self.sources:
                path, origins = self.sources[place.group(1)]
                number = origins[min(int(place.group(2)), len(origins)) - 1]
                line = f"{path}:{number}: {place.group(3)}"
            if line and line not in findings:
                findings.append(line)
        if done.returncode != 0:
            findings.append(f"doxygen ends with {done.returncode}")
        return findings

    def check_examples(self):
        names = {compound.findtext("compoundname"): compound for compound in self.classes.values()}
        for name, compound in names.items():
            example = self.examples.get(name)
            where = self.header_of(compound)
            if compound.get("prot") == "protected":
                continue  # For those who derive; shown with its class.
            if not example or not "".join(example["code"]).strip():
                self.findings.append(f"{where}: {name} has no example in {EXAMPLES}")
            elif not example["pitfalls"].strip():
                self.findings.append(f"{where}: {name} has no pitfalls in {example['file']}")
        for name in self.examples.keys() - names.keys():
            self.findings.append(f"{self.examples[name]['file']}: {name} is no public class")

    def header_of(self, element):
        return self.sources[element.find("location").get("file")][0]

    @staticmethod
    def short(name):
        return re.sub(r"^gx::((?:qt|quick)::)?", "", name)

    def members_of(self, compound):
        """Its public and protected members in the order of the header."""
        name = compound.findtext("compoundname").split("::")[-1]
        members = [m for m in compound.iter("memberdef") if m.get("prot") != "private" and not self.is_construction(m, name)]
        return sorted(members, key=lambda m: int(m.find("location").get("line")))

    @staticmethod
    def is_construction(member, name):
        """Constructors and destructors that only do what any would."""
        undocumented = not "".join(member.find("briefdescription").itertext()).strip()
        return undocumented and member.findtext("name").lstrip("~") == name

    def place_all(self):
        for key, compound in self.compounds.items():
            name = self.short(compound.findtext("compoundname"))
            if compound.get("kind") == "concept":
                self.functions.setdefault(self.header_of(compound), []).append(compound)
                self.put(key, "reference/functions.html#" + name, name)
                continue
            path = "reference/" + name.replace("::", ".") + ".html"
            self.put(key, path, name)
            self.place_members(self.members_of(compound), path, name + "::")
        for namespace in self.namespaces:
            members = [m for m in self.members_of(namespace) if m.find("location").get("file") in self.sources]
            self.place_members(members, "reference/functions.html", "")
            for member in members:
                self.functions.setdefault(self.header_of(member), []).append(member)

    def place_members(self, members, path, prefix):
        used = {}
        for member in members:
            name = member.findtext("name")
            used[name] = used.get(name, 0) + 1
            anchor = name.replace("~", "destructor-").replace(" ", "-") + ("" if used[name] == 1 else f"-{used[name]}")
            self.put(member.get("id"), f"{path}#{anchor}", prefix + name)
            for value in member.findall("enumvalue"):
                self.places[value.get("id")] = f"{path}#{anchor}"
                self.by_name.setdefault(prefix + value.findtext("name"), f"{path}#{anchor}")

    def put(self, key, place, name):
        self.places[key] = place
        self.by_name.setdefault(name, place)

    # Texts

    def linked_code(self, text, path, own=""):
        """`code` with a link, if it names something here."""
        name = re.sub(r"\(.*\)$", "", text.strip())
        name = re.sub(r"^(gx::)?((?:qt|quick)::)?", "", re.sub(r"^<GXUIPickers/(\w+)\.h>$", r"\1", name))
        for key in ([own + "::" + name] if own else []) + [name, re.sub(r"^.*?(\w+)\(\)->(\w+)$", r"\1::\2", name)]:
            place = self.by_name.get(key)
            if place and place.partition("#")[0] + "#" + place.partition("#")[2] != path + "#":
                return f'<a href="{html.escape(pages.relative(place, path))}"><code>{html.escape(text)}</code></a>'
        return f"<code>{html.escape(text)}</code>"

    def link_codes(self, body, path, own=""):
        """Links to the reference for what a page names in `code`, outside of blocks and links."""
        parts = re.split(r"(<pre.*?</pre>|<a .*?</a>|<h1.*?</h1>)", body, flags=re.S)
        for index in range(0, len(parts), 2):
            parts[index] = re.sub(r"<code>(.*?)</code>", lambda m: self.linked_code(html.unescape(m.group(1)), path, own), parts[index])
        return "".join(parts)

    def text(self, element, path, own=""):
        """HTML of a description."""
        if element is None:
            return ""
        result = html.escape(element.text or "")
        for child in element:
            result += self.child(child, path, own) + html.escape(child.tail or "")
        return result

    def child(self, child, path, own):
        inner = lambda: self.text(child, path, own)
        tag = child.tag
        simple = {"bold": "strong", "emphasis": "em", "itemizedlist": "ul", "orderedlist": "ol", "listitem": "li"}
        if tag in simple:
            return f"<{simple[tag]}>{inner()}</{simple[tag]}>"
        if tag == "para":
            # Lists and code stand beside paragraphs, not within them.
            body = re.sub(r"(<(?:ul|ol|pre)\b.*?</(?:ul|ol|pre)>)", r"</p>\1<p>", inner(), flags=re.S)
            return re.sub(r"<p>\s*</p>", "", f"<p>{body}</p>")
        if tag == "computeroutput":
            return self.linked_code("".join(child.itertext()), path, own)
        if tag == "ref":
            place = self.places.get(child.get("refid"))
            return f'<a href="{html.escape(pages.relative(place, path))}">{inner()}</a>' if place else inner()
        if tag == "ulink":
            return f'<a href="{html.escape(child.get("url"))}">{inner()}</a>'
        if tag in ("programlisting", "verbatim", "preformatted"):
            if tag == "programlisting":
                for space in child.iter("sp"):
                    space.text = " "
                lines = ["".join(line.itertext()) for line in child.findall("codeline")]
            else:
                lines = "".join(child.itertext()).split("\n")
            return pages.code(textwrap.dedent("\n".join(lines)).strip("\n"), "cpp")
        if tag == "simplesect":
            return f"<p><em>{html.escape(child.get('kind').capitalize())}</em></p>{inner()}"
        return {"mdash": "—", "ndash": "–", "nonbreakablespace": "&nbsp;", "linebreak": "<br>"}.get(tag) or inner()

    def description(self, element, path, own=""):
        return self.text(element.find("briefdescription"), path, own) + self.text(element.find("detaileddescription"), path, own)

    def brief(self, element):
        return " ".join("".join(element.find("briefdescription").itertext()).split())
