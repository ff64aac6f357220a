"""The public headers, as the reference is made from them.

In the headers one comment documents a property, its getter and its setter, or the overloads of an
operation. Doxygen wants one for each, so copies are made with the comment repeated, and what
Doxygen says of a line of a copy is said of the line in the header.
"""

import os
import re
import subprocess

FLOORS = ["platform", "services", "pickers", "hosts/qt", "hosts/quick"]

# Declarations that mean the same in every class.
STANDARD_COMMENTS = [
    (r"friend (constexpr )?bool operator==\(.*\) = default;", "Whether all members are equal."),
    (r"void \w+(Event)\(Q\w+\* event\) override;", "Qt's event, which the window gets."),
    (r"bool (event\(QEvent\* event\)|focusNextPrevChild\(bool next\)) override;", "Qt's event, which the window gets."),
]


def public_headers(root):
    """The headers under PUBLIC_HEADERS of each floor, as paths from the root."""
    tracked = subprocess.run(["git", "ls-files", "-z", *FLOORS], cwd=root, check=True, capture_output=True).stdout.decode().split("\0")
    found = []
    for floor in FLOORS:
        with open(os.path.join(root, floor, "CMakeLists.txt"), encoding="utf-8") as file:
            text = file.read()
        for names in re.findall(r"PUBLIC_HEADERS\s+(.*?)(?:DEPENDS|\))", text, re.S):
            for name in names.split():
                found += [path for path in tracked if path.startswith(floor + "/") and os.path.basename(path) == name]
    return found


def property_name(declaration):
    """What `color() const`, `isColor() const` and `setColor(…)` have in common; else the name."""
    name = re.search(r"(~?\w+)\s*\(", declaration)
    if not name:
        return None
    bare = re.sub(r"^(set)?(Is|is|has)?(?=[A-Z])", "", name.group(1))
    return bare[0].lower() + bare[1:]


def share_comments(lines):
    """The lines of a header with repeated comments, and for each the line that it comes from."""
    result, origins = [], []

    def put(line, number):
        result.append(line)
        origins.append(number)

    comment, is_open, depth = [], False, 0
    shared, shared_name = [], None  # The comment of the property whose declarations come now.
    for number, line in enumerate(lines, 1):
        text = line.strip()
        if depth > 0 or is_open:
            pass  # Within a declaration of several lines, or a body.
        elif text.startswith("///") and not text.startswith("///<"):
            comment.append(line)
            put(line, number)
            continue
        elif text == "" or text.startswith(("//", "#", "}", "public:", "protected:", "private:")):
            comment, shared = [], []
            put(line, number)
            continue
        elif text.startswith(("template", "requires")) and "(" not in text:
            put(line, number)  # The declaration comes with the next line.
            continue
        else:
            name = property_name(text)
            if comment:
                shared, shared_name, comment = comment, name, []
            elif name is not None and name == shared_name and "///<" not in text:
                at = len(result)
                while at > 0 and result[at - 1].strip().startswith(("template", "requires")):
                    at -= 1
                result[at:at] = shared
                origins[at:at] = [number] * len(shared)
            else:
                shared, shared_name = [], None
                for pattern, standard in STANDARD_COMMENTS:
                    if re.fullmatch(pattern, text):
                        put("\n", number)  # So that it does not go on behind the line before.
                        put("/// " + standard + "\n", number)
            if re.match(r"(class|struct|namespace|enum|extern)\b", text) and text.endswith("{"):
                put(line, number)
                shared, shared_name = [], None
                continue  # What is within has comments of its own.
        put(line, number)
        code = re.sub(r'"(\\.|[^"\\])*"|//.*', "", text).strip()
        depth = max(0, depth + code.count("{") - code.count("}"))
        is_open = depth == 0 and code != "" and not code.endswith((";", "}", "{", ">"))
    return result, origins


def write_copies(root, folder):
    """Writes the copies; returns for each its name and the header and lines that it comes from."""
    os.makedirs(folder, exist_ok=True)
    sources = {}
    for path in public_headers(root):
        with open(os.path.join(root, path), encoding="utf-8") as file:
            lines, origins = share_comments(file.readlines())
        name = os.path.basename(path)
        with open(os.path.join(folder, name), "w", encoding="utf-8") as file:
            file.writelines(lines)
        sources[name] = (path, origins)
    return sources
