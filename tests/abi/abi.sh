#!/bin/bash
# Compares the library's names, signatures, types and sizes with those recorded for its processor, or
# records them.
# Usage: abi.sh compare|record LIBRARY
set -euo pipefail
command=$1
library=$(realpath "$2")
cd "$(dirname "$0")"
case $(LC_ALL=C readelf --file-header "$library" | sed -n 's/ *Machine: *//p') in
*X86-64) recorded=amd64.abi.xz ;;
AArch64) recorded=arm64.abi.xz ;;
*)
    echo "abi: nothing is recorded for the processor of $library" >&2
    exit 2
    ;;
esac
options=(--suppressions implementation.abignore --exported-interfaces-only)
described=$(mktemp --suffix=.abi)
trap 'rm "$described"' EXIT

case $command in
compare)
    xz --decompress --stdout "$recorded" > "$described"
    abidiff "${options[@]}" "$described" "$library" || {
        echo "abi: the library differs from tests/abi/$recorded; ./dev abi-accept records it anew" >&2
        exit 1
    }
    ;;
record)
    abidw "${options[@]}" --no-corpus-path --no-comp-dir-path --no-show-locs --no-parameter-names \
        --out-file "$described" "$library"
    # the sources' paths are this machine's
    sed -i -E "s#( path=')/[^']*/(fiscal/)#\1\2#" "$described"
    xz -9 --stdout "$described" > "$recorded"
    ;;
*)
    echo "abi: no command $command" >&2
    exit 2
    ;;
esac
