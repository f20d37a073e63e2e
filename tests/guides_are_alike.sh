#!/bin/bash
# Checks that the guides have the same code in every language, but for the comments.
# Usage: guides_are_alike.sh BLOCKS_OF_ONE BLOCKS_OF_THE_OTHER
set -euo pipefail

code() {
    sed -e '/^#line/d' -e 's/^TEST(.*/TEST/' -e 's,//.*,,' -e 's/ *$//' \
        "$1/blocks.cpp" "$1/base/decimal.hpp"
}

diff --unified=1 --label "${1##*/}" --label "${2##*/}" <(code "$1") <(code "$2")
