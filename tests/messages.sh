#!/bin/bash
# Checks what the compiler tells a user who takes another standard, or a value for another.
# Usage: messages.sh SOURCE_DIR COMPILER
set -euo pipefail
cd "$1"
compiler=$2
failed=0

# The errors of the text in standard input, one a line.
errors() { # FLAG...
    LC_ALL=C "$compiler" -I . -fsyntax-only "$@" -x c++ - 2>&1 | grep 'error: ' || true
}

expect_one() { # WHAT PATTERN ERRORS
    if [ "$(grep --count . <<< "$3")" != 1 ] || ! grep -q "$2" <<< "$3"; then
        echo "messages: $1: $(grep --count . <<< "$3") errors, first: ${3%%$'\n'*}" >&2
        failed=1
    fi
}

for header in base/*.hpp fiscal/*.hpp; do
    found=$(errors -std=c++17 -include "$header" < /dev/null)
    # what stands on the standard library alone needs no C++20
    if [ -n "$found" ] || grep -qE '__cplusplus|#include <(base|fiscal)/' "$header"; then
        expect_one "$header" 'kivo-erp-fiscal needs C++20: compile with -std=c++20' "$found"
    fi
done

value() { # WHAT PATTERN CODE
    expect_one "$1" "$2" "$(errors -std=c++20 -Werror=unused-result <<< \
        "#include <fiscal/tipo_emissao.hpp>
         #include <fiscal/types.hpp>
         using namespace kivo::core::v7;
         void program(char* chars, std::size_t length) { $3; }")"
}
value 'a price' make 'auto price = decimal::make(42.90, 2)'
value 'a day' make 'auto day = date::make(2026, 11, 24.0)'
value 'a dropped decimal' nodiscard 'decimal::make(4290, 2)'
value 'a dropped result' nodiscard 'chars_converter<decimal>::make_chars(chars, length, decimal())'
value 'a dropped result of ours' nodiscard \
    'chars_converter<kivo::erp::v12::fiscal::tipo_emissao>::make_chars(chars, length, {})'

exit $failed
