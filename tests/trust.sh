#!/bin/bash
# The tests in their long form, over what is built in build/: every failure, valgrind, the
# sanitizers, threads, random operations and documents, fuzzing. Its figures come in one block at
# the end. A seed makes what is random again as it was.
# Usage: trust.sh SEED [STEP...]
set -euo pipefail
cd "$(dirname "$0")/.."
seed=$1
shift
logs=build/trust
processors=$(nproc)
rm -rf "$logs"
mkdir -p "$logs"

say() { echo "== $* ($((SECONDS / 60)) min)"; }

die() {
    echo "trust: $*" >&2
    exit 1
}

# A line of the block: a number, and what it counts.
figure() { printf '%s %s\n' "$(sed ':a;s/\B[0-9]\{3\}\>/,&/;ta' <<< "$1")" "${*:2}" >> "$logs/figures"; }

# The sum of the numbers that a pattern of sed captures in logs.
sum_of() { # PATTERN LOG...
    sed -n "s/$1/\1/p" "${@:2}" | awk '{ sum += $1 } END { print sum + 0 }'
}

# Waits for processes, and shows the log of one that failed.
wait_for() { # PID=LOG...
    local each failed=
    for each in "$@"; do
        wait "${each%%=*}" || failed=${each#*=}
    done
    [ -z "$failed" ] && return
    tail -n 40 "$failed" >&2
    die "see $failed"
}

# Runs a test program in as many pieces as there are processors.
in_pieces() { # NAME COMMAND...
    local name=$1 piece running=()
    shift
    for ((piece = 0; piece < processors; ++piece)); do
        GTEST_TOTAL_SHARDS=$processors GTEST_SHARD_INDEX=$piece "$@" > "$logs/$name.$piece" 2>&1 &
        running+=("$!=$logs/$name.$piece")
    done
    wait_for "${running[@]}"
}

every_failure() {
    local test what='failing allocations'
    for test in value throwing_base companion_failure companion_throw; do
        say "$test tests, every failure"
        KIVO_EVERY_FAILURE=1 in_pieces "$test" "build/release/tests/${test}_tests" --gtest_brief=1
    done
    figure "$(sum_of "^tried: \([0-9]*\) $what$" "$logs"/value.*)" "$what of the classes"
    figure "$(sum_of "^tried: \([0-9]*\) $what$" "$logs"/companion_failure.*)" "$what of the companion"
    what='failing operations of base values'
    figure "$(sum_of "^tried: \([0-9]*\) $what$" "$logs"/throwing_base.*)" "$what in the classes"
    figure "$(sum_of "^tried: \([0-9]*\) $what$" "$logs"/companion_throw.*)" "$what in the companion"
}

valgrinding() {
    local test log
    for test in value throwing_base random invoice; do
        say "$test tests under valgrind"
        # what is left over is counted; to search for it at the end of each child would take hours.
        # The allocations that the tests count and refuse stay theirs.
        RC_PARAMS=seed=$seed in_pieces "valgrind.$test" \
            valgrind --error-exitcode=9 --leak-check=no --child-silent-after-fork=yes \
            --soname-synonyms=somalloc=nouserintercepts \
            --log-file="$logs/$test.%q{GTEST_SHARD_INDEX}.valgrind" \
            "build/release/tests/${test}_tests" --gtest_brief=1
        for log in "$logs/$test".*.valgrind; do
            grep -q 'in use at exit: 0 bytes in 0 blocks' "$log" || die "blocks are left, see $log"
        done
    done
    figure "$(sum_of '^\[==========\] \([0-9]*\) tests\? from .* ran.*' "$logs"/valgrind.*)" \
        "tests under valgrind"
}

sanitizers() {
    local what
    say "all tests under the address and undefined-behaviour sanitizers"
    ctest --test-dir build/asan --output-on-failure --no-tests=error --parallel "$processors" \
        > "$logs/sanitizers" 2>&1 &
    wait_for "$!=$logs/sanitizers"
    figure "$(sum_of '.* 0 tests failed out of \([0-9]*\)$' "$logs/sanitizers")" \
        "tests and test programs under the address and undefined-behaviour sanitizers"
    for what in 'elements and attributes of the layout' 'codes, bounds and other texts of theirs' \
        'documents with one fault or none'; do
        figure "$(sum_of "^tried: \([0-9]*\) $what$" build/asan/Testing/Temporary/LastTest.log)" \
            "$what"
    done
}

threads() {
    say "threads under the thread sanitizer"
    build/tsan/tests/thread_tests --gtest_brief=1 > "$logs/threads" 2>&1 &
    wait_for "$!=$logs/threads"
    figure "$(sum_of '^\[==========\] \([0-9]*\) tests\? from .* ran.*' "$logs/threads")" \
        "tests under the thread sanitizer"
}

# In several processes: the sanitizer never forgets where a block was taken.
random() {
    local number
    say "random operations and documents under the address and undefined-behaviour sanitizers"
    for ((number = seed; number < seed + 10; ++number)); do
        echo "random_tests seed=$number max_success=1650 max_size=250"
        echo "document_round_trip_tests seed=$number max_success=1000 max_size=20"
    done > "$logs/runs"
    # shellcheck disable=SC2016 # for the shell that runs each of them
    ASAN_OPTIONS=malloc_context_size=4 xargs --max-procs="$processors" --delimiter='\n' -I{} \
        bash -c 'read -r test parameters <<< "$1"
            RC_PARAMS=$parameters "build/fuzz/tests/$test" --gtest_brief=1 \
                --gtest_filter="random*" > "$2/$test.${parameters%% *}" 2>&1' \
        - {} "$logs" < "$logs/runs" || die "see $logs/*seed=*"
    figure "$(sum_of '^tried: \([0-9]*\) random operations$' "$logs"/random_tests.*)" "random operations"
    figure "$(sum_of '^tried: \([0-9]*\) random documents$' "$logs"/document_round_trip_tests.*)" \
        "random documents"
}

# Lets a fuzz target try so many inputs, from what it found before and from seeds.
fuzz() { # TARGET RUNS ARGUMENT...
    local target=$1 runs=$2 found=build/fuzz/found/$1
    shift 2
    mkdir -p "$found"
    "build/fuzz/tests/fuzz/fuzz_$target" -runs="$runs" -seed="$seed" -print_final_stats=1 \
        -artifact_prefix="build/fuzz/$target-" "$found" "$@" > "$logs/fuzz.$target" 2>&1 || {
        tail -n 40 "$logs/fuzz.$target" >&2
        die "fuzz_$target failed"
    }
}

fuzz_values() {
    local target
    for target in cnpj cpf date datetime decimal tipo_emissao; do
        fuzz "$target" 1000000 -max_len=48
    done
}

fuzz_documents() {
    local file cut=build/fuzz/cut
    mkdir -p "$cut"
    for file in examples/data/*.xml; do
        head -c $(($(stat -c %s "$file") / 2)) "$file" > "$cut/$(basename "$file")"
    done
    grep -oh '<[A-Za-z0-9]*' examples/data/*.xml | sort -u | sed 's/.*/"&>"/' > build/fuzz/elements
    fuzz read_xml 200000 -max_len=8192 -dict=build/fuzz/elements examples/data "$cut"
}

fuzzing() {
    say "fuzzing"
    fuzz_values &
    fuzz_documents
    wait "$!"
    figure "$(sum_of '^stat::number_of_executed_units: *\([0-9]*\)' "$logs"/fuzz.[!r]*)" \
        "texts as values"
    figure "$(sum_of '^stat::number_of_executed_units: *\([0-9]*\)' "$logs/fuzz.read_xml")" \
        "hostile documents"
}

[ $# != 0 ] || set -- every_failure valgrinding sanitizers threads random fuzzing
for step in "$@"; do
    "$step"
done
say "figures, seed $seed"
cat "$logs/figures"
