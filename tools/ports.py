#!/usr/bin/env python3
"""Builds and tests the project on each platform that is claimed, and tells how it went.

ports.py packages [NAME...]  prints the Debian packages that the platforms need on this machine
ports.py run [NAME...]       builds and tests the platforms, or all, in build/ports
"""
import dataclasses
import os
import pathlib
import shutil
import subprocess
import sys
import time
import xml.etree.ElementTree as xml

SOURCE = pathlib.Path(__file__).resolve().parent.parent
WORK = SOURCE / 'build' / 'ports'
WARNINGS = '-Wall -Wextra -Wpedantic -Wconversion -Wshadow'

# what each platform that is this machine's own needs
PACKAGES = ['cmake', 'ninja-build', 'ccache', 'gettext', 'pkg-config', 'file', 'xz-utils',
            'nlohmann-json3-dev', 'libgtest-dev', 'libpugixml-dev', 'libfmt-dev', 'libutf8proc-dev',
            'libzint-dev', 'librapidcheck-dev', 'gdb', 'jq', 'zbar-tools']


@dataclasses.dataclass
class Platform:
    """One row of the table: what it takes to build and run there, and what is left out."""
    name: str
    what: str
    compiler: str
    packages: list
    flags: str = '-O1'
    options: list = dataclasses.field(default_factory=list)
    skipped: dict = dataclasses.field(default_factory=dict)  # tests of ctest: the reason


PLATFORMS = [
    Platform('gcc-hardened', 'amd64, C++23, assertions of libstdc++, _FORTIFY_SOURCE=3', 'g++ 12',
             ['g++-12', *PACKAGES],
             # the tests are compiled without optimisation, which the macro warns of
             flags='-O1 -Wno-cpp -D_GLIBCXX_ASSERTIONS -D_FORTIFY_SOURCE=3',
             options=['-DCMAKE_CXX_COMPILER=g++-12', '-DCMAKE_CXX_STANDARD=23']),
]


def run(command, log, **options):
    """Runs a command into a log; where it fails, the log's end is shown and the run ends."""
    with open(log, 'a', encoding='utf-8') as file:
        file.write(f'$ {" ".join(map(str, command))}\n')
        file.flush()
        ended = subprocess.run([str(part) for part in command], stdout=file,
                               stderr=subprocess.STDOUT, check=False, **options)
    if ended.returncode != 0:
        lines = log.read_text(encoding='utf-8', errors='replace').splitlines()
        print('\n'.join(line[:300] for line in lines[-40:]), file=sys.stderr)
        sys.exit(f'ports: failed, see {log}: {" ".join(map(str, command))[:200]}')


def cases(folder):
    """The cases of all GoogleTest programs that ran: passed, failed and skipped by themselves."""
    passed = failed = skipped = 0
    for file in sorted(folder.glob('*.xml')):
        for case in xml.parse(file).iter('testcase'):
            if case.find('failure') is not None:
                failed += 1
            elif case.get('result') in ('skipped', 'suppressed') or case.get('status') == 'notrun':
                skipped += 1
            else:
                passed += 1
    return passed, failed, skipped


def test(platform, build, log):
    """Runs the tests; answers how many passed, failed and skipped themselves, and which failed."""
    results = build / 'cases'
    shutil.rmtree(results, ignore_errors=True)
    environment = dict(os.environ, GTEST_OUTPUT=f'xml:{results}/')
    with open(log, 'a', encoding='utf-8') as file:
        subprocess.run(
            ['ctest', '--test-dir', build, '--output-on-failure', '--no-tests=error',
             '--parallel', str(os.cpu_count()), '--timeout', '1500',
             '--output-junit', build / 'tests.xml',
             *(['--exclude-regex', f'^({"|".join(platform.skipped)})$'] if platform.skipped else [])],
            stdout=file, stderr=subprocess.STDOUT, env=environment, check=False)
    passed, failed, themselves = cases(results)
    failing = []
    for one in xml.parse(build / 'tests.xml').iter('testcase'):
        name = one.get('name')
        told_by_case = (results / f'{name}.xml').exists()
        if one.get('status') != 'run':
            failing.append(name)
            failed += not told_by_case
        else:
            passed += not told_by_case
    return passed, failed, themselves, failing


def go_through(platform):
    """Builds and tests one platform; answers its row of the table."""
    start = time.monotonic()
    folder = WORK / platform.name
    folder.mkdir(parents=True, exist_ok=True)
    log = folder / 'log'
    log.unlink(missing_ok=True)
    print(f'== {platform.name}: {platform.what}; {log}', flush=True)
    build = folder / 'build'
    os.environ.update(CCACHE_BASEDIR=str(SOURCE), CCACHE_NOHASHDIR='1')
    run(['cmake', '-S', SOURCE, '-B', build, '-G', 'Ninja', '-DCMAKE_BUILD_TYPE=Debug',
         '-DKIVO_BUILD_LAYOUT=ON', '-DKIVO_BUILD_TOOLS=ON', '-DKIVO_BUILD_EXAMPLES=ON',
         '-DKIVO_BUILD_TESTS=ON', f'-DCMAKE_CXX_FLAGS_DEBUG={WARNINGS} {platform.flags}',
         '-DCMAKE_COMPILE_WARNING_AS_ERROR=ON', '-DCMAKE_CXX_COMPILER_LAUNCHER=ccache',
         *platform.options], log)
    run(['cmake', '--build', build], log)
    built = time.monotonic()
    passed, failed, themselves, failing = test(platform, build, log)
    end = time.monotonic()
    row = {'platform': platform.name, 'what': platform.what, 'compiler': platform.compiler,
           'passed': passed, 'failed': failed, 'skipped': platform.skipped,
           'themselves': themselves, 'failing': failing, 'build': round(built - start),
           'test': round(end - built)}
    for name in failing:
        print(f'   failed: {name}', flush=True)
    print(f'   {passed} passed, {failed} failed, {row["build"]} s to build, {row["test"]} s to test',
          flush=True)
    return row


def table(rows):
    """The rows as a table of Markdown."""
    lines = ['| platform | what | compiler | passed | failed | skipped | minutes |',
             '| --- | --- | --- | ---: | ---: | --- | ---: |']
    for row in rows:
        reasons = {}
        for name, reason in row['skipped'].items():
            reasons.setdefault(reason, []).append(f'`{name}`')
        skipped = [f'{", ".join(names)}: {reason}' for reason, names in reasons.items()]
        if row['themselves']:
            skipped.append(f'{row["themselves"]} by themselves')
        lines.append(f'| {row["platform"]} | {row["what"]} | {row["compiler"]} | {row["passed"]} '
                     f'| {row["failed"]} | {"; ".join(skipped) or "nothing"} '
                     f'| {(row["build"] + row["test"]) / 60:.0f} |')
    return '\n'.join(lines)


def main():
    command, *names = sys.argv[1:] or ['']
    known = {platform.name: platform for platform in PLATFORMS}
    unknown = [name for name in names if name not in known]
    if command not in ('packages', 'run') or unknown:
        sys.exit(f'ports: no {" ".join(unknown) or command or "command"}; '
                 f'platforms are {" ".join(known)}')
    chosen = [known[name] for name in names] or PLATFORMS
    if command == 'packages':
        print(*sorted({package for platform in chosen for package in platform.packages}))
        return
    rows = [go_through(platform) for platform in chosen]
    print(table(rows))
    sys.exit(any(row['failed'] or row['failing'] for row in rows))


if __name__ == '__main__':
    main()
