#!/bin/bash
# Follows CONTRIBUTING.md: applies its worked examples to a copy of the tree, and builds and tests the
# subsystem that they touch.
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

cmake -S . -B build -G Ninja "-DCMAKE_CXX_COMPILER=$compiler" -DKIVO_BUILD_LAYOUT=ON \
    -DKIVO_BUILD_EXAMPLES=ON -DKIVO_BUILD_TESTS=ON > "$work/log" || { cat "$work/log" >&2 && exit 1; }
# the classes of the subsystem, as the build knows them
suite=build/tests/every_class_transport.cpp
classes=$(sed -n 's/.*::Types<\(.*\)>;/\1/p' "$suite" | tr -d ',')
sources=()
for class in $classes; do
    sources+=("fiscal/$class.cpp")
done
"$compiler" -std=c++20 -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror \
    -I. -Itests -Itests/support "${sources[@]}" layout/engine.cpp layout/text.cpp layout/tree.cpp "$suite" \
    tests/contributing.cpp tests/support/allocations.cpp -lgtest -lgtest_main -o tests_of_examples
./tests_of_examples --gtest_brief=1
