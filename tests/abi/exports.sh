#!/bin/bash
# Compares the names that the DLL exports with the recorded ones, or records them. What it needs
# besides is the C++ runtime.
# Usage: exports.sh compare|record DLL OBJDUMP
set -euo pipefail
command=$1
library=$(realpath "$2")
objdump=$3
cd "$(dirname "$0")"
recorded=kivo-erp-fiscal-12.exports.xz

exports() {
    "$objdump" --private-headers "$library" |
        awk '/Name Pointer\] Table/ { inside = 1; next } /^$/ { inside = 0 } inside { print $NF }' |
        LC_ALL=C sort
}

case $command in
compare)
    diff <(xz --decompress --stdout "$recorded") <(exports) || {
        echo "exports: other names than in $recorded" >&2
        exit 1
    }
    needed=$("$objdump" --private-headers "$library" | sed -n 's/.*DLL Name: //p' |
        grep -vxE 'libstdc\+\+-6\.dll|libgcc_s_seh-1\.dll|KERNEL32\.dll|msvcrt\.dll') || true
    [ -z "$needed" ] || {
        echo "exports: needs $needed besides the C++ runtime" >&2
        exit 1
    }
    ;;
record) exports | xz -9 > "$recorded" ;;
*)
    echo "exports: no command $command" >&2
    exit 2
    ;;
esac
