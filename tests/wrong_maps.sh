#!/bin/bash
# Maps with a slip in them do not compile, and the compiler says why: in the words of the first line
# of each. Two of them are tried without their slip, and do.
# Usage: wrong_maps.sh SOURCE_DIR COMPILER
set -euo pipefail
source=$1
compiler=$2

compile() {
    "$compiler" -std=c++20 -fsyntax-only -I "$source" -x c++ - 2>&1
}

status=0
for map in "$source"/tests/wrong_maps/*.cpp; do
    expected=$(sed -n '1s|^// error: ||p' "$map")
    if compiled=$(compile < "$map"); then
        echo "$map compiles"
        status=1
    elif ! grep -F "$expected" <<< "$compiled" | grep -q 'error: static.assert'; then
        echo "$map does not say: $expected"
        grep error: <<< "$compiled" | cut -c1-200
        status=1
    fi
done
expect_right() {
    sed "$2" "$source/tests/wrong_maps/$1.cpp" | compile > /dev/null || {
        echo "$1 does not compile without its slip"
        status=1
    }
}
expect_right digits_on_a_text 's/, digits(2)>/>/'
expect_right another_setter 's/set_peso_bruto/set_especie/'
exit "$status"
