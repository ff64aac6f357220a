"""The pages of the reference: one for each class, one for what is in none, and the index."""

import html
import os
import re

import documents
import page as pages
import qml as qml_pages
from reference import FLOORS

# Of a class, in this order.
PARTS = [("Types", lambda m: m.get("kind") in ("enum", "typedef")),
         ("Constants and values", lambda m: m.get("kind") == "variable"),
         ("Static operations", lambda m: m.get("static") == "yes"),
         ("Operations", lambda m: True)]


def clean(text):
    return re.sub(r"\s+", " ", text or "").strip()


def declaration(member):
    """A member as it is declared, in one line."""
    kind, name = member.get("kind"), member.findtext("name")
    kind_text = "".join(member.find("type").itertext()) if member.find("type") is not None else ""
    if kind == "enum":
        strong = "enum class " if member.get("strong") == "yes" else "enum "
        return strong + name
    if kind == "typedef":
        return clean(f"using {name} = {kind_text}")
    if kind == "variable":
        return clean(f"{kind_text} {name} {member.findtext('initializer') or ''}")
    if kind == "friend":
        return clean("friend " + kind_text.replace("friend", "") + " " + name + (member.findtext("argsstring") or ""))
    template = member.find("templateparamlist")
    before = ""
    if template is not None:
        names = [clean("".join(p.find("type").itertext()) + " " + (p.findtext("declname") or "")) for p in template.findall("param")]
        before = f"template <{', '.join(names)}> "
    static = "static " if member.get("static") == "yes" else ""
    virtual = "virtual " if member.get("virt") != "non-virtual" and "override" not in (member.findtext("argsstring") or "") else ""
    text = clean(f"{before}{static}{virtual}{kind_text} {name}{member.findtext('argsstring') or ''}")
    return re.sub(r"< (.*?) >", r"<\1>", re.sub(r"< (.*?) >", r"<\1>", text))


class ReferencePages:
    def __init__(self, reference, qml, pictures):
        self.reference = reference
        self.qml = qml_pages.QmlPages(qml, reference.link_codes, self.pictures_of)
        self.pictures = pictures  # Of a class: its pictures, light and dark.

    def navigation(self):
        result = [("", [("All classes", "reference/index.html"), ("Functions and constants", "reference/functions.html")])]
        for folder, title in FLOORS:
            entries = [(name, path) for name, path, header in self.classes_in_order() if header.startswith(folder + "/")]
            result.append((title, entries))
        return result + [("Qt Quick", self.qml.navigation())]

    def classes_in_order(self):
        r = self.reference
        rows = [(r.short(c.findtext("compoundname")), r.places[key], r.header_of(c)) for key, c in r.classes.items()]
        return sorted(rows, key=lambda row: row[0].lower())

    def pages(self):
        classes = [self.page_of_class(c) for c in self.reference.classes.values()]
        return [self.index()] + classes + [self.page_of_functions()] + self.qml.pages()

    def index(self):
        r = self.reference
        body = "<h1>Reference</h1><p>Every public class, as its header says it, with an example that is compiled and run as a test, " \
               "and its pitfalls. Include a class as <code>&lt;GXUIPickers/Name.h&gt;</code>; all are in the namespace <code>gx</code>.</p>"
        briefs = {r.places[key]: r.brief(c) for key, c in r.classes.items()}
        for folder, title in FLOORS:
            body += f"<h2 id=\"{documents.anchor_of(title)}\">{title}</h2><dl class=\"classes\">"
            for name, path, header in self.classes_in_order():
                if header.startswith(folder + "/"):
                    body += f'<dt><a href="{pages.relative(path, "reference/index.html")}">{html.escape(name)}</a></dt><dd>{html.escape(briefs[path])}</dd>'
            body += "</dl>"
        body += '<h2 id="qt-quick">Qt Quick</h2><p>The types of <code>import GXUIPickers</code>.</p><dl class="classes">'
        for name, path, brief in self.qml.briefs():
            body += f'<dt><a href="{pages.relative(path, "reference/index.html")}">{name}</a></dt><dd>{html.escape(brief)}</dd>'
        body += "</dl>"
        return pages.Page("reference/index.html", "Reference", "reference", body)

    def page_of_class(self, compound):
        r = self.reference
        name = r.short(compound.findtext("compoundname"))
        path = r.places[compound.get("id")]
        header = r.header_of(compound)
        body = f'<p class="where"><code>#include &lt;GXUIPickers/{os.path.basename(header)}&gt;</code></p><h1>{html.escape(name)}</h1>'
        body += self.relatives(compound, path)
        body += f'<div class="purpose">{r.description(compound, path, name)}</div>'
        body += self.pictures_of(name, path)
        example = r.examples.get(compound.findtext("compoundname"))
        if example:
            body += '<h2 id="example">Example</h2>' + "".join(pages.code(block, "cpp") for block in example["code"])
            body += '<h2 id="pitfalls">Pitfalls</h2><div class="pitfalls">' + \
                r.link_codes(documents.rendered(example["pitfalls"]), path, name) + "</div>"
        page = pages.Page(path, name, "reference", "", r.brief(compound))
        members = r.members_of(compound)
        for title, group in (("", [m for m in members if m.get("prot") == "public"]), ("For subclasses", [m for m in members if m.get("prot") == "protected"])):
            rest = group
            for part, belongs in PARTS:
                chosen = [m for m in rest if belongs(m)]
                rest = [m for m in rest if not belongs(m)]
                if chosen:
                    heading = part if not title else f"{title}: {part.lower()}"
                    body += f'<h2 id="{documents.anchor_of(heading)}">{heading}</h2>' + self.members(chosen, path, name, page)
        body += self.inherited(compound, path)
        page.body = body
        return page

    def relatives(self, compound, path):
        parts = []
        for tag, words in (("basecompoundref", "Derives from"), ("derivedcompoundref", "Base of")):
            links = []
            for other in compound.findall(tag):
                place = self.reference.places.get(other.get("refid"))
                text = html.escape(self.reference.short(clean(other.text)))
                links.append(f'<a href="{pages.relative(place, path)}">{text}</a>' if place else f"<code>{text}</code>")
            if links:
                parts.append(f"{words} {', '.join(links)}.")
        return f'<p class="relatives">{" ".join(parts)}</p>' if parts else ""

    def pictures_of(self, name, path):
        pictures = self.pictures.get(name)
        if not pictures:
            return ""
        light, dark = (pages.relative(picture, path) for picture in pictures)
        return f'<picture><source srcset="{dark}" media="(prefers-color-scheme: dark)"><img class="picker" src="{light}" alt="The picker, as the gallery shows it" loading="lazy"></picture>'

    def members(self, members, path, own, page):
        """Entries; what is described in the same words stands in one."""
        r = self.reference
        groups = []
        for member in members:
            text = r.description(member, path, own)
            if groups and groups[-1][1] == text and text:
                groups[-1][0].append(member)
            else:
                groups.append(([member], text))
        result = ""
        for group, text in groups:
            result += '<section class="member">'
            for member in group:
                anchor = r.places[member.get("id")].partition("#")[2]
                result += f'<h3 id="{anchor}"><code>{html.escape(declaration(member))}</code></h3>'
                page.entries.append((member.findtext("name"), anchor, r.brief(member) or page.title))
            result += text or self.overridden(group[0], path)
            values = [(v.findtext("name"), r.description(v, path, own)) for v in group[0].findall("enumvalue")]
            if values:
                result += "<dl class=\"values\">" + "".join(f"<dt><code>{html.escape(n)}</code></dt><dd>{t}</dd>" for n, t in values) + "</dl>"
            result += "</section>"
        return result

    def overridden(self, member, path):
        above = member.find("reimplements")
        place = self.reference.places.get(above.get("refid")) if above is not None else None
        if not place:
            return ""
        name = os.path.basename(place.partition("#")[0])[:-len(".html")]
        return f'<p>As in <a href="{pages.relative(place, path)}">{name}</a>.</p>'

    def inherited(self, compound, path):
        """The names of what the public base classes have, folded away."""
        result, waiting, seen = "", [b.get("refid") for b in compound.findall("basecompoundref")], set()
        while waiting:
            key = waiting.pop(0)
            base = self.reference.classes.get(key)
            if base is None or key in seen:
                continue
            seen.add(key)
            waiting += [b.get("refid") for b in base.findall("basecompoundref")]
            name = self.reference.short(base.findtext("compoundname"))
            links = {}
            for member in self.reference.members_of(base):
                if member.get("prot") == "public":
                    links.setdefault(member.findtext("name"), self.reference.places[member.get("id")])
            if links:
                items = ", ".join(f'<a href="{pages.relative(p, path)}">{html.escape(n)}</a>' for n, p in links.items())
                result += f"<details><summary>From {html.escape(name)}</summary><p>{items}</p></details>"
        return f'<h2 id="inherited">Inherited</h2>{result}' if result else ""

    def page_of_functions(self):
        page = pages.Page("reference/functions.html", "Functions and constants", "reference", "",
                          "What is in no class: functions, constants, enumerations and concepts.")
        body = "<h1>Functions and constants</h1><p>What is in no class, by header.</p>"
        for header in sorted(self.reference.functions, key=os.path.basename):
            members = self.reference.functions[header]
            name = os.path.basename(header)
            body += f'<h2 id="{name}"><code>&lt;GXUIPickers/{name}&gt;</code></h2>'
            concepts = [m for m in members if m.tag == "compounddef"]
            for concept in concepts:
                short = self.reference.short(concept.findtext("compoundname"))
                body += f'<section class="member"><h3 id="{short}"><code>concept {short}</code></h3>{self.reference.description(concept, page.path)}</section>'
                page.entries.append((short, short, self.reference.brief(concept)))
            body += self.members([m for m in members if m.tag == "memberdef"], page.path, "", page)
        page.body = body
        return page
