#!/bin/bash
# Checks what the shared library asks of the outside and keeps to itself.
# Usage: interface.sh LIBRARY EXPORTS COMPILER
set -euo pipefail
library=$1
exports=$2
compiler=$3
failed=0

fail() {
    echo "interface: $*" >&2
    failed=1
}

needed=$(readelf --dynamic --wide "$library" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p')
for file in $needed; do
    case $file in
    libstdc++.so.6 | libm.so.6 | libgcc_s.so.1 | libc.so.6 | ld-linux-*.so.*) ;;
    *) fail "needs $file besides the C++ runtime" ;;
    esac
done
readelf --dynamic --wide "$library" | grep -q 'SONAME.*\[libkivo-erp-fiscal.so.12\]' ||
    fail "has another SONAME than libkivo-erp-fiscal.so.12"

# what the standard library makes of our classes stays inside
foreign=$(nm --dynamic --defined-only --without-symbol-versions --demangle "$library" |
    cut -d' ' -f3- | grep -vE '^(kivo::|KIVO_ERP_FISCAL_12$)') || true
[ -z "$foreign" ] || fail "exports $foreign"

# the converters take a std::size_t, which is an unsigned long here and an unsigned int elsewhere, or
# the other way round
scratch=$(mktemp -d)
trap 'rm -r "$scratch"' EXIT
nm --dynamic --defined-only --without-symbol-versions "$library" | cut -d' ' -f3 |
    grep -E 'converter.*make_' | sed -E 's/(EPcR|PKc)m/\1j/; t; s/(EPcR|PKc)j/\1m/' > "$scratch/others"
sed 's/.*/.globl &\n.type &, %function\n&:/' "$scratch/others" |
    "$compiler" -shared -nostdlib -x assembler - -o "$scratch/other.so" \
        "-Wl,--version-script=$exports"
[ "$(nm --dynamic --defined-only --without-symbol-versions "$scratch/other.so" |
    grep --count --word-regexp --fixed-strings --file="$scratch/others")" = 2 ] ||
    fail "exports no converters of another std::size_t"

# constants that hold addresses stand in .data.rel.ro and are read-only once they are relocated;
# what the compiler's own start-up files bring is no data of ours, nor are the marks between code and
# data on ARM
data=$(objdump --syms --demangle "$library" | grep -E ' (\.data|\.bss|\.tdata|\.tbss)[[:space:]]' |
    grep -vE '(__dso_handle|completed\.0|__TMC_END__|DW\.ref\.__gxx_personality_v0| \.data| \.bss| [$]d)$') || true
[ -z "$data" ] || fail "has writable data: $data"
! nm --defined-only "$library" | grep '_GLOBAL__sub_I' || fail "has static initialisers"

exit $failed
