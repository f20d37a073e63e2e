#!/bin/bash
# Makes the zip for Windows of a build, builds programs against what it holds, and runs them and the
# tool with the DLLs that are in it, and no others.
# Usage: zip.sh SOURCE_DIR BUILD_DIR PORT_ROOT
set -euo pipefail
source=$1
build=$2
root=$3

fail() {
    echo "zip: $*" >&2
    exit 1
}

# Runs a command that is quiet unless it fails.
quietly() { "$@" > "$work/log" 2>&1 || { cat "$work/log" >&2 && fail "failed: $*"; }; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
quietly cpack --config "$build/CPackConfig.cmake" -B "$work/packed"
quietly unzip packed/*.zip
unpacked=$(echo "$work"/kivo-erp-fiscal-*)
! grep -rl -e "$source" -e "$build" "$unpacked" || fail "the files above name the folder of the build"

quietly cmake -S "$source/tests/consumer" -B consumer -G Ninja "-DPROGRAMS=fill;read_xml" \
    "-DCMAKE_TOOLCHAIN_FILE=$source/cmake/toolchains/windows.cmake" "-DKIVO_PORT_ROOT=$root" \
    "-Dkivo-erp-fiscal_DIR=$unpacked/lib/cmake/kivo-erp-fiscal" \
    "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror"
quietly cmake --build consumer

run() { WINEPATH="Z:${unpacked//\//\\}\\bin" /usr/lib/wine/wine64 "$@"; }
mkdir ação
cp "$source/examples/data/nfe.xml" 'ação/nota fé.xml'
quietly run consumer/fill.exe
# a program may tell by its status that a text has no field
grep -q '<xNome>' <(run consumer/read_xml.exe "$source/examples/data/nfe.xml") ||
    fail "read_xml writes no invoice"
grep -qF 'Emitente        Comércio' \
    <(LC_ALL=C.UTF-8 LANGUAGE=pt_BR run "$unpacked/bin/nfe_summary.exe" 'ação/*.xml') ||
    fail "nfe_summary shows no invoice in Portuguese"
for licence in fmtlib gettext pugixml utf8proc zint nlohmann-json3-dev \
    gcc-mingw-w64-x86-64-posix-runtime mingw-w64-x86-64-dev; do
    [ -s "$unpacked/share/licences/$licence.txt" ] || fail "no licence of $licence"
done
