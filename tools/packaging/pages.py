"""The pages for people as they read on Windows: Markdown made into HTML, whose links stay in the package."""
import html
import posixpath
import re
from pathlib import Path

import markdown
from markdown.extensions import Extension
from markdown.treeprocessors import Treeprocessor

PROJECT = Path(__file__).resolve().parents[2]
TEMPLATE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>{title}</title>
<style>
body {{ font: 16px/1.5 "Segoe UI", sans-serif; color: #1b1f24; max-width: 62em; margin: 0 auto; padding: 0 1.5em 4em; }}
nav {{ border-bottom: 1px solid #d0d7de; padding: .7em 0; margin-bottom: 1.5em; }}
a {{ color: #0b57a4; }}
code, pre {{ font: 14px/1.45 Consolas, monospace; background: #f3f5f7; }}
code {{ padding: .1em .25em; overflow-wrap: anywhere; }}
pre {{ padding: .8em 1em; overflow-x: auto; }}
pre code {{ padding: 0; overflow-wrap: normal; }}
table {{ border-collapse: collapse; margin: 1em 0; }}
th, td {{ border: 1px solid #d0d7de; padding: .35em .7em; text-align: left; vertical-align: top; }}
th {{ background: #f3f5f7; }}
</style>
</head>
<body>
<nav><a href="{start}">TVLejisCore {version}</a></nav>
{body}
</body>
</html>
"""
START = "docs/index.html"
# What is for those who have the sources, and for nobody else.
SOURCES_ONLY = re.compile(r"<!-- sources only -->.*?<!-- end of sources only -->\n*", re.DOTALL)
ADDRESS = re.compile(r"[a-z]+:")
TITLE = re.compile(r"^# (.*)$", re.MULTILINE)


def anchor(heading, separator):
    """The anchor by which links in the sources name the heading."""
    return re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", separator)


class _Links(Treeprocessor):
    """A link to what is not in the package becomes plain text; one to what is nowhere in the project is a mistake."""

    def __init__(self, source, target, names):
        super().__init__()
        self.source, self.names = source, names
        self.folder, self.target_folder = posixpath.dirname(source), posixpath.dirname(target)

    def run(self, root):
        for link in root.iter("a"):
            path, mark, place = link.get("href").partition("#")
            if not path:
                continue
            place_in_project = posixpath.normpath(posixpath.join(self.folder, path))
            name = self.names.get(place_in_project)
            if not (name or ADDRESS.match(path) or (PROJECT / place_in_project).exists()):
                raise ValueError(f"{self.source}: the link to {path} leads nowhere")
            if name:
                link.set("href", posixpath.relpath(name, self.target_folder or ".") + mark + place)
            else:
                link.tag = "span"
                del link.attrib["href"]


class _LinksExtension(Extension):
    def __init__(self, *words):
        super().__init__()
        self.words = words

    def extendMarkdown(self, md):  # its caller's name for it
        # After the text of lines has become elements.
        md.treeprocessors.register(_Links(*self.words), "links", 5)


def page(text, source, target, names, version, start=START):
    """The page `target` of the package, made from the Markdown text of the project's file `source`. `names` are the
    package's names of the project's files, `start` is its first page."""
    text = SOURCES_ONLY.sub("", text)
    extensions = ["tables", "fenced_code", "sane_lists", "toc", _LinksExtension(source, target, names)]
    body = markdown.markdown(text, extensions=extensions, extension_configs={"toc": {"slugify": anchor}})
    title = TITLE.search(text)[1].replace("`", "")
    return TEMPLATE.format(title=html.escape(title), version=version, body=body,
                           start=posixpath.relpath(start, posixpath.dirname(target) or "."))
