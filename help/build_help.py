"""Builds the help from its one source:

    build_help.py --halibut HALIBUT --topics topics.txt --text TEXT.but... --pictures FOLDER --out OUT

leaves in OUT

    Varno.HLP, Varno.cnt   the Windows help file, with its context numbers, and its table of contents
    html/index.html        the same text as one page, with the pictures; each topic is an anchor
    html/amnen/TOPIC.html  a page for each topic that leads on to its anchor
    html/bilder/*.png      the pictures

A warning of Halibut, a topic without a heading and a picture without a topic end the build.
"""

import argparse
import html
import pathlib
import re
import shutil
import subprocess
import sys

import winhelp_file

STYLE = """<style>
body { font: 16px/1.5 "Segoe UI", Arial, sans-serif; max-width: 50em; margin: 2em auto; padding: 0 1em; color: #222; }
h1, h2, h3 { line-height: 1.25; margin-top: 2em; }
h1 { border-bottom: 1px solid #bbb; }
code { font-family: Consolas, "Courier New", monospace; }
pre { background: #f4f4f4; padding: .8em 1em; overflow-x: auto; }
pre b, pre i { font: inherit; }
img { max-width: 100%; border: 1px solid #ccc; }
h2:has(> a:target), h3:has(> a:target), h4:has(> a:target) { background: #fff3b0; }
</style>
"""

REDIRECT = """<!DOCTYPE html>
<html lang="sv"><head><meta charset="utf-8"><title>{title}</title>
<meta http-equiv="refresh" content="0; url=../index.html#{topic}"></head>
<body><p><a href="../index.html#{topic}">{title}</a></p></body></html>
"""


def fail(text):
    sys.exit(f"help: {text}")


def run_halibut(halibut, arguments, folder):
    result = subprocess.run([halibut, "--input-charset=UTF-8", *arguments], cwd=folder, capture_output=True, text=True, check=False)
    said = (result.stdout + result.stderr).strip()
    if result.returncode != 0 or said:
        fail(f"{halibut} {' '.join(arguments)}\n{said}")


def rows_of(path):
    """The lines of a list of ours that are neither empty nor a comment."""
    return [line for line in path.read_text(encoding="utf-8").splitlines() if line and not line.startswith("#")]


def topics_of(path):
    """topics.txt: name and context number."""
    return [(name, int(number)) for name, number in (row.split() for row in rows_of(path))]


def headings_of(page):
    """Keyword to the place behind its heading and the heading's text."""
    found = {}
    for match in re.finditer(r"<h[1-6]><a name=\"([^\"]+)\"></a>(.*?)</h[1-6]>\n?", page, re.DOTALL):
        text = " ".join(re.sub(r"<[^>]*>", "", match.group(2)).split())
        found[match.group(1)] = (match.end(), html.unescape(text))
    return found


def pictures_of(folder):
    """pictures.txt: topic, file and alternative text, between bars."""
    return [[part.strip() for part in row.split("|")] for row in rows_of(folder / "pictures.txt")]


def with_pictures(page, folder, out):
    headings = headings_of(page)
    insertions = []
    for topic, name, alternative in pictures_of(folder):
        if topic not in headings:
            fail(f"the picture {name} belongs to no topic: {topic}")
        tag = f'<p><img src="bilder/{name}" alt="{html.escape(alternative)}"></p>\n'
        insertions.append((headings[topic][0], tag))
        shutil.copyfile(folder / name, out / name)
    for place, tag in sorted(insertions, reverse=True):
        page = page[:place] + tag + page[place:]
    return page


def in_swedish_order(page):
    """The index, whose rows Halibut sorts as the machine's locale has it: the same everywhere, with å, ä and ö last."""
    heading = '<h2><a name="Register"></a>Register</h2><p>\n'
    if page.count(heading) != 1:
        fail("no index")
    start = page.index(heading) + len(heading)
    end = page.index("</p>", start)
    letters = str.maketrans("åäö", "\U00010000\U00010001\U00010002")

    def place(row):
        return row.split(": <a href=")[0].lower().translate(letters)

    rows = page[start:end].strip().removesuffix("<br>").split("<br>\n")
    return page[:start] + "<br>\n".join(sorted(rows, key=place)) + "\n" + page[end:]


def build_html(arguments, topics):
    folder = arguments.out / "html"
    shutil.rmtree(folder, ignore_errors=True)
    (folder / "bilder").mkdir(parents=True)
    (folder / "amnen").mkdir()
    run_halibut(arguments.halibut, ["--html=index.html", *arguments.text], folder)
    index = folder / "index.html"
    page = index.read_text(encoding="utf-8")
    page = page.replace("<html>", '<html lang="sv">', 1).replace("</head>", STYLE + "</head>", 1)
    page = in_swedish_order(page)
    page = with_pictures(page, arguments.pictures, folder / "bilder")
    index.write_text(page, encoding="utf-8", newline="\n")
    headings = headings_of(page)
    for name, _ in topics:
        if name not in headings:
            fail(f"no heading for the topic {name}")
        text = REDIRECT.format(topic=name, title=html.escape(headings[name][1]))
        (folder / "amnen" / f"{name}.html").write_text(text, encoding="utf-8", newline="\n")


def build_hlp(arguments, topics):
    run_halibut(arguments.halibut, ["--winhelp=Varno.HLP", *arguments.text], arguments.out)
    path = arguments.out / "Varno.HLP"
    try:
        file = winhelp_file.HelpFile(path.read_bytes())
        file.set_date(0)
        file.replace_macros({'"&Up"': '"&Upp"', '"&About"': '"&Om"'})
        file.set_context_numbers([(name.replace("-", "_"), number) for name, number in topics])
    except winhelp_file.HelpFileError as error:
        fail(str(error))
    path.write_bytes(file.content)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--halibut", required=True)
    parser.add_argument("--topics", type=pathlib.Path, required=True)
    parser.add_argument("--text", nargs="+", required=True)
    parser.add_argument("--pictures", type=pathlib.Path, required=True)
    parser.add_argument("--out", type=pathlib.Path, required=True)
    arguments = parser.parse_args()
    arguments.out.mkdir(parents=True, exist_ok=True)
    topics = topics_of(arguments.topics)
    if not topics:
        fail(f"no topics in {arguments.topics}")
    build_html(arguments, topics)
    build_hlp(arguments, topics)


if __name__ == "__main__":
    main()
