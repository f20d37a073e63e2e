#!/usr/bin/env python3
"""Builds and tests the project on each platform that is claimed, and tells how it went.

ports.py packages [NAME...]  prints the Debian packages that the platforms need on this machine
ports.py run [NAME...]       builds and tests the platforms, or all, in build/ports
ports.py compare             measures the library over two standard libraries, side by side
"""
import dataclasses
import hashlib
import json
import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import time
import xml.etree.ElementTree as xml

SOURCE = pathlib.Path(__file__).resolve().parent.parent
WORK = SOURCE / 'build' / 'ports'
WARNINGS = '-Wall -Wextra -Wpedantic -Wconversion -Wshadow'

# what the tools, tests and companion take from Debian for another processor
DEPENDENCIES = ('libpugixml-dev libpugixml1v5 libfmt-dev libfmt9 libutf8proc-dev libutf8proc2 '
                'libzint-dev libzint2.11 libpng16-16 zlib1g '
                'nlohmann-json3-dev libgtest-dev librapidcheck-dev '
                # the locales that a program finds are of its processor, too
                'libc6 libc-bin libgcc-s1 libstdc++6').split()
# what is built from Debian's sources, in this order, where no package fits the compiler
SOURCES = {
    'googletest': [],  # a package of sources on this machine
    'pugixml': [],
    'fmtlib': ['-DFMT_TEST=OFF', '-DFMT_DOC=OFF'],
    'utf8proc': ['-DUTF8PROC_INSTALL=ON', '-DUTF8PROC_ENABLE_TESTING=OFF'],
    'zint': ['-DZINT_USE_PNG=OFF', '-DZINT_USE_QT=OFF', '-DZINT_FRONTEND=OFF'],
    'gettext': ['--enable-threads=windows', '--disable-static', '--enable-shared',
                '--without-libiconv-prefix', '--disable-java', '--disable-csharp',
                '--disable-libasprintf'],
}
ALWAYS = ['cmake', 'ninja-build', 'gettext', 'pkg-config', 'python3', 'nlohmann-json3-dev',
          'abigail-tools', 'gdb', 'jq', 'xz-utils', 'zbar-tools']
NATIVE = ['libgtest-dev', 'libpugixml-dev', 'libfmt-dev', 'libutf8proc-dev', 'libzint-dev',
          'librapidcheck-dev']
OWN_ALLOCATOR = 'a DLL takes its memory from an allocator of its own'
NO_FORK = 'a process that ends is tried in a child, and there is no fork'
NO_RAPIDCHECK = 'rapidcheck is there as a library for g++ alone'
# in a build for users alone
ELSEWHERE = dict.fromkeys(('contributing', 'package'), 'builds all once more; `./dev test` runs it')


@dataclasses.dataclass
class Platform:
    """One row of the table: what it takes to build and run there, and what is left out."""
    name: str
    what: str
    compiler: str
    packages: list
    architecture: str = 'amd64'  # of the packages that are unpacked
    toolchain: bool = True       # cmake/toolchains/NAME.cmake
    unpacked: list = dataclasses.field(default_factory=list)
    built: list = dataclasses.field(default_factory=list)
    type: str = 'RelWithDebInfo'
    flags: str = '-O1'
    options: list = dataclasses.field(default_factory=list)
    environment: dict = dataclasses.field(default_factory=dict)
    skipped: dict = dataclasses.field(default_factory=dict)  # tests of ctest: the reason
    left_out: dict = dataclasses.field(default_factory=dict)  # cases of a program: the reason
    shortened: dict = dataclasses.field(default_factory=dict)  # by the environment: how
    # its packages are made too, of what was tested: `zip`, or the compiler and what runs a program
    packed: tuple = ()
    by_name: bool = False  # left out where all are gone through: another one stands for it

    def has_packages(self):
        """Whether they are Debian's."""
        return len(self.packed) == 2


def foreign(name, what, triplet, architecture, **options):
    skipped = {'gdb': 'the debugger runs programs of its own processor'}
    packages = [f'g++-12-{triplet}', 'qemu-user']
    if 'packed' in options:
        packages += ['dpkg-dev', 'file']
    else:
        skipped['abi'] = 'recorded where there are packages'
    return Platform(
        name, what, f'g++ 12 ({triplet})', packages, architecture=architecture,
        unpacked=DEPENDENCIES, skipped=skipped,
        environment={'KIVO_ONE_DOCUMENT_OF': '20'},
        shortened={'document_round_trip_tests': 'one document of 20, all take an emulator too long'},
        **options)


PLATFORMS = [
    foreign('arm64', '64-bit ARM under qemu', 'aarch64-linux-gnu', 'arm64',
            packed=('aarch64-linux-gnu-g++-12', 'qemu-aarch64')),
    foreign('i686', '32 bits under qemu', 'i686-linux-gnu', 'i386'),
    foreign('armhf', '32-bit ARM under qemu', 'arm-linux-gnueabihf', 'armhf', by_name=True),
    foreign('s390x', 'big-endian under qemu', 's390x-linux-gnu', 's390x'),
    Platform('windows', '64-bit Windows by MinGW-w64, under wine', 'g++ 12 (x86_64-w64-mingw32)',
             ['g++-mingw-w64-x86-64-posix', 'wine64', 'googletest', 'dpkg-dev', 'make', 'unzip'],
             unpacked=['nlohmann-json3-dev'], built=list(SOURCES),
             type='Release', flags='-O3 -DNDEBUG',
             options=['-DKIVO_RANDOM_TESTS=OFF'],
             environment={
                 'LC_ALL': 'C.UTF-8',  # wine writes the names of files in the locale's code
                 'WINEPREFIX': f'{WORK}/windows/wine', 'WINEDEBUG': '-all',
                 'WINEDLLOVERRIDES': 'winemenubuilder.exe=d;mscoree=d;mshtml=d',
                 'WINEPATH': ';'.join('Z:' + folder.replace('/', '\\') for folder in (
                     f'{WORK}/windows/build/fiscal', f'{WORK}/windows/root/usr/bin',
                     '/usr/lib/gcc/x86_64-w64-mingw32/12-posix', '/usr/x86_64-w64-mingw32/lib'))},
             skipped={'random_tests': NO_RAPIDCHECK, 'document_round_trip_tests': NO_RAPIDCHECK,
                      'companion_failure_tests': OWN_ALLOCATOR, 'companion_throw_tests': NO_FORK,
                      'throwing_base_tests': NO_FORK,
                      # sources of value_tests
                      **dict.fromkeys(('every_failure', 'allocations', 'invoice_life', 'failed_choices'),
                                      OWN_ALLOCATOR),
                      'gdb': 'the debugger runs programs of its own system',
                      'nfe_summary': 'its pipes and devices are those of Linux',
                      **dict.fromkeys(('interface', 'abi'), '`exports` compares the names of the DLL')},
             packed=('zip',),
             left_out=dict.fromkeys(('every_class/*.empty_handles_allocate_nothing',
                                     'every_class/*.records_are_released',
                                     'standard_library.keeps_no_room_that_its_callers_reserved'),
                                    OWN_ALLOCATOR)),
    Platform('gcc-hardened', 'amd64, C++23, assertions of libstdc++, _FORTIFY_SOURCE=3', 'g++ 12',
             ['g++-12', *NATIVE], toolchain=False,
             # the tests are compiled without optimisation, which the macro warns of
             flags='-O1 -Wno-cpp -D_GLIBCXX_ASSERTIONS -D_FORTIFY_SOURCE=3',
             options=['-DCMAKE_CXX_COMPILER=g++-12', '-DCMAKE_CXX_STANDARD=23']),
    Platform('clang-19', 'amd64', 'clang 19', ['clang-19', *NATIVE], toolchain=False,
             # it takes what libstdc++ 12 deprecates and uses itself for ours
             flags='-O1 -Wno-deprecated-declarations',
             options=['-DCMAKE_CXX_COMPILER=clang++-19']),
    Platform('libcxx', 'amd64, libc++ 19 with its debug hardening, address and undefined-behaviour '
             'sanitizers', 'clang 19',
             ['clang-19', 'libclang-rt-19-dev', 'googletest', 'libutf8proc-dev', 'libzint-dev',
              'dpkg-dev'],
             unpacked=['libc++-19-dev', 'libc++1-19', 'libc++abi-19-dev', 'libc++abi1-19',
                       'libunwind-19', 'libunwind-19-dev'],
             built=['googletest', 'pugixml', 'fmtlib'],
             type='Debug',
             # std::jthread is still an experiment there
             flags='-O1 -g1 -fexperimental-library -fsanitize=address,undefined -fno-sanitize-recover=all',
             options=['-DKIVO_RANDOM_TESTS=OFF', *(
                 # the library has what the sanitizers call when it is linked
                 f'-DCMAKE_{kind}_LINKER_FLAGS_DEBUG=-shared-libsan '
                 '-Wl,-rpath,/usr/lib/llvm-19/lib/clang/19/lib/linux' for kind in ('EXE', 'SHARED'))],
             skipped={'random_tests': NO_RAPIDCHECK, 'document_round_trip_tests': NO_RAPIDCHECK,
                      'gdb': 'the printers know what is in texts and lists of the GNU library alone',
                      'interface': 'sanitizers add names of their own',
                      **dict.fromkeys(('messages', 'wrong_maps'),
                                      'they ask the compiler alone, as `clang-19` does')}),
]


class Failed(Exception):
    """A platform cannot be gone through."""


def run(command, log, **options):
    """Runs a command into a log; where it fails, the log's end is shown."""
    with open(log, 'a', encoding='utf-8') as file:
        file.write(f'$ {" ".join(map(str, command))}\n')
        file.flush()
        ended = subprocess.run([str(part) for part in command], stdout=file,
                               stderr=subprocess.STDOUT, check=False, **options)
    if ended.returncode != 0:
        lines = log.read_text(encoding='utf-8', errors='replace').splitlines()
        print('\n'.join(line[:300] for line in lines[-40:]), file=sys.stderr)
        raise Failed(f'see {log}: {" ".join(map(str, command))[:200]}')


def apt(architecture, log):
    """An environment in which apt knows an architecture's packages and nothing of this machine's."""
    state = WORK / 'apt' / architecture
    for folder in ('lists/partial', 'archives/partial'):
        (state / folder).mkdir(parents=True, exist_ok=True)
    (state / 'status').touch()
    targets = subprocess.run(
        ['apt-get', 'indextargets', '--format', '$(REPO_URI) $(RELEASE) $(LABEL)',
         'Created-By: Packages'], capture_output=True, text=True, check=True).stdout
    places = {tuple(line.split()[:2]) for line in targets.splitlines()
              if line.split()[2] == 'Debian'}
    (state / 'sources.list').write_text(''.join(
        f'deb {place} {release} main\ndeb-src {place} {release} main\n'
        for place, release in sorted(places)))
    settings = {'APT::Architecture': architecture, 'Dir::State': state, 'Dir::Cache': state,
                'Dir::State::status': state / 'status', 'Dir::State::lists': state / 'lists',
                'Dir::Etc::sourcelist': state / 'sources.list', 'Dir::Etc::sourceparts': '/dev/null',
                'Acquire::Languages': 'none', 'APT::Sandbox::User': 'root'}
    (state / 'apt.conf').write_text(
        f'APT::Architectures {{ "{architecture}"; }};\n'
        + ''.join(f'{name} "{value}";\n' for name, value in settings.items()))
    environment = dict(os.environ, APT_CONFIG=str(state / 'apt.conf'))
    if not any((state / 'lists').glob('*Packages*')):
        run(['apt-get', 'update', '-qq'], log, env=environment)
    return environment


def mark_of(root, done, how):
    """The file that tells that something was done to a root in this way."""
    return root / f'{done}-{hashlib.sha256(repr(how).encode()).hexdigest()}'


def unpack(platform, root, log):
    """Unpacks a platform's packages, once for a list of them."""
    mark = mark_of(root, 'unpacked', platform.unpacked)
    if mark.exists() or not platform.unpacked:
        return
    packages = WORK / platform.name / 'packages'
    shutil.rmtree(packages, ignore_errors=True)
    packages.mkdir(parents=True)
    run(['apt-get', 'download', *platform.unpacked], log, cwd=packages,
        env=apt(platform.architecture, log))
    for package in sorted(packages.glob('*.deb')):
        run(['dpkg-deb', '--extract', package, root], log)
    mark.touch()


def toolchain(platform, root):
    """What tells CMake of a platform."""
    if not platform.toolchain:
        return []
    return [f'-DCMAKE_TOOLCHAIN_FILE={SOURCE}/cmake/toolchains/{platform.name}.cmake',
            f'-DKIVO_PORT_ROOT={root}']


def unpacked_source(name, log):
    """The folder of a package's source, as Debian has it."""
    if name == 'googletest':
        return pathlib.Path('/usr/src/googletest')
    folder = WORK / 'sources' / name
    if not folder.exists():
        folder.parent.mkdir(parents=True, exist_ok=True)
        run(['apt-get', 'source', '--download-only', name], log, cwd=folder.parent,
            env=apt('amd64', log))
        [description] = folder.parent.glob(f'{name}_*.dsc')
        run(['dpkg-source', '--extract', description, folder], log)
    return folder


def build_commands(platform, name, source, build, root):
    """What builds one of SOURCES into a root, in a folder of its own."""
    if name == 'gettext':  # of which programs need libintl
        triplet = 'x86_64-w64-mingw32'
        # the sources are as they were published: nothing of their build is made anew
        as_published = [f'{tool}=:' for tool in ('ACLOCAL', 'AUTOCONF', 'AUTOHEADER', 'AUTOMAKE')]
        return [[source / 'gettext-runtime' / 'configure', f'--host={triplet}', '--prefix=/usr',
                 f'CC={triplet}-gcc-posix', f'CXX={triplet}-g++-posix', *SOURCES[name]],
                ['make', '-C', 'intl', 'install', f'DESTDIR={root}', *as_published]]
    return [['cmake', '-S', source, '-B', build, '-G', 'Ninja', '-DCMAKE_BUILD_TYPE=Release',
             f'-DCMAKE_INSTALL_PREFIX={root}/usr', '-DCMAKE_INSTALL_LIBDIR=lib', *SOURCES[name],
             *toolchain(platform, root)],
            ['cmake', '--build', build, '--target', 'install']]


def build_dependency(platform, name, root, log):
    """Builds one of SOURCES into a platform's root, and keeps its licence there."""
    source = unpacked_source(name, log)
    build = WORK / platform.name / 'dependencies' / name
    commands = build_commands(platform, name, source, build, root)
    mark = mark_of(root, f'built-{name}', [[str(word) for word in words] for words in commands])
    if mark.exists():
        return
    shutil.rmtree(build, ignore_errors=True)
    build.mkdir(parents=True)
    for command in commands:
        run(command, log, cwd=build)
    licence = source / 'debian' / 'copyright'
    if licence.exists():
        kept = root / 'usr' / 'share' / 'doc' / name
        kept.mkdir(parents=True, exist_ok=True)
        shutil.copy(licence, kept)
    mark.touch()


def prepare(platform, log):
    """Unpacks and builds what a platform needs; answers the folder in which it is."""
    root = WORK / platform.name / 'root'
    root.mkdir(parents=True, exist_ok=True)
    unpack(platform, root, log)
    for name in platform.built:
        build_dependency(platform, name, root, log)
    return root


def build_release(platform, build, root, log, target, *settings, environment=None):
    """Builds a target as users get it."""
    run(['cmake', '-S', SOURCE, '-B', build, '-G', 'Ninja', '-DCMAKE_BUILD_TYPE=Release', *settings,
         *platform.options, *toolchain(platform, root)], log, env=environment)
    run(['cmake', '--build', build, '--target', target], log, env=environment)


def libraries_with_controls(platform, log):
    """The folders of a platform's libraries in packages with their control files, of which each tells
    who needs what."""
    controls = WORK / platform.name / 'controls'
    if not controls.exists():
        fresh = WORK / platform.name / 'controls.new'
        shutil.rmtree(fresh, ignore_errors=True)
        fresh.mkdir()
        for package in sorted((WORK / platform.name / 'packages').glob('lib*.deb')):
            run(['dpkg-deb', '--raw-extract', package, fresh / package.stem], log)
        fresh.rename(controls)
    return sorted({str(file.parent) for file in controls.rglob('lib*.so.*')})


def build_all(platform, build, root, log, environment):
    """Builds all that is tested and packed."""
    if platform.has_packages():
        libraries = ';'.join(libraries_with_controls(platform, log))
        how = ['--preset', 'package', f'-DKIVO_SHLIBDEPS_DIRS={libraries}',
               # in the place of the preset's: CMake forgets all when it finds another in its cache
               f'-DCMAKE_CXX_COMPILER={platform.packed[0]}']
    else:
        how = ['-G', 'Ninja', f'-DCMAKE_BUILD_TYPE={platform.type}',
               f'-DCMAKE_CXX_FLAGS_{platform.type.upper()}={WARNINGS} {platform.flags}',
               '-DCMAKE_COMPILE_WARNING_AS_ERROR=ON']
    parts = [f'-DKIVO_BUILD_{part}=ON' for part in ('LAYOUT', 'TOOLS', 'EXAMPLES', 'TESTS')]
    run(['cmake', '-S', SOURCE, '-B', build, *how, *parts, *platform.options,
         *toolchain(platform, root)], log, env=environment)
    run(['cmake', '--build', build], log, env=environment)


def cases(file):
    """The cases of a GoogleTest program that ran: passed, failed and skipped by themselves."""
    passed = failed = skipped = 0
    for case in xml.parse(file).iter('testcase'):
        if case.find('failure') is not None:
            failed += 1
        elif case.get('result') in ('skipped', 'suppressed') or case.get('status') == 'notrun':
            skipped += 1
        else:
            passed += 1
    return passed, failed, skipped


def test(platform, build, log, environment):
    """Runs the tests; answers how many passed, failed and skipped themselves, and what failed."""
    results = build / 'cases'
    shutil.rmtree(results, ignore_errors=True)
    # from the folder in which the programs run: to those of Windows no absolute name begins with a slash
    environment = dict(environment, GTEST_OUTPUT=f'xml:{results.relative_to(SOURCE)}/')
    if platform.left_out:
        environment['GTEST_FILTER'] = '-' + ':'.join(platform.left_out)
    left_out = '|'.join((*ELSEWHERE, *platform.skipped))
    with open(log, 'a', encoding='utf-8') as file:
        subprocess.run(
            ['ctest', '--test-dir', build, '--output-on-failure', '--no-tests=error',
             '--parallel', str(os.cpu_count()), '--timeout', '3600',
             '--output-junit', build / 'tests.xml', '--exclude-regex', f'^({left_out})$'],
            stdout=file, stderr=subprocess.STDOUT, env=environment, check=False)
    sums = [0, 0, 0]
    failing = []
    for one in xml.parse(build / 'tests.xml').iter('testcase'):
        name = one.get('name')
        fine = one.get('status') == 'run'
        told = results / f'{name}.xml'
        numbers = list(cases(told)) if told.exists() else [int(fine), 0, 0]
        if not fine:
            failing.append(name)
            numbers[1] = max(numbers[1], 1)  # a program may fail apart from its cases
        sums = [sum(pair) for pair in zip(sums, numbers)]
    return (*sums, failing)


def size(platform, build, root, log, environment):
    """The bytes of the library as users get it, without what is for debuggers."""
    if not platform.packed:
        build = WORK / platform.name / 'release'
        build_release(platform, build, root, log, 'kivo-erp-fiscal', environment=environment)
    installed = build / 'installed'
    run(['cmake', '--install', build, '--component', 'runtime', '--strip', '--prefix', installed], log)
    [library] = (file for pattern in ('lib/**/*.so.12.*', 'bin/*-12.dll')
                 for file in installed.glob(pattern))
    return library.stat().st_size


def pack(platform, build, root, log, environment):
    """Makes a platform's packages, and tries them."""
    if not platform.has_packages():
        run([SOURCE / 'tests' / 'zip.sh', SOURCE, build, root], log, env=environment)
        return
    for package in build.glob('*.deb'):
        package.unlink()
    run(['cpack', '--config', build / 'CPackConfig.cmake', '-B', build], log, cwd=build)
    compiler, emulator = platform.packed
    run([SOURCE / 'tests' / 'package.sh', SOURCE, build, compiler], log,
        env=dict(environment, EMULATOR=emulator))


def go_through(platform):
    """Builds and tests one platform; answers its row of the table, or none where that fails."""
    start = time.monotonic()
    folder = WORK / platform.name
    folder.mkdir(parents=True, exist_ok=True)
    log = folder / 'log'
    log.unlink(missing_ok=True)
    print(f'== {platform.name}: {platform.what}; {log}', flush=True)
    environment = dict(os.environ, **platform.environment)
    build = folder / 'build'
    try:
        root = prepare(platform, log)
        build_all(platform, build, root, log, environment)
        built = time.monotonic()
        passed, failed, themselves, failing = test(platform, build, log, environment)
        if platform.packed:
            pack(platform, build, root, log, environment)
        bytes_of_library = size(platform, build, root, log, environment)
    except Failed as failure:
        print(f'   failed: {failure}', flush=True)
        return None
    end = time.monotonic()
    row = {'platform': platform.name, 'what': platform.what, 'compiler': platform.compiler,
           'passed': passed, 'failed': failed,
           'skipped': {**ELSEWHERE, **platform.skipped, **platform.left_out, **platform.shortened},
           'themselves': themselves, 'failing': failing, 'size': bytes_of_library,
           'build': round(built - start), 'test': round(end - built)}
    (folder / 'row.json').write_text(json.dumps(row, indent=1))
    for name in failing:
        print(f'   failed: {name}', flush=True)
    print(f'   {passed} passed, {failed} failed, {row["build"]} s to build, {row["test"]} s to test',
          flush=True)
    return row


def figures(program):
    """What a run of the benchmark without peers tells: by operation, blocks and microseconds."""
    told = subprocess.run([program], capture_output=True, text=True, check=True).stdout
    return {name: (int(blocks), float(time)) for name, blocks, time in
            (line.split('\t') for line in told.splitlines())}


def compare():
    """Blocks and times over GNU's and LLVM's library, by one compiler, in turns."""
    runs = {}
    for platform in (each for each in PLATFORMS if each.name in ('clang-19', 'libcxx')):
        folder = WORK / platform.name
        folder.mkdir(parents=True, exist_ok=True)
        log = folder / 'compared.log'
        build_release(platform, folder / 'compared', prepare(platform, log), log, 'alone',
                      '-DKIVO_BUILD_LAYOUT=ON', '-DKIVO_BUILD_BENCHMARKS=alone')
        runs[folder / 'compared' / 'benchmarks' / 'alone'] = []
    for _ in range(9):
        for program, told in runs.items():
            told.append(figures(program))
    gnu, llvm = runs.values()
    print('| operation | blocks, GNU | blocks, LLVM | µs, GNU | LLVM to GNU |\n'
          '| --- | ---: | ---: | ---: | ---: |')
    for name, (blocks, _) in gnu[0].items():
        ratios = sorted(one[name][1] / other[name][1] for one, other in zip(llvm, gnu))
        print(f'| {name} | {blocks:,} | {llvm[0][name][0]:,} '
              f'| {statistics.median(each[name][1] for each in gnu):.3g} '
              f'| {statistics.median(ratios):.2f} ({ratios[0]:.2f}–{ratios[-1]:.2f}) |')


def table(rows):
    """The rows as the table of docs/platforms.md."""
    lines = ['| platform | what | compiler | passed | failed | skipped | library, KB | minutes |',
             '| --- | --- | --- | ---: | ---: | --- | ---: | ---: |']
    for row in rows:
        reasons = {}
        for name, reason in row['skipped'].items():
            reasons.setdefault(reason, []).append(f'`{name}`')
        skipped = [f'{", ".join(names)}: {reason}' for reason, names in reasons.items()]
        if row['themselves']:
            skipped.append(f'{row["themselves"]} by themselves')
        lines.append(f'| {row["platform"]} | {row["what"]} | {row["compiler"]} | {row["passed"]} '
                     f'| {row["failed"]} | {"; ".join(skipped) or "nothing"} '
                     f'| {row["size"] / 1000:.0f} '
                     f'| {(row["build"] + row["test"]) / 60:.0f} |')
    return '\n'.join(lines)


def main():
    start = time.monotonic()
    command, *names = sys.argv[1:] or ['']
    known = {platform.name: platform for platform in PLATFORMS}
    unknown = [name for name in names if name not in known]
    if command not in ('packages', 'run', 'compare') or unknown:
        sys.exit(f'ports: no {" ".join(unknown) or command or "command"}; '
                 f'platforms are {" ".join(known)}')
    chosen = [known[name] for name in names] or [each for each in PLATFORMS if not each.by_name]
    if command == 'packages':
        print(*sorted({*ALWAYS, *(package for platform in chosen for package in platform.packages)}))
        return
    if command == 'compare':
        try:
            compare()
        except Failed as failure:
            sys.exit(f'ports: failed: {failure}')
        return
    rows = [go_through(platform) for platform in chosen]
    print(table(filter(None, rows)))
    minutes = (time.monotonic() - start) / 60
    print(f'{len(rows)} platforms in {minutes:.0f} minutes on {os.cpu_count()} processors')
    sys.exit(any(row is None or row['failed'] or row['failing'] for row in rows))


if __name__ == '__main__':
    main()
