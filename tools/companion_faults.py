"""Small faults in copies of layout/ and tools/nfe_summary/, and which tests find them.

What a fault touches is compiled again, without optimising; the rest is taken from a finished
build. Pages that one command makes anew are not among the tests here.
"""

import itertools
import json
import os
import pathlib
import re
import select
import shlex
import shutil
import subprocess

ROOT = pathlib.Path(__file__).resolve().parent.parent
SURVIVED, INVALID = "survived", "no program"
MAP = "static constexpr entries fields{"
FACTS = "fields_agree.py"
QUICK, WHOLE = (("document_round_trip_tests", only) for only in (
    "documents.*:*ride_along*:*each_text*:*exclude*:*nothing_knows*", "*"))


def masked(text, strings=True):
    """The text with blanks for comments, directives, templates' heads and what stands in quotes."""
    quoted = r"|\"(?:\\.|[^\"\\\n])*\"|(?<![\w])'(?:\\.|[^'\\\n])+'" if strings else ""
    skipped = r"//[^\n]*|^#[^\n]*|static_assert\([^;]*;|template <[^\n]*|^using [^\n]*"
    return re.sub(skipped + quoted, lambda found: re.sub(r"[^\n]", " ", found.group()), text,
                  flags=re.M)


def replaced(text, found, new, group=0):
    return text[:found.start(group)] + new + text[found.end(group):]


# Faults in a map: what is wrong, and the faulty text.

FIELD = (r"field<\"(?P<name>@?\w+)\",\s*(?P<accessors>&c::get_\w+,\s*&c::set_\w+)"
         r"(?P<form>[^<>]*)>,")


def neighbours(text):
    """Pairs of fields, one right behind the other."""
    for one, other in itertools.pairwise(re.finditer(FIELD, text)):
        if not text[one.end():other.start()].strip():
            yield one, other


def exchanged(text, one, other, group):
    return (text[:one.start(group)] + other[group] + text[one.end(group):other.start(group)]
            + one[group] + text[other.end(group):])


def exchanged_accessors(text):
    for one, other in neighbours(text):
        yield f"{one['name']}, {other['name']}", exchanged(text, one, other, "accessors")


def exchanged_alternatives(text):
    for one in re.finditer(r"(as<\"\w+\">)(,\s*)(as<\"\w+\">)", text):
        yield f"{one[1]}, {one[3]}", replaced(text, one, one[3] + one[2] + one[1])


def other_names(text):
    for one in re.finditer(r"(?:field|element|numbered|behind|as)<\"(\w+)\"", text):
        yield one[1], replaced(text, one, one[1][:-1] + ("x" if one[1][-1] != "x" else "y"), 1)


def other_widths(text):
    for one in re.finditer(r"(?:digits|digits_up_to|hexadecimal)\((\d+)\)", text):
        for number in (int(one[1]) - 1, int(one[1]) + 1):
            if number:  # which would be any width
                yield f"{one[0]} -> {number}", replaced(text, one, str(number), 1)


def other_optionality(text):
    words = "(?:omit_default|even_empty)"
    for one in re.finditer(rf" \| {words}|,\s+{words}(?=>)", text):
        yield f"without{one[0]}", replaced(text, one, "")
    for one in re.finditer(r"mandatory_element", text):
        yield one[0], replaced(text, one, "element")
    for one in re.finditer(r"(?<!, )\bdigits\(\d+\)(?=>)", text):
        yield f"{one[0]} | omit_default", replaced(text, one, one[0] + " | omit_default")


def other_order(text):
    for one, other in neighbours(text):
        yield f"{one['name']}, {other['name']}", exchanged(text, one, other, 0)


def lost_entries(text):
    for one in re.finditer(FIELD, text):
        yield one["name"], replaced(text, one, "")


def lost_conditions(text):
    for one in re.finditer(r"bool (\w+)\(const [^{]*\{\s*return ([^;]*);", text):
        yield f"not {one[1]}", replaced(text, one, f"!({one[2]})", 2)
        yield f"{one[1]} always", replaced(text, one, f"static_cast<void>({one[2]}), true", 2)


MAP_KINDS = {
    "accessors exchanged": exchanged_accessors,
    "alternatives exchanged": exchanged_alternatives,
    "another element name": other_names,
    "another width": other_widths,
    "another optionality": other_optionality,
    "another order": other_order,
    "an entry lost": lost_entries,
    "a condition of the map": lost_conditions,
}


# Faults in code.

def negated_conditions(text):
    for one in re.finditer(r"\b(?:if|while) \(([^{};]*)\) \{", masked(text, strings=False)):
        yield one[1], replaced(text, one, f"!({text[one.start(1):one.end(1)]})", 1)


def changed_comparisons(text):
    code = masked(text)
    other = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||",
             "||": "&&", "+": "-", "-": "+"}
    for one in re.finditer(r" (<=?|>=?|==|!=|&&|\|\||\+|-) ", code):
        yield one[1], replaced(text, one, other[one[1]], 1)
    for one in re.finditer(r"(?<![\w.'])\d+(?=[^\w'.]|U\b)", code):
        yield f"{one[0]} + 1", replaced(text, one, str(int(one[0]) + 1))


def ignored_flags(text):
    code = masked(text)
    for one in re.finditer(r"\b(true|false)\b", code):
        yield one[0], replaced(text, one, "false" if one[0] == "true" else "true")
    for one in re.finditer(r"(?:(?<=[(=] )|(?<=\()|(?<=return ))[\w.]+(?= \?)", code):
        yield f"{one[0]} ?", replaced(text, one, f"(static_cast<void>({one[0]}), true)")


def narrowed_characters(text):
    code = masked(text, strings=False)
    for one in re.finditer(r"(?<!\w)'([!#-&)-\[\]-~])'", code):
        yield one[0], replaced(text, one, chr(ord(one[1]) + 1) if one[1] not in "&[" else "~", 1)
    for one in re.finditer(r"find\w*_of\(\"((?:\\.|[^\"\\])+)\"", code):
        yield one[0], replaced(text, one, re.sub(r"(\\.|.)$", "", one[1]), 1)
    for one in re.finditer(r"\b0x[0-9A-Fa-f]+", code):
        yield one[0], replaced(text, one, hex(int(one[0], 16) + 1))


def other_statuses(text):
    other = {"all_well": "trouble", "something_told": "all_well", "trouble": "all_well"}
    for one in re.finditer(r"(?<![\w:] )\b(all_well|something_told|trouble)\b(?! =)", masked(text)):
        yield one[0], replaced(text, one, other[one[1]], 1)
    for one in re.finditer(r"return [^;]*\b(all_well|something_told|trouble);", masked(text)):
        yield one[0], replaced(text, one, other[one[1]], 1)


def other_formats(text):
    code = masked(text, strings=False)
    for one in re.finditer(r"\"((?:\\.|[^\"\\\n])*\{[^}\"]*\}(?:\\.|[^\"\\\n])*)\"", code):
        if not re.search(r"[a-z]{2} [a-z]{2}", one[1]):  # a sentence has a translation to fit
            yield one[0], replaced(text, one, "." + one[1], 1)
    for one in re.finditer(r"\"([ ,;:./-]+)\"", code):
        yield one[0], replaced(text, one, "", 1)


def lost_statements(text):
    for one in re.finditer(r"(?<=[;{}]\n)(?: {4,})((?!return|using|const|throw|break)"
                           r"(?:[\w.>:-]+\([^;{}]*\)|[\w.>-]+ \+?= [^;{}]*);)",
                           masked(text, strings=False)):
        yield " ".join(one[1].split())[:60], replaced(text, one, "", 1)


CODE_KINDS = {
    "a condition negated": negated_conditions,
    "a comparison or bound": changed_comparisons,
    "a flag ignored": ignored_flags,
    "a class of characters": narrowed_characters,
    "an exit status": other_statuses,
    "a format": other_formats,
    "a statement left out": lost_statements,
}


def faults_in(text, path, folder):
    is_map = MAP in text and path != "layout/map.hpp"
    for kind, make in (MAP_KINDS if is_map else CODE_KINDS).items():
        if kind in ("a format", "an exit status") and folder != "tools":
            continue
        for what, faulty in make(text):
            line = next(number for number, (one, other) in enumerate(itertools.zip_longest(
                text.split("\n"), faulty.split("\n")), 1) if one != other)
            yield folder, kind, f"{path}:{line}: {' '.join(what.split())}", {path: faulty}


LISTED_FAULTS = {  # file, what stands there, and what is wrong instead
    "layout": [
        ("layout/xml.cpp", 'document.add("@xmlns", "http://www.portalfiscal.inf.br/nfe");', ""),
        ("layout/text.cpp", " || stop != end ||", " ||"),
        ("layout/xml_text.cpp", "= pugi::parse_default |",
         "= (pugi::parse_default & ~pugi::parse_cdata) |"),
        ("layout/xml_text.cpp", "std::string whole(text);", "std::string whole;"),
        ("layout/xml_text.cpp", "pugi::parse_ws_pcdata_single |", ""),
    ],
    "tools": [
        ("tools/nfe_summary/main.cpp", "refused.empty() ? all_well : something_told",
         "refused.empty() ? all_well : all_well"),
        ("tools/nfe_summary/main.cpp", "(made.status, something_told)", "(made.status, all_well)"),
        ("tools/nfe_summary/main.cpp", "return nfe_summary::trouble;", ""),
        ("tools/nfe_summary/main.cpp", "std::fclose(stdout) != 0", "false"),
        ("tools/nfe_summary/main.cpp", "files.complete ? status : trouble", "status"),
        ("tools/nfe_summary/text.cpp", "    case UTF8PROC_CATEGORY_ZL:\n", ""),
        ("tools/nfe_summary/text.cpp", "    case UTF8PROC_CATEGORY_CF:\n", ""),
    ],
}


def listed_faults(folder):
    for path, old, new in LISTED_FAULTS[folder]:
        text = (ROOT / path).read_text()
        if old not in text:
            raise ValueError(f"{path} no longer holds: {old}")
        yield (folder, "a fault of the list", f"{path}: {old.strip()} -> {new.strip()}",
               {path: text.replace(old, new, 1)})


def companion_mutants(folder):
    """(folder, kind, what is wrong, faulty texts) of layout/ or tools/nfe_summary/."""
    place = ROOT / {"layout": "layout", "tools": "tools/nfe_summary"}[folder]
    for file in sorted(place.glob("*.?pp")):
        if file.name != "manual.cpp":  # what it makes is a page
            yield from faults_in(file.read_text(), str(file.relative_to(ROOT)), folder)
    yield from listed_faults(folder)


class CompanionBuild:
    """The finished build, as ninja knows it."""

    def __init__(self, folder):
        self.folder, self.commands, self.links = folder, {}, {}
        for entry in json.loads((folder / "compile_commands.json").read_text()):
            words = shlex.split(entry["command"])
            self.commands[words[words.index("-o") + 1]] = words, entry["file"]
        self.touching = {}
        for part in self.ninja("deps").split("\n\n"):
            first, *files = part.split("\n")
            for file in files:
                self.touching.setdefault(os.path.normpath(folder / file.strip()), set()).add(
                    first.split(":")[0])

    def ninja(self, *arguments):
        return subprocess.run(["ninja", "-t", *arguments], cwd=self.folder, capture_output=True,
                              text=True, check=True).stdout

    def objects(self, target, path):
        """Those of a target that a file is part of."""
        return sorted(each for each in self.touching.get(str(ROOT / path), ())
                      if f"/{target}.dir/" in each)

    def link_command(self, program):
        if program not in self.links:
            line = self.ninja("commands", program).strip().split("\n")[-1]
            self.links[program] = shlex.split(line.removeprefix(": && ").split(" && ")[0])
        return self.links[program]


class CompanionWorker:
    """Tries faults one after another, in a folder of its own."""

    def __init__(self, build, number):
        self.build, self.folder = build, build.folder / "mutants" / f"companion{number}"
        self.overlay, self.fresh = self.folder / "overlay", {}

    def succeeds(self, *words, cwd=None, quiet=False, seconds=300):
        """Whether a command succeeds, and ends; if it is to be quiet, says nothing on stderr."""
        process = subprocess.Popen(
            ["prlimit", f"--cpu={seconds}", f"--as={8 << 30}", f"--fsize={6 << 30}", *map(str, words)],
            cwd=cwd or ROOT, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
            stderr=subprocess.PIPE if quiet else subprocess.DEVNULL, start_new_session=True,
            env={**os.environ, "TMPDIR": str(self.folder)})
        try:
            if quiet and (not select.select([process.stderr], [], [], seconds)[0]
                          or process.stderr.readline()):
                return False
            return process.wait(timeout=seconds) == 0
        except subprocess.TimeoutExpired:
            return False
        finally:
            if process.poll() is None:
                os.killpg(process.pid, 15)
                process.wait()

    def compiled(self, target, path):
        """The objects of a target that hold the fault; None where it is no program."""
        for name in self.build.objects(target, path):
            if name in self.fresh:
                continue
            words, source = self.build.commands[name]
            copy = self.overlay / pathlib.Path(source).relative_to(ROOT)
            words = [str(copy) if word == source and copy.exists() else word for word in words
                     if word not in ("-O3", "-O1", "-g")]
            words = words[next(place for place, word in enumerate(words) if "++" in word):]
            words.insert(1, f"-I{self.overlay}")
            words[words.index("-o") + 1] = output = str(self.folder / f"{len(self.fresh)}.o")
            if not self.succeeds(*words, "-O0", "-w", cwd=self.build.folder):
                return None
            self.fresh[name] = output
        return [self.fresh[name] for name in self.build.objects(target, path)]

    def linked(self, program, path, targets):
        """A program with the fault in it; None where it is none."""
        output = self.folder / "bin" / pathlib.Path(program).name
        if output.exists():
            return output
        fresh = []
        for target in [output.name, *targets]:
            made = self.compiled(target, path)
            if made is None:
                return None
            fresh += made
        words = list(self.build.link_command(program))
        words[words.index("-o") + 1] = str(output)
        first = next(place for place, word in enumerate(words) if word.endswith(".o"))
        # the first definition counts
        words[first:first] = [*fresh, "-Wl,--allow-multiple-definition"]
        output.parent.mkdir(exist_ok=True)
        return output if self.succeeds(*words, cwd=self.build.folder) else None

    def attempt(self, texts, without=None):
        """Which test finds the faulty text, or that none does or that it is no program."""
        shutil.rmtree(self.folder, ignore_errors=True)
        for name in ("layout", "tools/nfe_summary"):
            shutil.copytree(ROOT / name, self.overlay / name)
        for path, text in texts.items():
            (self.overlay / path).write_text(text)
        self.fresh = {}
        path, text = next(iter(texts.items()))
        targets = ["kivo-erp-fiscal-layout"]
        if path.startswith("tools/"):  # what is most likely to find it comes first
            targets = ["nfe_summary_parts"]
            tests = ["nfe_summary.sh", "tool_tests", "translations.sh", "nfe_page.sh"]
        elif MAP in text and path != "layout/map.hpp":
            tests = [FACTS, "invoice_tests", QUICK, WHOLE]
        else:
            tests = ["invoice_tests", "layout_tests", QUICK, "nfe_summary.sh", "tool_tests",
                     "companion_failure_tests", FACTS, WHOLE]
            if re.match(r"layout/(check|element|access|protocol|envelope|text\.)", path):
                tests[:2] = ["layout_tests", "invoice_tests"]
        for test in [each for each in tests if each != without]:
            name, only = (test, "*") if isinstance(test, str) else test
            passed = self.passes(name, only, path,
                                 [] if name == FACTS and tests[0] == FACTS else targets)
            if not passed:
                return INVALID if passed is None else name
        return SURVIVED

    def passes(self, test, only, path, targets):
        """Whether a test passes; None where there is no program."""
        program = self.linked(
            "tools/layout_facts/layout_facts" if test == FACTS else
            "tools/nfe_summary/nfe_summary" if test.endswith(".sh") else f"tests/{test}",
            path, targets)
        if program is None:
            return None
        if test == FACTS:
            facts = self.folder / "facts"
            shutil.copytree(self.build.folder / "facts", facts)
            for wanted in ("fields", "elements"):
                with open(facts / f"{wanted}.tsv", "w", encoding="utf-8") as output:
                    if subprocess.run([program, wanted], stdout=output, check=False).returncode:
                        return False
            return self.succeeds("python3", ROOT / "tests" / test, facts)
        if test.endswith(".sh"):
            if not (program.parent / "locale").exists():
                (program.parent / "locale").symlink_to(
                    self.build.folder / "tools/nfe_summary/locale")
            arguments = ([self.overlay / "tools/nfe_summary", program] if test == "translations.sh"
                         else [program, ROOT / "examples/data"])
            return self.succeeds(ROOT / "tests" / test, *arguments, quiet=test == "nfe_summary.sh")
        return self.succeeds(program, "--gtest_brief=1", "--gtest_fail_fast",
                             f"--gtest_filter={only}",
                             seconds=1200 if (test, only) == WHOLE else 300)
