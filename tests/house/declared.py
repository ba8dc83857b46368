# SPDX-License-Identifier: MIT
"""
The names that a source declares.

C++ is read as tokens, without comments, string literals and includes. Whatever looks like a declaration counts as one: a type, then a
name, then something that can follow a declared name. This finds locals, parameters, template parameters, lambda captures, structured
bindings, enumerators and macros alike. An expression may be mistaken for a declaration, which does no harm, because its names are
declared elsewhere. The spacing of clang-format distinguishes "Type& name" from "a & b".
"""
import ast
import collections
import itertools
import re

TOKEN = re.compile(r'''
    (?P<comment> //[^\n]* | /\*.*?\*/ )
  | (?P<raw>     (?:u8|[uUL])?R"(?P<end>[^()\\\s]{0,16})\(.*?\)(?P=end)" )
  | (?P<literal> (?:u8|[uUL])?"(?:\\.|[^"\\\n])*"\w* | (?:u8|[uUL])?'(?:\\.|[^'\\\n])+' )
  | (?P<number>  \.?\d(?:[\w.]|'(?=\w)|(?<=[eEpP])[+-])* )
  | (?P<name>    [^\W\d]\w* )
  | (?P<line>    \n )
  | (?P<blank>   [^\S\n]+ )
  | (?P<sign>    :: | ->\*? | <<=? | <=>? | [>=!+\-*/%&|^]= | && | \|\| | \+\+ | -- | \.\.\. | \#\#? | . )
''', re.S | re.X)

KEYWORDS = set("""
    alignas alignof asm auto bool break case catch char char8_t char16_t char32_t class concept const consteval constexpr constinit
    const_cast continue co_await co_return co_yield decltype default delete do double dynamic_cast else enum explicit export extern
    false final float for friend goto if inline int long mutable namespace new noexcept nullptr operator override private protected
    public register reinterpret_cast requires return short signed sizeof static static_assert static_cast struct switch template
    this thread_local throw true try typedef typeid typename union unsigned using virtual void volatile wchar_t while
""".split())
# Keywords that may come before a declared name: types and what may follow a type.
TYPE_KEYWORDS = set("""
    auto bool char char8_t char16_t char32_t const constexpr constinit double float inline int long mutable short signed static
    thread_local unsigned void volatile wchar_t
""".split())
NAMING_KEYWORDS = ("class", "struct", "union", "enum", "typename", "concept")
# The arguments of these macros are declared names.
NAMING_MACROS = re.compile(r"(TYPED_)?TEST(_F|_P)?|MATCHER(_P\d?)?|ACTION(_P\d?)?|BENCHMARK_(DEFINE_)?F|INSTANTIATE_TEST_SUITE_P")
AFTER_NAME = {";", "=", ",", ")", "{", "(", "[", ":", "...", ""}

Token = collections.namedtuple("Token", "kind text start")


class Source:
    """The tokens of a C++ file and the names that it declares, each with its offset in the text."""

    def __init__(self, text):
        self.declared = []
        self.tokens = []
        self.read(text)
        self.partner = self.pairs()
        for index in range(len(self.tokens)):
            self.look_at(index)

    def read(self, text):
        """Reads the tokens of the code. Only macros are read among the directives, and their bodies count as separate statements."""
        tokens = [Token(match.lastgroup if match.lastgroup != "end" else "raw", match.group(), match.start())
                  for match in TOKEN.finditer(text)]
        tokens = [token for token in tokens if token.kind not in ("blank", "comment")]
        index = 0
        line_begins = True
        while index < len(tokens):
            token = tokens[index]
            if token.kind == "line":
                line_begins = True
            elif line_begins and token.text == "#":
                index, line = self.directive(tokens, index + 1)
                self.macro(line)
                continue
            else:
                line_begins = False
                self.tokens.append(token)
            index += 1

    @staticmethod
    def directive(tokens, index):
        line = []
        while index < len(tokens) and tokens[index].kind != "line":
            if tokens[index].text == "\\" and index + 1 < len(tokens) and tokens[index + 1].kind == "line":
                index += 2
                continue
            line.append(tokens[index])
            index += 1
        return index, line

    def macro(self, line):
        if len(line) < 2 or line[0].text != "define":
            return
        name, body = line[1], line[2:]
        self.declared.append((name.text, name.start))
        if body and body[0].text == "(" and body[0].start == name.start + len(name.text):
            close = next((at for at, token in enumerate(body) if token.text == ")"), len(body) - 1)
            self.declared += [(token.text, token.start) for token in body[:close] if token.kind == "name"]
            body = body[close + 1:]
        end = Token("sign", ";", name.start)
        self.tokens += [end, *body, end]

    def pairs(self):
        partner = {}
        opened = []
        for index, token in enumerate(self.tokens):
            if token.kind != "sign":
                continue
            if token.text in "([{":
                opened.append(index)
            elif token.text in ")]}" and opened:
                partner[index] = opened.pop()
                partner[partner[index]] = index
        return partner

    def text(self, index):
        return self.tokens[index].text if 0 <= index < len(self.tokens) else ""

    def is_name(self, index):
        return 0 <= index < len(self.tokens) and self.tokens[index].kind == "name" and self.text(index) not in KEYWORDS

    def opens(self, index):
        return self.tokens[index].kind == "sign" and self.text(index) in ("(", "[", "{")

    def add(self, index):
        if self.is_name(index):
            self.declared.append((self.text(index), self.tokens[index].start))

    def look_at(self, index):
        text, before, after = self.text(index), self.text(index - 1), self.text(index + 1)
        if self.is_name(index):
            if before in NAMING_KEYWORDS:
                # "class X;" refers to a class that is declared elsewhere, often in a library.
                if after != "::" and not (after == ";" and before in ("class", "struct")):
                    self.add(index)
            elif before == "..." and self.text(index - 2) in NAMING_KEYWORDS:
                self.add(index)
            elif before == "namespace":
                self.add_qualified_name(index)
            elif before == "using":
                if after == "=":
                    self.add(index)
            elif (after in AFTER_NAME or self.ends_template(index)) and self.follows_type(index, after):
                self.add(index)
                self.add_further_names(index + 1)
        elif text == "enum":
            self.add_listed_constants(index)
        elif text == "[" and self.tokens[index].kind == "sign":
            if before == "auto" or (before in ("&", "&&") and self.text(index - 2) == "auto"):
                for at in range(index + 1, self.partner.get(index, index)):
                    self.add(at)
            elif not (self.is_name(index - 1) or before in (")", "]", "[") or after == "["):
                self.add_captures(index)
        if text == "(" and NAMING_MACROS.fullmatch(before):
            self.add_arguments(index)

    def follows_type(self, index, after):
        before = self.tokens[index - 1] if index > 0 else None
        if before is None:
            return False
        if before.kind == "name":
            return before.text in TYPE_KEYWORDS or before.text not in KEYWORDS
        if after == ":" and before.text not in (">", "*", "&", "&&"):
            return False
        if before.text in ("*", "&", "&&", ">", ">>"):
            # After a type there is no blank before these; between operands there is one.
            front = self.tokens[index - 2] if index > 1 else before
            if front.text == "(":
                return after == ")" and self.text(index + 2) in ("(", "[")
            type_ends = front.kind == "name" or front.text in (">", ">>", "*", "&") or before.text in (">", ">>")
            return type_ends and front.start + len(front.text) == before.start
        if before.text == "]":
            return self.text(index - 2) == "]"
        if before.text == ")":
            return self.text(self.partner.get(index - 1, 0) - 1) == "decltype"
        return before.text == "..."

    def ends_template(self, index):
        """The name of the last template parameter if it is a value parameter; "const Type>" has no name."""
        before = self.text(index - 1)
        return self.text(index + 1) == ">" and (before in TYPE_KEYWORDS - {"const"} or self.is_name(index - 1))

    def add_qualified_name(self, index):
        self.add(index)
        while self.text(index + 1) == "::":
            index += 2
            self.add(index)

    def add_further_names(self, index):
        """The names after the first in a declaration like "int a = 1, *b, c"."""
        while index < len(self.tokens):
            if self.opens(index):
                index = self.partner.get(index, len(self.tokens)) + 1
                continue
            if self.text(index) in (";", ")", "]", "}"):
                return
            if self.text(index) == ",":
                at = index + 1
                while self.text(at) in ("*", "&"):
                    at += 1
                if self.text(at + 1) in ("=", ";", ",", "{", "[", "("):
                    self.add(at)
            index += 1

    def first_of_each(self, opening, wanted):
        """The first name of each item in a bracketed list, if `wanted` is true for it."""
        expected = True
        at = opening + 1
        while at < self.partner.get(opening, opening):
            if self.opens(at):
                at = self.partner.get(at, at)
            elif self.text(at) == ",":
                expected = True
            elif expected and self.is_name(at):
                expected = False
                if wanted(at):
                    self.add(at)
            at += 1

    def add_listed_constants(self, index):
        while index < len(self.tokens) and self.text(index) not in ("{", ";", ")"):
            index += 1
        if self.text(index) == "{":
            self.first_of_each(index, lambda at: True)

    def add_captures(self, index):
        self.first_of_each(index, lambda at: self.text(at + 1) == "=")

    def add_arguments(self, index):
        for at in range(index + 1, self.partner.get(index, index)):
            if self.tokens[at].kind != "name" and self.text(at) != ",":
                return
            self.add(at)


def of_code(text):
    return Source(text).declared


def of_python(text):
    starts = list(itertools.accumulate((len(line) + 1 for line in text.split("\n")), initial=0))
    names = []
    for node in ast.walk(ast.parse(text)):
        name = ""
        if isinstance(node, (ast.FunctionDef, ast.ClassDef)):
            name = node.name
        elif isinstance(node, ast.arg):
            name = node.arg
        elif isinstance(node, ast.Name) and isinstance(node.ctx, ast.Store):
            name = node.id
        elif isinstance(node, ast.Attribute) and isinstance(node.ctx, ast.Store) and getattr(node.value, "id", "") == "self":
            name = node.attr
        if name and not re.fullmatch(r"__\w+__", name):
            names.append((name, starts[node.lineno - 1]))
    return names


READERS = {".h": of_code, ".cpp": of_code, ".py": of_python}

# sample_faults() proves that each of these declarations is found, and nothing that is merely used.
SAMPLE = """
#include "notThis.h"
#define macroName(macroParameter) int macroBody = macroParameter;
class NotThis;
namespace space::inner = other;
template <typename TypeParameter, class... Pack, int kValueParameter> struct Æble : Base {
    explicit Æble(const char* constructed = "notThis") : member_(constructed) {}
    std::map<int, std::vector<int>> member_, second_{1}, *third_;
    std::array<std::function<void(int)>, 3> callbacks_;
    enum class Kinds : unsigned { Rød, kGrøn = 1 + used };
    [[nodiscard]] bool operator==(const Æble& compared) const;
    unsigned bits : 3;
    static constexpr int kArray[2]{used, used};
};
using Alias = int;
concept Idea = true;
template <class T> void packs(Pack&&... packed) noexcept;
TEST_F(SuiteName, TestName) {
    auto [bound, alsoBound] = used();
    for (const auto& [key, value] : used) {}
    for (int i = 0, end = used; i < end; ++i) {}
    if (const auto found = used.find(1); found != used.end()) return used(used);
    const auto lambda = [&used, captured = 1](auto lambdaParameter, Type& reference) { int local = 0; };
    int (*pointer)(int inside) = nullptr;
    try {} catch (const Failure& caught) {}
    decltype(used) deduced = used & used;
    used = used * used;
    call(used & used, used && used, used > used, R"(int notThis;)");
}
"""
DECLARED = set("""
    macroName macroParameter macroBody space inner TypeParameter Pack kValueParameter Æble constructed member_ second_ third_ callbacks_ Kinds
    Rød kGrøn compared bits kArray Alias Idea T packs packed SuiteName TestName bound alsoBound key value i end found lambda captured
    lambdaParameter reference local pointer inside caught deduced
""".split())


def sample_faults():
    """The names of the sample that are not found, and those that are found without being declared."""
    return sorted(DECLARED ^ {name for name, _ in of_code(SAMPLE)})
