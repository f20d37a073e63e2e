#!/bin/bash
# Checks how nfe_summary ends and what it says, for good, bad and hostile files.
# Usage: nfe_summary.sh PROGRAM DATA_FOLDER
set -euo pipefail
export LC_ALL=C.UTF-8
program=$1
data=$2
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
failed=0

fault() {
    echo "$*" >&2
    failed=1
}

# run STATUS PATTERN ARGUMENT...: the status it has to end with, and what has to stand in one line
# on stderr, or in stdout where stderr is to be empty; no pattern for both to be empty
run() {
    local status=0 wanted=$1 pattern=$2 shown=$folder/out
    shift 2
    "$program" "$@" > "$folder/out" 2> "$folder/err" || status=$?
    [ "$status" = "$wanted" ] || fault "$*: ended with $status instead of $wanted"
    if [ -s "$folder/err" ]; then
        shown=$folder/err
        [ "$(wc -l < "$folder/err")" = 1 ] || fault "$*: more than one line"
    fi
    if [ -z "$pattern" ]; then
        [ ! -s "$shown" ] || fault "$*: not silent: $(head -5 "$shown")"
    else
        grep -qF -- "$pattern" "$shown" || fault "$*: no '$pattern' in: $(head -5 "$shown")"
    fi
}

# shows PATTERN...: what else has to stand in what was shown last
shows() {
    local pattern
    for pattern; do
        grep -qF -- "$pattern" "$folder/out" || fault "no '$pattern' in $(head -1 "$folder/out")..."
    done
}

# the elements of the invoice in a file, one a line
elements() {
    tr -d '\n' < "$1" | sed 's|>[[:space:]]*<|>\n<|g' | sed -n '\|^<ide>|,\|^</infNFe>|p'
}

# A whole invoice.
run 0 'São José dos Pinhais - PR' "$data/nfe.xml"
shows '4126 0899 3174 8200 0175 5500 1000 0186 4214 0917 3560' '12/08/2026 13:45:10 -03:00' \
    '160  KG      7,493525  1.198,96  000  145,80       98,90     3,88' \
    'Invoice total  17.301,39' 'Pix (dynamic), at once, 12/08/2026' '6.055,48  due 11/10/2026' \
    'entrega/xNome, entrega/fone, entrega/email, entrega/IE'
run 0 '271.828.182-05' "$data/nfce.xml"

# No width is exceeded, and columns stand below each other, accents or not.
for width in 40 66 80 120; do
    run 0 'Invoice total' --width "$width" "$data/nfe.xml"
    ! grep -E "^.{$((width + 1))}" "$folder/out" || fault "wider than $width"
    tr -s ' \n' ' ' < "$folder/out" | grep -qF 'Base de cálculo do ICMS reduzida; garantia de 12 meses' ||
        fault "text is lost at $width"
done
run 0 'Sabão em barra desengraxante para oficina, 1 kg, sem perfume  ' --width 160 "$data/nfe.xml"
before_unit=$(sed -n 's/Unit .*//p' "$folder/out")
[ "$(grep -cE "^.{${#before_unit}}(UN|CX|KG) " "$folder/out")" = 4 ] || fault 'units not aligned'

# What cannot be shown is told.
echo 'no XML' > "$folder/text.xml"
head -c 3000 "$data/nfe.xml" > "$folder/cut.xml"
echo '<CTe/>' > "$folder/other.xml"
run 1 'cannot be read' "$folder/missing.xml"
run 1 'not an XML document' "$folder/text.xml"
run 1 'not an XML document' "$folder/cut.xml"
run 1 'not an NF-e or NFC-e' "$folder/other.xml"
run 1 'a file is needed'
run 1 '--json and --xml take one file' --json "$data/nfe.xml" "$data/nfce.xml"
sed '/<emit>/,/<\/emit>/s|<CNPJ>[^<]*</CNPJ>|<CNPJ>12</CNPJ>|' "$data/difal.xml" > "$folder/refused.xml"
run 1 'emit/CNPJ: "12" is not a CNPJ' "$folder/refused.xml"
shows 'Blumenau - SC'
run 1 'emit/CNPJ: "12" is not a CNPJ' --json "$folder/refused.xml"
sed 's|<nNF>|<nNF>00|' "$data/difal.xml" > "$folder/changed.xml"
run 0 'ide/nNF: "0055120" is written as "55120"' "$folder/changed.xml"

# Nothing is lost on the way to another program.
for name in icms-normal ibs-cbs-regular nfce; do
    file=$data/$name.xml
    cp "$file" "$folder/bare.xml"
    elements "$file" > "$folder/expected"
    run 0 '<infNFe' --xml "$file"
    cp "$folder/out" "$folder/written.xml"
    diff "$folder/expected" <(elements "$folder/written.xml") || fault "$name: --xml differs"
    run 0 '"texts"' --json "$file"
    diff <(sed -n 's|^<[^>]*>\([^<]*\)</.*|\1|p' "$folder/expected") \
        <(jq -r '.texts[] | select(.path | contains("@") | not).text' "$folder/out") ||
        fault "$name: --json differs"
    sed -i 's|<[/]*nfeProc[^>]*>||; /<Signature/,/<\/Signature>/d; /<protNFe/,/<\/protNFe>/d; /<infNFeSupl/,/<\/infNFeSupl>/d' "$folder/bare.xml"
    run 0 '' --diff "$folder/bare.xml" "$folder/written.xml"
done
run 1 '- ide/nNF: 55120' --diff "$data/difal.xml" <(sed 's|<nNF>55120|<nNF>7|' "$data/difal.xml")
shows '+ ide/nNF: 7'
[ "$(wc -l < "$folder/out")" = 4 ] || fault "--diff: more than one difference"
run 1 '+ transp/vol/qVol: 3' --diff <(sed 's|<qVol>3</qVol>||' "$data/difal.xml") "$data/difal.xml"

# Many files: a line each, an exact sum, and the bad ones told.
mkdir -p "$folder/many/below"
cp "$data/nfce.xml" "$folder/many"
sed 's|<vNF>[^<]*|<vNF>999999999999999.99|' "$data/nfe.xml" > "$folder/many/below/large.XML"
touch "$folder/many/readme.txt"
run 0 'Invoices: 2, total 1.000.000.000.000.097,93' "$folder/many"
shows '41260999206547000105650020000903181577203199   90318  18/09/2026  Padaria' '4 left out'
run 1 'total 1.000.000.000.003.025,83, 1 with refused texts' "$folder/many" "$folder/refused.xml"
shows '1 refused'
cp "$folder/other.xml" "$folder/many"
run 1 'other.xml: not an NF-e or NFC-e' "$folder/many"
shows 'Invoices: 2, total 1.000.000.000.000.097,93, 1 not read'

# A hostile file does not steer the terminal.
sed 's|<xNome>|&\&#27;[2J\&#x9b;31m\&#x202e;\&#13;\&#127;|; s|<qVol>|&\&#x9b;|' \
    "$data/difal.xml" > "$folder/hostile.xml"
printf '<a\302\233b/>' > "$folder/root.xml"
for arguments in hostile.xml '--width 60 hostile.xml' '--json hostile.xml' '--xml hostile.xml' \
    '--diff hostile.xml refused.xml' 'hostile.xml root.xml' root.xml; do
    # shellcheck disable=SC2086
    (cd "$folder" && "$program" $arguments) > "$folder/out" 2>&1 || true
    [ -s "$folder/out" ] || fault "$arguments: nothing shown"
    ! LC_ALL=C grep -aP '[\x00-\x09\x0b-\x1f\x7f]|\xc2[\x80-\x9f]|\xe2\x80\xae' "$folder/out" ||
        fault "$arguments: control characters"
done

exit $failed
