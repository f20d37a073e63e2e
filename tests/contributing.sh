#!/bin/bash
# Follows CONTRIBUTING.md: applies its worked examples to a copy of the tree, makes the pages anew, and
# builds and runs the tests that they touch.
# Usage: contributing.sh SOURCE_DIR COMPILER
set -euo pipefail
source=$1
compiler=$2

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/tree"
tar -C "$source" --exclude=./.git --exclude=./build --create . | tar -C "$work/tree" --extract
cd "$work/tree"
awk '/^```diff/ { on = 1; next } /^```/ { on = 0 } on' CONTRIBUTING.md > "$work/examples.diff"
git apply "$work/examples.diff"

quietly() { "$@" > "$work/log" 2>&1 || { tail -n 50 "$work/log" >&2 && exit 1; }; }
export CCACHE_BASEDIR=$work/tree CCACHE_NOHASHDIR=1
quietly cmake -S . -B build -G Ninja "-DCMAKE_CXX_COMPILER=$compiler" -DKIVO_BUILD_LAYOUT=ON \
    -DKIVO_BUILD_EXAMPLES=ON -DKIVO_BUILD_TOOLS=ON -DKIVO_BUILD_TESTS=ON \
    -DCMAKE_CXX_FLAGS="-O0 -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror"
quietly cmake --build build --target facts {invoice,layout,tool}_tests nfe_summary \
    nfe_summary_translations

# the classes as values and their failures: of the subsystem, the whole suite takes too long; so do
# the thousands of documents made from the layout, which take an element from its table as it is
"$compiler" -std=c++20 -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror \
    -I. -Itests -Itests/support build/tests/every_class_transport.cpp \
    build/tests/every_failure_transport.cpp tests/contributing.cpp \
    tests/support/{allocations,failures,tried}.cpp \
    -Lbuild/layout -lkivo-erp-fiscal-layout -Lbuild/fiscal -lkivo-erp-fiscal \
    "-Wl,-rpath,$PWD/build/fiscal" -lpugixml -lgtest -lgtest_main -o tests_of_examples
./tests_of_examples --gtest_brief=1

cp docs/coverage.md "$work/before"
for page in coverage classes; do
    python3 "docs/reference/${page}_page.py" build/facts > "$work/$page.md"
    mv "$work/$page.md" "docs/$page.md"
done
ctest --test-dir build --output-on-failure --parallel "$(nproc)" --no-tests=error --tests-regex \
    '^((invoice|layout|tool)_tests|translations|nfe_summary|.*_page|fields_agree|numbers_in_prose|one_include|reference)$'
# the pages tell what was added, and nothing else is gone
grep -q "^| \`lacre\` |" docs/classes.md
for path in transp/vagao transp/vol/lacres transp/vol/lacres/nLacre; do
    grep -q "^| \`$path\` | \`" docs/coverage.md
done
diff "$work/before" docs/coverage.md | grep '^<' > "$work/gone" || true
if grep -v -e 'transp/vagao' -e 'transp/vol/lacres' -e '123 classes' -e '^< with ' \
    -e '^< 75 elements' "$work/gone" >&2; then
    echo "the examples change other lines of docs/coverage.md" >&2
    exit 1
fi
