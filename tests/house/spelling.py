#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""
    spelling.py ROOT

Proofreads the Danish that users read, with hunspell and its Danish dictionary: the handbook, the texts of the window, of src/extras and
of the programs' own main files, the picture of Quick Info, the desktop entry and the metainfo. The texts of src/desk and src/rules are
given and are not checked. Neither is what the handbook quotes from them, faults included: a passage in bold, in quotation marks or in a
table cell that is not the last of its row, if it stands in their sources as it is.

Names of keys and files, call signs and whatever else has a digit are recognised by their form. All other words that hunspell does not
know must be in spelling.txt.
"""
import ast
import collections
import html.parser
import os
import pathlib
import re
import shutil
import subprocess
import sys

sys.dont_write_bytecode = True
from names import listed

DICTIONARY = pathlib.Path("/usr/share/hunspell/da_DK.dic")
LIST = "spelling.txt"
MOST_WORDS = 60

GIVEN = ("src/desk", "src/rules")
SOURCES = ("src/qt/*.cpp", "src/extras/*.cpp", "src/main.cpp", "src/cty/main.cpp")
# These talk to developers, in English.
NOT_SHOWN = {"replay_main.cpp", "window_driver.cpp", "window_driver_input.cpp", "window_driver_look.cpp"}
# Calls and types whose texts are not shown, or only to developers.
HIDING = set("""AddProblem QFont MeasureFont Q_LOGGING_CATEGORY QRegularExpression QSettings QtText QUrl Read Write _wgetenv findChild findExecutable getenv
    inherits load property qWarning setDefaultStyleSheet setDesktopFileName setProperty setStyle setWindowIcon starts_with startsWith""".split())
# Statements that handle an object name or write to a log category.
HIDING_STATEMENT = re.compile(r"\b[oO]bjectName|setObjectName|qC(Debug|Warning)\b")

# Keys, files, the programs themselves, and everything with a digit.
SKIPPED = re.compile(
    r"(?:Ctrl|Alt|Skift)\+\S+"
    r"|\b(?:Page (?:Up|Down)|Home|End|Insert|Delete|Ctrl|Alt)\b"
    r"|[\w-]+\.(?:adi|com|dat|html?|ini|kopi|lock|puls|txt)\b(?:#\w+)?"
    r"|\bvatro-\w+"
    r"|\w*\d\w*", re.IGNORECASE)
WORD = re.compile(r"[^\W\d_]+(?:['’][^\W\d_]+)*")


class Text:
    """A text that is shown. If `quoting` is set, all of it may be quoted from the given texts; otherwise what is in bold or in quotation
    marks."""

    def __init__(self, place, line, words="", quoting=False):
        self.place, self.line, self.words, self.quoting = place, line, words, quoting
        self.bold = []

    def own(self, given):
        """The text with blanks in place of what it quotes."""
        spans = [(0, len(self.words))] if self.quoting else self.bold + [found.span(1) for found in re.finditer(r'"([^"]*)"', self.words)]
        own = self.words
        for start, end in spans:
            # "..." and what has a digit stand for the variable parts of a message, "|" for a new line.
            for piece in re.finditer(r"(?:(?!\.\.\.|\w*\d\w*|\|).)+", own[start:end], re.DOTALL):
                if WORD.search(piece[0]) and given.has(piece[0]):
                    at = start + piece.start()
                    own = own[:at] + re.sub(r"\S", " ", piece[0]) + own[at + len(piece[0]):]
        return own


class Page(html.parser.HTMLParser):
    """A page of the handbook. Inline tags do not end a text, so that a word may have bold letters."""

    BLOCKS = set("h1 h2 h3 li p td th title".split())

    def __init__(self, place, text):
        super().__init__()
        self.place, self.texts, self.cells, self.open = place, [], [], []
        self.feed(text)
        self.close()

    def handle_starttag(self, tag, attrs):
        if tag == "br":
            self.add("|")
        elif tag not in ("img", "meta"):
            self.open.append(tag)
        if tag == "tr":
            self.cells = []
        if tag in self.BLOCKS:
            self.texts.append(Text(self.place, self.getpos()[0]))
        if tag in ("td", "th"):
            self.cells.append(self.texts[-1])

    def handle_endtag(self, tag):
        self.open.remove(tag)
        if tag == "tr":
            for cell in self.cells[:-1]:
                cell.quoting = True

    def handle_data(self, data):
        self.add(re.sub(r"\S+", "", data) + " " if {"code", "pre"} & set(self.open) else data)

    def add(self, data):
        if not self.texts:
            return
        text = self.texts[-1]
        if "b" in self.open:
            text.bold.append((len(text.words), len(text.words) + len(data)))
        text.words += data


def page_texts(place, text):
    return Page(place, text).texts


TOKEN = re.compile(
    r"//[^\n]*|/\*.*?\*/|^[ \t]*#include[^\n]*"
    r"|(?<!\w)(?:u8|[uUL])?'(?:[^'\\]|\\.)+'"
    r'|(?P<text>(?:"(?:[^"\\]|\\.)*"(?:_t)?\s*)+)'
    r"|(?P<name>(?:\w+\s+)?\w+(?:<[\w:*]+>)?\s*)?(?P<open>\()|(?P<close>\))", re.DOTALL | re.MULTILINE)


def literals(text):
    """The string literals of a C++ source: the line, the text with adjacent literals joined, the calls around it, and the code before it
    in its statement."""
    calls = []
    for token in TOKEN.finditer(text):
        if token["open"]:
            # The name of the call, or type and name of what is declared.
            calls.append(token["name"] or "")
        elif token["close"] and calls:
            calls.pop()
        elif token["text"]:
            words = "".join(re.findall(r'"((?:[^"\\]|\\.)*)"', token["text"]))
            words = re.sub(r"\\[nrt]", " ", words).replace('\\"', '"')
            before = text[:token.start()]
            yield text.count("\n", 0, token.start()) + 1, words, calls, before[max(before.rfind(mark) for mark in ";{}") + 1:]
    if calls:
        sys.exit(f"a source was misread: a bracket after \"{calls[-1]}\" is not closed")


def shown(words, calls, before):
    """True if a literal is a text for the user."""
    if any(set(re.findall(r"\w+", call)) & HIDING for call in calls) or HIDING_STATEMENT.search(before):
        return False
    before = re.sub(r"\w+\($", "", before).rstrip()
    if before.endswith(("==", "!=")):
        return False
    # A text without a blank is a key if it is a constant, and a name if it has "/", "_" or a capital inside.
    return " " in words or not (re.search(r"\bk[A-Z]\w*\s*=$", before) or re.search(r"[/_]|[a-zæøå][A-ZÆØÅ]", words))


def source_texts(place, text):
    return [Text(place, line, re.sub(r"&(?=\w)", "", words)) for line, words, calls, before in literals(text)
            if shown(words, calls, before)]


class Given:
    """The texts of the given sources."""

    def __init__(self, texts):
        self.all = "\n".join(self.plain(text) for text in texts)

    @staticmethod
    def plain(text):
        return " ".join(text.replace("&", "").split())

    def has(self, passage):
        # One word alone is a quotation only if it is a whole text.
        before, after = (r"(?<!\w)", r"(?!\w)") if len(WORD.findall(passage)) > 1 else (r"(?m:^)\W*", r"\W*(?m:$)")
        return re.search(before + re.escape(self.plain(passage).strip(" .:,!?")) + after, self.all) is not None


def given_texts(root):
    return Given([words for folder in GIVEN for file in sorted((root / folder).rglob("*")) if file.suffix in (".h", ".cpp")
                  for _, words, _, _ in literals(file.read_text(encoding="utf-8"))])


def picture_texts(place, text):
    """The captions and sentences that a script draws: its strings with a blank, except documentation. "..." begins a quotation."""
    tree = ast.parse(text)
    # Documentation, and names of fonts.
    hidden = {node.value for node in ast.walk(tree) if isinstance(node, ast.Expr)}
    hidden |= {part for node in ast.walk(tree) if isinstance(node, ast.Call) and getattr(node.func, "attr", "") == "select_font_face"
               for part in ast.walk(node)}
    return [Text(place, node.lineno, node.value, node.value.startswith("...")) for node in ast.walk(tree) if isinstance(node, ast.Constant)
            and isinstance(node.value, str) and " " in node.value and node not in hidden]


def danish_lines(place, text):
    """The lines of a desktop entry or a metainfo file that are marked as Danish."""
    marked = re.compile(r'^\w+\[da\]=(.*)|xml:lang="da">([^<]*)<', re.MULTILINE)
    return [Text(place, text.count("\n", 0, found.start()) + 1, found[1] or found[2]) for found in marked.finditer(text)]


def all_texts(root):
    kinds = [(page_texts, "help/*.html"), *((source_texts, pattern) for pattern in SOURCES), (picture_texts, "packaging/make-quickinfo"),
             (danish_lines, "packaging/*.desktop"), (danish_lines, "packaging/*.metainfo.xml")]
    texts = []
    for read, pattern in kinds:
        found = []
        for file in sorted(root.glob(pattern)):
            if file.name not in NOT_SHOWN:
                found += read(file.relative_to(root).as_posix(), file.read_text(encoding="utf-8"))
        if not found:
            sys.exit(f"{pattern}: no texts were found, where there must be some")
        texts += found
    return texts


def words_of(texts, given):
    """Each word of the texts with its place. The word has its full stop, as some abbreviations are known only with theirs."""
    for text in texts:
        own = SKIPPED.sub(lambda found: " " * len(found[0]), text.own(given))
        for found in WORD.finditer(own):
            if len(found[0]) > 1:
                line = text.line + own.count("\n", 0, found.start())
                yield found[0] + ("." if own[found.end():found.end() + 1] == "." else ""), f"{text.place}:{line}"


def unknown_to_hunspell(words):
    """The words that hunspell does not know."""
    call = ["hunspell", "-d", str(DICTIONARY.with_suffix("")), "-i", "utf-8", "-l"]
    answers = set(subprocess.run(call, input="".join(f"{word}\n" for word in sorted(words)), capture_output=True, text=True,
                                 encoding="utf-8", check=True).stdout.split("\n"))
    # hunspell takes a word with an apostrophe for two. Danish needs so few of them that they all count as unknown.
    return {word for word in words if re.search("['’]", word) or word in answers}


# Every run first proves that these faults are found, and nothing else.
SAMPLE_GIVEN = 'box.text = "Der må kun køre een udgave"_t;'
SAMPLE_PAGE = """<p>Tryk Skift+Home i <code>fejll</code>, se fejll.txt og OZ1ABC kl. 12: en kontkat, og <b>een</b>.</p><p>Beskeden
"kun køre een udgave" er rigtigg.</p><table><tr><td>... køre een udgave</td><td>køre een udgave</td></tr></table>"""
SAMPLE_SOURCE = """box.text = "Vælg et "  // biblotk
    "bibliotk"_t; box->setObjectName(QStringLiteral("lampn")); box->setTitle(QStringLiteral("&Løbendee kopi"));
    constexpr std::string_view kKey = "Kopib"; if (key == "Entr") Tell("EDR's liste");"""
SAMPLE_FAULTS = ["EDR's", "Løbendee", "bibliotk", "een", "een.", "kontkat", "rigtigg."]


def list_faults(allowed, unknown, used):
    if len(allowed) >= MOST_WORDS:
        yield f"{LIST} has {len(allowed)} words; it stays under {MOST_WORDS}"
    if allowed != sorted(set(allowed), key=lambda word: (word.lower(), word)):
        yield f"{LIST} is not sorted, or a word stands there twice"
    for word in allowed:
        if word not in unknown:
            yield f"{LIST}: hunspell knows {word}"
        elif word not in used:
            yield f"{LIST}: no text uses {word}"


def main(root):
    missing = "hunspell" if shutil.which("hunspell") is None else "hunspell-da" if not DICTIONARY.exists() else ""
    if missing:
        print(f"{missing} is not installed")
        return 1 if os.environ.get("CI") == "true" else 77

    sample = list(words_of(page_texts("", SAMPLE_PAGE) + source_texts("", SAMPLE_SOURCE), Given([SAMPLE_GIVEN])))
    places = collections.defaultdict(list)
    for word, place in words_of(all_texts(root), given_texts(root)):
        places[word].append(place)
    allowed = listed(root / "tests/house" / LIST)
    unknown = unknown_to_hunspell({word for word, _ in sample} | set(places) | set(allowed))

    found = sorted(word for word, _ in sample if word in unknown)
    if found != SAMPLE_FAULTS:
        sys.exit(f"the faults of the sample are not found as they should be: {' '.join(found)}")

    faults, used = [], set()
    for word in unknown & set(places):
        plain = word.rstrip(".")
        # A listed abbreviation in capitals also stands for its plural and genitive.
        forms = {plain, plain.lower(), *([plain[:-1]] if re.fullmatch(r"[A-ZÆØÅ]+s", plain) else [])} & set(allowed)
        used |= forms
        if not forms:
            more = f" and {len(places[word]) - 1} more" if len(places[word]) > 1 else ""
            faults.append(f"{places[word][0]}{more}: {plain}")
    faults += list_faults(allowed, unknown, used)
    print(*sorted(faults), f"{len(places)} words, {len(faults)} faults", sep="\n")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
