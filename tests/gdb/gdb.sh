#!/bin/bash
# Checks what gdb prints of objects with the printers: loaded from beside the library, from where
# they are installed, and sourced without any other printers.
# Usage: gdb.sh GDB DEBUGGEE LIBRARY PRINTERS BUILD_FOLDER
# shellcheck disable=SC2016 # the dollars are the debugger's
set -euo pipefail
gdb=$1
debuggee=$2
library=$3
printers=$4
build=$5
failed=0
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
export LC_ALL=C.UTF-8

# debug GDB_OPTION...: what is printed in `shown`
debug() {
    "$gdb" -nx -batch "$@" -ex 'set print pretty on' -ex 'break shown' -ex run \
        -ex 'print nota' -ex 'print in_place' -ex 'print dates[0]' -ex 'print dates[1]' \
        -ex 'print *(kivo::erp::v12::fiscal::nota_fiscal*)dates' \
        "$debuggee" 2>&1 || true
}

# expect WHAT TEXT: the lines of the text stand in $shown, in one piece
expect() {
    local what=$1 text=$2
    [[ $shown == *"$text"* ]] || {
        echo "gdb, $way: $what: no" >&2
        echo "$text" >&2
        failed=1
    }
}

check() {
    way=$1
    shift
    shown=$(debug "$@")
    expect 'a date and time' 'data_emissao = 2026-03-09T08:05:07-03:00,'
    expect 'a CNPJ' '    cnpj = 12ABC34501DE35,'
    expect 'an enumerator' 'tipo_emissao = contingencia_offline,'
    expect 'an absent optional' 'tipo_nota_debito = absent,'
    expect 'an empty lazy object' 'total_nfe = empty,'
    expect 'an empty list' 'nfe_referenciadas = empty list,'
    expect 'a text' '      descricao = "Café torrado",'
    expect 'a decimal' 'quantidade_comercial = 12.50,'
    expect 'a present optional' 'valor_desconto = -0.0000000005,'
    expect 'an alternative inside another, and a code without a name' \
        '      tributacao (grupo_tributacao_icms_00) = {
        origem_mercadoria = nacional,
        cst = 77,'
    expect 'a list as an alternative, a text as another' \
        '      produto_especifico (medicamento[]) = {{
          codigo_anvisa (basic_string) = "1234567890123",
          preco_maximo_consumidor = 0
        }, empty},'
    expect 'a CPF as an alternative' 'documento (cpf) = 52998224725,'
    expect 'an object without a record' '$2 = {
  valor = 7
}'
    expect 'a date' '$3 = 2026-02-28'
    expect 'no date' '$4 = no date'
    expect 'no object' '$5 = no object'
    [ $failed = 0 ] || { echo "$shown" >&2; exit 1; }
}

check 'beside the library' -iex "add-auto-load-safe-path ${library%/*}"

cmake --install "$build" --component runtime --prefix "$folder" > /dev/null
scripts=$folder/share/gdb/auto-load
installed=$(find "$scripts" -name '*-gdb.py')
library_folder=${installed#"$scripts"}
library_folder=${library_folder%/*}
mkdir -p "$library_folder"
cp "$library" "$library_folder"
ln -sf "${library##*/}" "$library_folder/libkivo-erp-fiscal.so.12"
LD_LIBRARY_PATH=$library_folder check 'installed' \
    -iex "set auto-load scripts-directory $scripts" -iex "set auto-load safe-path $scripts"

check 'sourced, alone' -iex 'set auto-load python-scripts off' -x "$printers"
