#!/usr/bin/env python3
"""Makes small faults in copies of fiscal/, base/, layout/ and tools/ and tells which ones the tests
do not find.

Each fault is made alone. What it touches is compiled again, the rest is taken from a finished
build; the test programs stay as they are, but for what they compile in from a changed header.
"""

import argparse
import collections
import concurrent.futures
import itertools
import json
import os
import pathlib
import random
import re
import shlex
import shutil
import subprocess
import sys
import time

from companion_faults import FACTS, WHOLE, CompanionBuild, CompanionWorker, companion_mutants

ROOT = pathlib.Path(__file__).resolve().parent.parent
LIBRARY = "kivo-erp-fiscal"
COUNTING = "kivo-erp-fiscal-counting"  # the same over the base values that count
ALL = "fiscal/all.cpp"
HANDLE_USERS = {"parties", "ibs_cbs", "totals"}
SURVIVED, INVALID = "survived", "no program"


def read(path):
    """The text of a file; in a source, definitions do not break behind a parenthesis."""
    text = (ROOT / path).read_text()
    return re.sub(r"\(\n\s+", "(", text) if path.endswith(".cpp") else text


def subsystems():
    """The classes of each subsystem."""
    listed = re.findall(r"set\((\w+)\n((?:    \w+\n?)+)\)", read("fiscal/CMakeLists.txt"))
    found = {name: [each for each in names.split() if re.search(
        rf"class \w+EXPORT {each} ", read(f"fiscal/{each}.hpp"))] for name, names in listed}
    return {name: names for name, names in found.items() if names}


class Source:
    """A class of the library: its source, and the fields of its record with their types."""

    def __init__(self, name):
        self.name, self.path, self.header_path = name, f"fiscal/{name}.cpp", f"fiscal/{name}.hpp"
        self.text, self.header = read(self.path), read(self.header_path)
        self.lazy = "void swap(" in self.header
        record = re.search(r"struct \w+::record \{\n(.*?)\n\};", self.text, re.S)
        declarations = re.findall(r"    \S[^;]*;", record.group(1)) if record else []
        self.fields = [(*re.sub(r"\s+", " ", each.strip(" ;").split(" = ")[0]).rsplit(" ", 1), each)
                       for each in declarations]  # type, name, declaration
        self.types = {field: kind for kind, field, _ in self.fields}

    def changed(self, use, new):
        """The source with another text in place of a match."""
        return {self.path: self.text[:use.start()] + new + self.text[use.end():]}

    def setters(self):
        return re.finditer(r"(?:record_->(\w+) = (?:std::move\()?value\)?;"
                           r"|record_\.set\(&record::(\w+), value\);)", self.text)


def parts(kind):
    """The names of all types that a type is made of, without what they are nested in."""
    return set(re.findall(r"(?:\w+::)*(\w+)", kind))


CHOICES = {"tributacao", "especifico"}  # the item's own names for variants


def loses(kind, sources):
    """Whether a move leaves something else in its source than a copy does."""
    return bool(parts(kind) & ({"string", "vector"} | CHOICES)) or any(
        sources[name].lazy or any(loses(inner, sources) for inner, _, _ in sources[name].fields)
        for name in parts(kind) & sources.keys())


def may_fail(kind, sources):
    """Whether a copy allocates or asks a base value, so that its place in a record can be told."""
    return bool(parts(kind) & ({"string", "vector", "decimal", "date", "datetime", "cnpj", "cpf"}
                               | CHOICES | sources.keys()))


# Each maker yields what is wrong and the faulty texts of the files.

def swapped_fields(source, sources):
    for (kind, first, one), (wrong, second, other) in itertools.pairwise(source.fields):
        # nobody sees the record that a failure leaves half copied, unless both may fail
        telling = [may_fail(kind, sources), may_fail(wrong, sources)]
        if all(telling) if source.lazy else any(telling):
            yield f"{first}, {second}", {
                source.path: source.text.replace(f"{one}\n{other}", f"{other}\n{one}")}


def wrong_fields(source, _):
    for use in re.finditer(r"(record_->|&record::)(\w+)", source.text):
        others = [field for field, kind in source.types.items()
                  if field != use.group(2) and kind == source.types.get(use.group(2))]
        for other in others[:1]:
            yield f"{other} for {use.group(2)}", source.changed(use, use.group(1) + other)


def dropped_assignments(source, _):
    for use in source.setters():
        yield use.group(1) or use.group(2), source.changed(use, "static_cast<void>(value);")


def moves_for_copies(source, sources):
    name = source.name
    steal = f"std::move(const_cast<{name}&>(other).record_)"
    for pattern, new in [
            (rf"{name}::{name}\(const {name}&\)( noexcept)?\s+=\s+default;",
             rf"{name}::{name}(const {name}& other)\1 : record_({steal}) {{}}"),
            (rf"{name}&\s+{name}::operator=\(const {name}&\)( noexcept)?\s+=\s+default;",
             rf"{name}& {name}::operator=(const {name}& other)\1 "
             rf"{{ record_ = {steal}; return *this; }}")]:
        if loses(name, sources):
            yield new[:40], {source.path: re.sub(pattern, new, source.text)}
    for use in source.setters():
        field = use.group(1) or use.group(2)
        if loses(source.types.get(field, ""), sources):
            yield f"set_{field}", source.changed(
                use, use.group() + "[[maybe_unused]] const auto stolen = "
                "std::move(const_cast<std::remove_cvref_t<decltype(value)>&>(value));")


def forgotten_releases(source, _):
    if source.fields:
        yield "", {source.path: source.text.replace(
            f"::~{source.name}() = default;",
            f"::~{source.name}() {{ new decltype(record_)(std::move(record_)); }}")}


def changed_noexcept(source, _):
    """Given or taken away in the header and in the source alike."""
    name = source.name
    member = (rf"\b({name}\(\)|{name}\((?:const )?{name}&&?(?: other)?\)"
              rf"|operator=\((?:const )?{name}&&?(?: other)?\)|swap\({name}& other\)"
              rf"|[gs]et_\w+\([^()]*\)(?: const)?)( noexcept)?(;|\s+=\s+default;|\s+\{{)")

    def plain(use):
        return re.sub(r" other|\s", "", use.group(1))

    for use in re.finditer(member, source.header):
        def change(found):
            mark = "" if found.group(2) else " noexcept"
            return (found.group(1) + mark + found.group(3) if plain(found) == plain(use)
                    else found.group())
        yield use.group(1), {source.header_path: re.sub(member, change, source.header),
                             source.path: re.sub(member, change, source.text)}


def changed_codes(source, _):
    """An enumerator's value, or what a number is before it is set."""
    for use in re.finditer(r"(        \w+ = )(\d+),", source.header):
        header = source.header
        yield use.group().strip(), {source.header_path: header[:use.start()] + use.group(1) + str(
            int(use.group(2)) + 1) + "," + header[use.end():]}
    for kind, field, declaration in source.fields:
        if wrong := re.sub(r" = (0|\{\});", f" = static_cast<{kind}>(1);", declaration):
            if wrong != declaration:
                yield f"default of {field}", {source.path: source.text.replace(declaration, wrong)}


def changed_limits(path):
    """Numbers and comparisons of code that has any."""
    text = read(path)
    code = re.sub(r"//.*|\"(\\.|[^\"\\])*\"|#.*|template <[^\n]*",
                  lambda found: " " * len(found.group()), text)
    other = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||",
             "||": "&&", "+": "-", "-": "+"}
    for use in re.finditer(r"(?<![\w.'])\d[\d']*(?=[^\w'\d]|U\b)"
                           r"| (<=?|>=?|==|!=|&&|\|\||\+|-) ", code):
        number = None if use.group(1) else int(use.group().replace("'", ""))
        for wrong in [f" {other[use.group(1)]} "] if number is None else [number + 1, number - 1]:
            if wrong != -1:
                line = text.count("\n", 0, use.start()) + 1
                yield f"{line}: {use.group().strip()} -> {str(wrong).strip()}", {
                    path: text[:use.start()] + str(wrong) + text[use.end():]}


HANDLE_FAULTS = [  # what stands in handle.hpp, and what is wrong instead
    ("(std::move(*other.record_))) {}", "(*other.record_)) {}"),
    ("(std::move(*other.record_))) {}", "(std::move(*other.record_))) { other.record_.reset(); }"),
    ("        *record_ = *other.record_;\n", ""),
    ("*record_ = *other.record_;", "record_ = std::make_unique<Record>(*other.record_);"),
    ("*record_ = std::move(*other.record_);", "*record_ = *other.record_;"),
    ("~eager_handle() = default;", "~eager_handle() { static_cast<void>(record_.release()); }"),
    (" : nullptr)", " : std::make_unique<Record>())"),
    ("other.record_ ? std::make_unique<Record>(*other.record_) : nullptr",
     "std::make_unique<Record>(*other.record_)"),
    ("lazy_handle() noexcept = default;", "lazy_handle() : record_(std::make_unique<Record>()) {}"),
    ("lazy_handle&& other) noexcept = default;",
     "lazy_handle&& other) noexcept : lazy_handle(std::as_const(other)) {}"),
    ("        lazy_handle(other).swap(*this);\n", ""),
    ("lazy_handle(other).swap(*this);", "record_.reset(); lazy_handle(other).swap(*this);"),
    ("swap(taken);", "swap(other);"),
    ("taken(std::move(other));", "taken(std::as_const(other));"),
    ("~lazy_handle() = default;", "~lazy_handle() { static_cast<void>(record_.release()); }"),
    ("record_.swap(other.record_); }", "record_ = std::move(other.record_); }"),
    ("record_.swap(other.record_); }", "}"),
    ("record_ ? (*record_).*field : Field()", "(*record_).*field"),
    ("record_ ? (*record_).*field", "record_ ? std::move((*record_).*field)"),
    (".*field : Field()", ".*field : Record().*field"),
    ("        if (!record_) {", "        {"),
    ("            record_ = std::make_unique<Record>();\n", ""),
    ("        return *record_;", "        return *record_.release();"),
    ("filled().*field = value;", "if (record_) {\n(*record_).*field = value;\n} else {\n"
     "auto fresh = std::make_unique<Record>();\n(*fresh).*field = value;\n"
     "record_ = std::move(fresh);\n}"),
    ("lazy_handle& other) noexcept(ends_process)\n", "lazy_handle& other)\n"),
    ("lazy_handle& other) noexcept(ends_process)\n", "lazy_handle& other) noexcept\n"),
    ("failure == failed_copy", "failure != failed_copy"),
]
CHOICE_FAULTS = [  # the same of produto.cpp
    ("return *kind;", "return std::move(const_cast<Kind&>(*kind));"),
    ("        choice.reset();\n", ""),
    ("*choice = *value;", "choice.emplace(*value);"),
    ("*choice = *value;", "choice = especifico(*value);"),
    ("if (!value) {", "if (value) {"),
]
BASE_FAULTS = [  # file, what stands there, and what is wrong instead
    ("base/datetime.hpp", "operator==(datetime, datetime) noexcept = default;",
     "operator==(datetime left, datetime right) noexcept {\n"
     "return (left.word_ | 63 << 11) == (right.word_ | 63 << 11);\n}"),
    ("base/datetime.hpp", "operator==(datetime, datetime) noexcept = default;",
     "operator==(datetime left, datetime right) noexcept {\n"
     "return left.word_ >> 11 == right.word_ >> 11;\n}"),
    ("base/decimal.hpp", "return left.without_trailing_zeros() == right.without_trailing_zeros();",
     "auto one = std::uint64_t(left.coefficient()), other = std::uint64_t(right.coefficient());\n"
     "for (unsigned place = 0; place < right.scale(); ++place) { one *= 10; }\n"
     "for (unsigned place = 0; place < left.scale(); ++place) { other *= 10; }\n"
     "return one == other;"),
    ("base/decimal.hpp", "{first, static_cast<std::size_t>(end - first)}, buffer, length);",
     "{first, static_cast<std::size_t>(end - first)}, buffer,\n"
     "end - first == 19 && length == 18 ? length = 19 : length);"),
    ("base/decimal.hpp", "        if (coefficient < 0) {",
     "        if (coefficient < 0 && end - first < 18) {"),
]
REPLACEMENT_FAULTS = [  # the same of choice.hpp
    ("stored.index() == value.index() || ", ""),
    ("stored.index() == value.index() ||", "true ||"),
    ("stored.template emplace<Kind>(kind);", "stored = kind;"),
    ("        replace_choice(*stored, *value);", "        stored = value;"),
    ("if (stored && value)", "if (stored)"),
]


def listed_faults(path, faults):
    text = read(path)
    for number, (old, new) in enumerate(faults):
        if old not in text:
            sys.exit(f"mutants: {path} no longer holds: {old}")
        yield f"{number}: {old.strip()[:50]} -> {new.strip()[:60]}", {
            path: text.replace(old, new, 1)}


def all_mutants(classes):
    """(folder, kind, what is wrong, faulty texts), of fiscal/ and base/."""
    sources = {name: Source(name) for name in classes}
    for kind, make in [("two fields swapped in a record", swapped_fields),
                       ("an accessor of another field", wrong_fields),
                       ("an assignment left out", dropped_assignments),
                       ("a copy turned into a move", moves_for_copies),
                       ("a release forgotten", forgotten_releases),
                       ("a noexcept added or taken away", changed_noexcept),
                       ("a code or a default changed", changed_codes)]:
        for source in sources.values():
            yield from (("fiscal", kind, f"{source.name}: {what}", texts)
                        for what, texts in make(source, sources))
    for path in ["fiscal/tipo_emissao.cpp", *(f"base/{file.name}" for file in
                                              sorted((ROOT / "base").glob("*.hpp")))]:
        yield from ((path.split("/")[0], "a limit or comparison changed", f"{path}:{what}", texts)
                    for what, texts in changed_limits(path))
    for kind, path, faults in [("a fault in the handles", "fiscal/handle.hpp", HANDLE_FAULTS),
                               ("a fault in the choices", "fiscal/produto.cpp", CHOICE_FAULTS),
                               ("a fault in the choices", "fiscal/choice.hpp", REPLACEMENT_FAULTS)]:
        yield from (("fiscal", kind, what, texts) for what, texts in listed_faults(path, faults))
    for path, old, new in BASE_FAULTS:
        yield from (("base", "a fault of the list", f"{path}: {what}", texts)
                    for what, texts in listed_faults(path, [(old, new)]))


class Build:
    """The finished build that mutants are compiled and linked against."""

    def __init__(self, folder):
        self.folder, self.mutants = folder, folder / "mutants"
        self.commands, self.objects = {}, collections.defaultdict(list)
        for entry in json.loads((folder / "compile_commands.json").read_text()):
            arguments = shlex.split(entry["command"])
            place = arguments.index("-o")
            target = re.search(r"CMakeFiles/([\w-]+)\.dir/", arguments[place + 1]).group(1)
            self.commands[target] = arguments[:place]  # up to the names of files
            self.objects[target].append(folder / arguments[place + 1])
        self.includes = {path: set(re.findall(r"#include <((?:fiscal|base)/\w+\.hpp)>", read(path)))
                         for path in (f"fiscal/{file.name}" for file in
                                      (ROOT / "fiscal").glob("*.?pp"))}

    def sources_of(self, header):
        """All sources that include a header, through others too."""
        reached = {header}
        while more := {path for path, included in self.includes.items()
                       if included & reached} - reached:
            reached |= more
        return sorted(path for path in reached if path.endswith(".cpp"))

    def compiler(self, target, overlay):
        """The command that compiles a target's sources, with the files of the overlay before all
        others but a base of the target's own."""
        words = [word for word in self.commands[target] if word not in ("-O3", "-g")]
        root = words.index(f"-I{ROOT}")
        return [*words[:root], f"-I{overlay}", *words[root:], "-O0", "-w"]


class Worker:
    """Tries mutants one after another, in a folder of its own."""

    def __init__(self, build, number, classes):
        self.build, self.folder = build, build.mutants / str(number)
        self.overlay = self.folder / "overlay"
        self.subsystems = {name: subsystem for subsystem, names in classes.items()
                           for name in names}

    def run(self, *arguments, **extra):
        """Whether a command succeeds, neither running nor growing without end."""
        return subprocess.run(["prlimit", "--cpu=300", f"--as={8 << 30}", *map(str, arguments)],
                              cwd=self.folder, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, **extra).returncode == 0

    def link(self, target, sources, *options):
        """A library of the mutant's objects, which come before those of the build."""
        library = self.folder / f"lib{target}.so{'.12' if target == LIBRARY else ''}"
        if len(sources) > 1:  # all in one are compiled much faster
            (self.overlay / ALL).write_text("".join(f"#include <{path}>\n" for path in sources))
            sources = [ALL]
        fresh = []
        for source in sources:
            path = self.overlay / source
            fresh.append(self.folder / f"{target}-{pathlib.Path(source).stem}.o")
            if not self.run(*self.build.compiler(target, self.overlay), *options, "-c",
                            path if path.exists() else ROOT / source, "-o", fresh[-1]):
                return False
        script = [f"-Wl,--version-script={ROOT}/fiscal/exports.map"] if target == LIBRARY else []
        return self.run("g++-12", "-shared", f"-Wl,-soname,{library.name}", *script, *fresh,
                        "-Wl,--allow-multiple-definition", *self.build.objects[target],
                        "-o", library)

    def found_by(self, program, only="*"):
        """Whether a test program fails over the mutant's libraries."""
        return not self.run(program, "--gtest_brief=1", "--gtest_fail_fast",
                            f"--gtest_filter={only}",
                            env={**os.environ, "LD_LIBRARY_PATH": str(self.folder)})

    def found_by_new(self, name, sources):
        """What finds a changed header that a test program of these sources compiles in."""
        command = self.build.compiler("value_tests", self.overlay)
        library = next(folder / "libkivo-erp-fiscal.so.12" for folder in
                       (self.folder, self.build.folder / "fiscal")
                       if (folder / "libkivo-erp-fiscal.so.12").exists())
        if not self.run(*command, *sources, "-o", self.folder / name, library,
                        f"-Wl,-rpath,{library.parent}", "-lgtest_main", "-lgtest"):
            return "compiler"
        return name if self.found_by(self.folder / name) else None

    def attempt(self, texts):
        """Which test finds the faulty texts, or that none does or that they are no program."""
        shutil.rmtree(self.folder, ignore_errors=True)
        (self.overlay / "fiscal").mkdir(parents=True)
        (self.overlay / "base").mkdir()
        for path, text in texts.items():
            (self.overlay / path).write_text(text)
        tests, path = ROOT / "tests", next(iter(texts))
        name = pathlib.Path(path).stem
        if path.startswith("base/"):
            found = self.found_by_new("base_values", [tests / "base_values.cpp",
                                                      tests / "converter.cpp"])
            return INVALID if found == "compiler" else found or SURVIVED
        of_a_class = path.endswith(".hpp") and name not in ("choice", "handle")
        sources = self.build.sources_of(path) if path.endswith(".hpp") else [path]
        if name == "handle":
            # it is compiled into each class; those of three subsystems are of all kinds
            sources = [source for source in sources
                       if self.subsystems[pathlib.Path(source).stem] in HANDLE_USERS]
        # the debug information tells the ABI
        if not self.link(LIBRARY, sources, *(["-g"] if of_a_class else [])):
            return INVALID
        of_the_class = f"*/{name if name in self.subsystems else '*'}.*"
        if of_a_class:
            (self.folder / "suites.cpp").write_text(
                '#include "value_semantics.hpp"\n#include "exceptions.hpp"\n'
                f"#include <layout/{self.subsystems[name]}.hpp>\nnamespace kivo::tests {{\n"
                f"using erp::v12::fiscal::{name};\n"
                "const registered_suites of_the_class{"
                f'{{"every_class/{name}", every_class<{name}>}}, '
                f'{{"every_failure/{name}", every_failure<{name}>}}}};\n}}\n')
            if found := self.found_by_new("class_suites", [
                    self.folder / "suites.cpp", tests / "support/allocations.cpp",
                    tests / "support/failures.cpp", tests / "support/tried.cpp"]):
                return found
            if not self.run(tests / "abi/abi.sh", "compare",
                            self.folder / "libkivo-erp-fiscal.so.12"):
                return "abi"
            shutil.copytree(ROOT / "fiscal", self.folder / "headers/fiscal")
            shutil.copy(self.overlay / path, self.folder / "headers/fiscal")
            if not self.run(sys.executable, tests / FACTS, self.build.folder / "facts",
                            self.folder / "headers"):
                return FACTS
        programs = self.build.folder / "tests"
        # what is most likely to find it comes first
        for program, only in [("value_tests", of_the_class), ("value_tests", "*"),
                              ("random_tests", "*")]:
            if self.found_by(programs / program, only):
                return program
        if not self.link(COUNTING, sources):
            return INVALID
        return next(("throwing_base_tests" for only in (of_the_class, "*")
                     if self.found_by(programs / "throwing_base_tests", only)), SURVIVED)


FOLDERS = ("fiscal", "base", "layout", "tools")


def chosen_mutants(classes, options):
    """All of each folder and kind, and those that are tried."""
    made = []
    if {"fiscal", "base"} & set(options.folders):
        made.append(all_mutants(itertools.chain.from_iterable(classes.values())))
    made += [companion_mutants(folder) for folder in ("layout", "tools")
             if folder in options.folders]
    kinds = collections.defaultdict(list)
    for mutant in itertools.chain.from_iterable(made):
        folder, kind, what, _ = mutant
        if folder in options.folders and re.search(options.only, f"{kind}: {what}"):
            kinds[folder, kind].append(mutant)
    # of each kind as many as of any other, as far as there are enough
    for mutants in kinds.values():
        random.Random(options.seed).shuffle(mutants)
    return kinds, [mutant for row in itertools.zip_longest(*kinds.values()) for mutant in row
                   if mutant][:options.count]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("build", type=pathlib.Path, help="folder of a finished build")
    parser.add_argument("folders", nargs="*", default=FOLDERS, metavar="FOLDER",
                        help=f"whose faults: {', '.join(FOLDERS)}")
    parser.add_argument("--count", type=int, default=300, help="how many mutants are tried")
    parser.add_argument("--seed", type=int, default=1, help="which ones: the same for each seed")
    parser.add_argument("--only", default="",
                        help="only mutants in whose kind and name this expression is found")
    options = parser.parse_args()
    classes = subsystems()
    kinds, chosen = chosen_mutants(classes, options)

    folder = options.build.resolve()
    shutil.rmtree(folder / "mutants", ignore_errors=True)
    build, companion = Build(folder), CompanionBuild(folder)
    workers = [(Worker(build, number, classes), CompanionWorker(companion, number))
               for number in range(os.cpu_count() or 1)]

    def attempt(number, texts, **how):
        of_classes, of_companion = workers[number]
        inside = next(iter(texts)).startswith(("fiscal/", "base/"))
        return of_classes.attempt(texts) if inside else of_companion.attempt(texts, **how)

    # what is no fault has to survive
    sound = [path for path in ("base/decimal.hpp", "fiscal/produto.cpp", "fiscal/produto.hpp",
                               "fiscal/handle.hpp", "layout/payment.hpp", "layout/protocol.cpp",
                               "tools/nfe_summary/table.cpp")
             if path.split("/")[0] in options.folders]

    def survive(number):
        for path in sound[number::len(workers)]:
            outcome = attempt(number, {path: (ROOT / path).read_text()}, without=WHOLE)
            if outcome != SURVIVED:
                sys.exit(f"mutants: the unchanged {path}: {outcome}")

    waiting, results = iter(chosen), []

    def work(number):
        for inside, kind, what, texts in iter(lambda: next(waiting, None), None):
            begin = time.monotonic()
            outcome = attempt(number, texts)
            results.append((outcome, (inside, kind)))
            print(f"{outcome:26} {time.monotonic() - begin:4.0f} s  {kind}: {what}", flush=True)

    with concurrent.futures.ThreadPoolExecutor(len(workers)) as pool:
        for step in (survive, work):
            for done in [pool.submit(step, number) for number in range(len(workers))]:
                done.result()
    made = [(outcome, kind) for outcome, kind in results if outcome != INVALID]
    found = [(outcome, kind) for outcome, kind in made if outcome != SURVIVED]
    print(f"\n{'folder':8} {'fault':32} {'possible':>8} {'made':>6} {'found':>6}")
    for (inside, name), possible in kinds.items():
        print(f"{inside:8} {name:32} {len(possible):8} "
              f"{sum(each == (inside, name) for _, each in made):6} "
              f"{sum(each == (inside, name) for _, each in found):6}")
    print(f"{'all':41} {sum(map(len, kinds.values())):8} {len(made):6} {len(found):6} "
          f"{100 * len(found) / max(len(made), 1):.1f} %, seed {options.seed}; "
          f"{len(results) - len(made)} more were no programs")


if __name__ == "__main__":
    main()
