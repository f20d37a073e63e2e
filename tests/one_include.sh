#!/bin/bash
# Checks that a program which includes fiscal/nota_fiscal.hpp has every class and all they need.
# Usage: one_include.sh SOURCE_DIR COMPILER
set -euo pipefail
cd "$1"
reached=$("$2" -std=c++20 -I . -MM fiscal/nota_fiscal.hpp | grep -oE '(base|fiscal)/[a-z0-9_]+\.hpp')
failed=0
for header in base/*.hpp fiscal/*.hpp; do
    # the choices are the sources' own
    [ "$header" = fiscal/choice.hpp ] || grep -qxF "$header" <<< "$reached" || {
        echo "one_include: fiscal/nota_fiscal.hpp does not reach $header" >&2
        failed=1
    }
done
exit $failed
