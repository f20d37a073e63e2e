#!/bin/bash
# Makes the packages of a build, unpacks them into a clean root and builds programs against it; then
# the same over other base headers, from the library's sources within the program's build.
# Usage: package.sh SOURCE_DIR BUILD_DIR COMPILER...
# The build may be for another processor, whose programs are run by EMULATOR.
set -euo pipefail
source=$1
build=$2
shift 2
compilers=("$@")
emulator=(${EMULATOR:+"$EMULATOR"})

tools=(cpack dpkg-deb dpkg-shlibdeps file ninja pkg-config "${compilers[@]}")
[ ${#emulator[@]} != 0 ] || tools+=(gdb)
[[ ${compilers[*]} != *clang* ]] || tools+=(clang-tidy-14)
for tool in "${tools[@]}"; do
    command -v "$tool" > /dev/null || {
        echo "package: skipped, there is no $tool; ./dev package installs it"
        exit 77
    }
done

fail() {
    echo "package: $*" >&2
    exit 1
}

# Runs a command that is quiet unless it fails.
quietly() { "$@" > "$work/log" 2>&1 || { cat "$work/log" >&2 && fail "failed: $*"; }; }

# Runs a program that was built.
start() { "${emulator[@]}" "$@"; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
warnings="-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror"
sample=$source/examples/data/nfe.xml

# Builds a folder of programs and runs those that need no file.
consume() { # FOLDER COMPILER PROGRAMS CMAKE_ARGUMENT...
    local folder=$work/$1 compiler=$2 programs=$3 program
    shift 3
    quietly cmake -S "$source/tests/consumer" -B "$folder" -G Ninja "-DPROGRAMS=$programs" \
        "-DCMAKE_CXX_COMPILER=$compiler" "${toolchain[@]}" "$@"
    quietly cmake --build "$folder"
    for program in ${programs//;/ }; do
        [ "$program" = read_xml ] || quietly start "$folder/$program"
    done
}

cd "$work"
quietly cpack --config "$build/CPackConfig.cmake" -B "$work/packages"
for package in packages/*.deb; do
    dpkg-deb --extract "$package" root
done
# packages are one for each component, and none holds what belongs to another
twice=$(for package in packages/*.deb; do dpkg-deb --contents "$package" | awk '!/^d/ { print $6 }'; done |
    sort | uniq --repeated)
[ -z "$twice" ] || fail "in two packages: $twice"
! grep -rl -e "$source" -e "$build" root || fail "the files above name the folder of the build"

library=$(find root/usr/lib -name 'libkivo-erp-fiscal.so.12.*')
identifier=$(readelf --notes "$library" | sed -n 's/.*Build ID: //p')
[ -f "root/usr/lib/debug/.build-id/${identifier:0:2}/${identifier:2}.debug" ] ||
    fail "no debug symbols of $identifier"

toolchain=()
system=$work/root
if [ ${#emulator[@]} != 0 ]; then
    # the packages beside what they need
    setting() { sed -n "s/^$1:[A-Z]*=//p" "$build/CMakeCache.txt"; }
    system=$work/system
    cp -a "$(setting KIVO_PORT_ROOT)" "$system"
    for package in packages/*.deb; do
        dpkg-deb --extract "$package" "$system"
    done
    toolchain=("-DCMAKE_TOOLCHAIN_FILE=$(setting CMAKE_TOOLCHAIN_FILE)" "-DKIVO_PORT_ROOT=$system")
    export PKG_CONFIG_SYSROOT_DIR=$system PKG_CONFIG_LIBDIR=$system QEMU_LD_PREFIX=$system
fi
libraries=$system/$(dirname "${library#root/}")
export PKG_CONFIG_PATH=$libraries/pkgconfig
for compiler in "${compilers[@]}"; do
    folder="cmake ${compiler##*/}"
    consume "$folder" "$compiler" "fill;read_xml" "-DCMAKE_PREFIX_PATH=$system/usr" \
        "-DCMAKE_CXX_FLAGS=$warnings"
    # the flags are lists
    # shellcheck disable=SC2046,SC2086
    quietly "$compiler" -std=c++20 -g $warnings "$source/tests/consumer/fill.cpp" -o fill \
        $(pkg-config --cflags --libs kivo-erp-fiscal)
    # shellcheck disable=SC2046,SC2086
    quietly "$compiler" -std=c++20 $warnings "$source/tests/consumer/read_xml.cpp" -o read_xml \
        $(pkg-config --cflags --libs kivo-erp-fiscal-layout)
    export LD_LIBRARY_PATH=$libraries
    quietly start ./fill
    cmp <(start ./read_xml "$sample") <(start "$folder/read_xml" "$sample")
    if [[ ${compiler##*/} = clang* ]]; then
        # shellcheck disable=SC2046
        quietly clang-tidy-14 --quiet "--config-file=$source/.clang-tidy" \
            "$source/tests/consumer/fill.cpp" -- -std=c++20 $(pkg-config --cflags kivo-erp-fiscal)
    fi
    grep -q "<xNome>" <(start ./read_xml "$sample") || fail "read_xml writes no invoice"
    unset LD_LIBRARY_PATH
done

# the program speaks, and what is installed beside it is for it
summary() { LANG=pt_BR.UTF-8 LD_LIBRARY_PATH=$libraries start root/usr/bin/nfe_summary "$@"; }
summary "$sample" | grep -qF 'Emitente        Comércio' || fail "nfe_summary shows no invoice"
summary --help | sed -n 's/^  --\([a-z-]*\).*/\1/p' > options
[ -s options ] || fail "nfe_summary has no options"
for file in man/man1/nfe_summary.1.gz man/pt_BR/man1/nfe_summary.1.gz \
    bash-completion/completions/nfe_summary zsh/vendor-completions/_nfe_summary \
    fish/vendor_completions.d/nfe_summary.fish; do
    while read -r option; do
        zcat --force "root/usr/share/$file" | tr -d '\134' | grep -qF -- "$option" ||
            fail "$file does not know --$option"
    done < options
done

zcat root/usr/share/man/pt_BR/man1/nfe_summary.1.gz | grep -qF '.SH NOME' ||
    fail "the manual page is not in Portuguese"
for file in zsh/vendor-completions/_nfe_summary fish/vendor_completions.d/nfe_summary.fish; do
    for words in 'Mostrar a vers' 'Show the version'; do
        grep -qF "$words" "root/usr/share/$file" || fail "$file does not say '$words'"
    done
done

# what follows is the same for every processor, or not to be had for another
[ ${#emulator[@]} = 0 ] || exit 0

# GDB repeats the path of a library in the folder of the printers, and here the root is part of it
scripts=$work/root/usr/share/gdb/auto-load
mkdir -p "$scripts$work/root"
ln -s "$scripts/usr" "$scripts$work/root/usr"
LD_LIBRARY_PATH=$libraries LC_ALL=C.UTF-8 gdb -nx -batch \
    -iex "set auto-load safe-path $scripts" -iex "set auto-load scripts-directory $scripts" \
    -iex "set debug-file-directory $work/root/usr/lib/debug" -ex 'set print pretty on' \
    -ex 'break kivo::erp::v12::fiscal::nota_fiscal::get_produtos' -ex run -ex up \
    -ex 'print nota' fill > shown 2>&1
grep -q 'descricao = "Café"' shown || { cat shown >&2 && fail "GDB does not show the invoice"; }

# as a part of another build, the library installs nothing, and makes no more than the library
quietly cmake -S "$source/tests/consumer" -B part -G Ninja "-DKIVO_SOURCE_DIR=$source"
quietly cmake --install part --prefix nothing
[ ! -e nothing ] || fail "installed with its user's program: $(find nothing -type f)"
! ninja -C part -t targets all | grep -E '^(test|package|.*layout).*:' || fail "more than the library"

consume counting "${compilers[0]}" "fill;other_base" "-DKIVO_SOURCE_DIR=$source" -DKIVO_INSTALL=ON \
    "-DKIVO_BASE_INCLUDE_DIR=$source/tests/counting_base" -DCMAKE_UNITY_BUILD=ON
quietly cmake --install counting --prefix "$work/other"
consume other "${compilers[0]}" "fill;other_base" "-DCMAKE_PREFIX_PATH=$work/other"
