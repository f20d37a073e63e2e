#!/bin/bash
# Checks that a document has the same code and commands, and leads to the same places, in every
# language. Comments are another matter.
# Usage: guides_are_alike.sh BLOCKS_OF_ONE ONE.md BLOCKS_OF_THE_OTHER THE_OTHER.md
set -euo pipefail

essence() {
    local file
    for file in "$1"/blocks.cpp "$1"/base/*.hpp; do
        [ ! -f "$file" ] ||
            sed -e '/^#line/d' -e 's/^TEST(.*/TEST/' -e 's,//.*,,' -e 's/ *$//' "$file"
    done
    sed -n 's/ *#.*//; s/[A-Z]\{4,\}/NAME/g; s/^    \([a-z.]\)/\1/p' "$2"
    # each names its twin first, in another place
    grep -oE '\]\([^)]*\)' "$2" | sed 's/guia/guide/; s/LEIAME/README/' | sort
}

diff --unified=1 --label "$2" --label "$4" <(essence "$1" "$2") <(essence "$3" "$4")
