#!/bin/bash
# Gathers the texts that nfe_summary says, for its translators.
# Usage: extract.sh FILE.pot
set -euo pipefail
pot=$(realpath "$1")
cd "$(dirname "$0")/.."
xgettext --c++ --from-code=UTF-8 --no-wrap --add-location=file --sort-by-file --omit-header \
    --keyword= --keyword=tr --keyword=say --keyword=mark --output="$pot" -- *.cpp *.hpp
