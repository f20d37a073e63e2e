#!/bin/bash
# Checks how nfe_summary ends and what it says, for good, bad and hostile files.
# Usage: nfe_summary.sh PROGRAM DATA_FOLDER
set -euo pipefail
# shellcheck source=tests/support/tool_test.sh
. "$(dirname "$0")/support/tool_test.sh"

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

# shows PATTERN...: what else has to stand in what was shown last, each in one line
shows() {
    local pattern
    for pattern; do
        grep -qF -- "$pattern" "$folder/out" || fault "no '$pattern' in $(head -5 "$folder/out")..."
    done
}

# sums LINE...: the table of sums that was shown last, spaces apart
sums() {
    diff <(printf '%s\n' 'Sums Invoices Total' "$@") \
        <(sed -n '/^Sums /,$p' "$folder/out" | tr -s ' ') || fault "other sums"
}

# the elements of the invoice in a file, one a line
elements() {
    tr -d '\n' < "$1" | sed 's|>[[:space:]]*<|>\n<|g' | sed -n '\|^<ide>|,\|^</infNFe>|p'
}

# An invoice of another number, with a key that fits: numbered NUMBER, with 9 digits, from FILE.
numbered() {
    local number=$1 file=$2 old key sum=0 weight=2 index digit
    old=$(sed -n 's/.*Id="NFe\([0-9]*\)".*/\1/p' "$file")
    key=${old:0:25}$number${old:34:9}
    for ((index = 42; index >= 0; --index)); do
        sum=$((sum + ${key:index:1} * weight))
        weight=$((weight == 9 ? 2 : weight + 1))
    done
    digit=$((sum % 11 < 2 ? 0 : 11 - sum % 11))
    sed "s/$old/$key$digit/; s|<nNF>[0-9]*|<nNF>$((10#$number))|; s|<cDV>.|<cDV>$digit|
        s|<chNFe>$old|<chNFe>$key$digit|" "$file"
}

# event TYPE DETAIL STATUS KEY: a registered event
event() {
    echo "<procEventoNFe versao=\"1.00\"><evento><infEvento><tpAmb>1</tpAmb><chNFe>$4</chNFe>
        <dhEvento>2026-08-13T08:00:00-03:00</dhEvento><tpEvento>$1</tpEvento>
        <nSeqEvento>2</nSeqEvento><detEvento>$2</detEvento></infEvento></evento><retEvento>
        <infEvento><cStat>$3</cStat><xMotivo>Resposta</xMotivo></infEvento></retEvento>
        </procEventoNFe>"
}

key=41260899317482000175550010000186421409173560 # of nfe.xml

# A whole invoice.
run 0 'São José dos Pinhais - PR' "$data/nfe.xml"
shows '4126 0899 3174 8200 0175 5500 1000 0186 4214 0917 3560' '12/08/2026 13:45:10 -03:00' \
    'Authorisation   100 Autorizado o uso da NF-e' 'protocol 141260073518264, 12/08/2026 13:45:14' \
    '34011900  6102       160  KG      7,493525  1.198,96  000  145,80               98,90     3,88' \
    '84672100  6101        12  UN        389,90  4.678,80  000  563,52  375,68' \
    'Invoice total  17.301,39' 'Pix (dynamic), at once, 12/08/2026' '6.055,48  due 11/10/2026' \
    'entrega/xNome, entrega/fone, entrega/email, entrega/IE'
run 0 '271.828.182-05' "$data/nfce.xml"
run 0 'Authorisation   none in the file' "$data/export.xml"
run 0 'Environment     test, without fiscal value' "$data/selective-tax.xml"
run 0 'Key                                           Number' --width 200 "$data"
run 0 '1  320   Gasolina A comum           27101259  5652     3.000  LT          2,91' \
    --width 200 "$data/ibs-cbs-monophasic.xml"
run 0 '1  a field cannot hold a text of the file' --help
[[ $(head -1 "$folder/out") = 'Usage: nfe_summary '* ]] || fault 'the help begins otherwise'
shows '0  all is well' '2  a file cannot be read'
[ "$(grep -cE '^  nfe_summary [a-z-]' "$folder/out")" = 7 ] || fault 'the help has other examples'
run 0 'nfe_summary 12.' --version

# No width is exceeded, and columns stand below each other, accents or not.
for width in 40 66 80 120; do
    run 0 'Invoice total' --width "$width" "$data/nfe.xml"
    ! grep -E "^.{$((width + 1))}" "$folder/out" || fault "wider than $width"
    tr -s ' \n' ' ' < "$folder/out" | grep -qF 'Base de cálculo do ICMS reduzida; garantia de 12 meses' ||
        fault "text is lost at $width"
    [ "$(grep -c '^Authorisation ' "$folder/out")" = 1 ] || fault "a label stands twice at $width"
done
for width in {60..110}; do # a column has its place or is told
    run 0 'Invoice total' --width "$width" "$data/nfe.xml"
    told=$(sed -n '/^#  Code/{n;p}; /^Products/q; /(no place for: /,/)$/p' "$folder/out" | tr -s '(),\n ' ' ')
    for column in NCM IPI PIS+COFINS IBS+CBS; do
        [ "$(grep -oF " $column " <<< "$told " | wc -l)" = 1 ] || fault "$width: $column in $told"
    done
done
# What is said of an item is said in one breath.
run 0 "(not part of the invoice's total) Base de cálculo do ICMS reduzida" \
    --width 180 <(sed 's|<indTot>1|<indTot>0|' "$data/nfe.xml")
run 0 'Sabão em barra desengraxante para oficina, 1 kg, sem perfume  ' --width 180 "$data/nfe.xml"
before_unit=$(sed -n 's/Unit .*//p' "$folder/out")
[ "$(grep -cE "^.{${#before_unit}}(UN|CX|KG) " "$folder/out")" = 4 ] || fault 'units not aligned'

# A file that cannot be read is told with the reason, and wrong use with the option.
echo 'no XML' > "$folder/text.xml"
head -c 3000 "$data/nfe.xml" > "$folder/cut.xml"
echo '<CTe/>' > "$folder/other.xml"
: > "$folder/empty.xml"
head -c 1048577 /dev/zero > "$folder/large.xml"
echo '<NFe><infNFe versao="4.00" Id="NFe1"/></NFe>' > "$folder/hollow.xml"
mkfifo "$folder/pipe"
for how in '' --csv --json --xml --html --check; do
    # shellcheck disable=SC2086
    run 2 'missing.xml: cannot be read: No such file or directory' $how "$folder/missing.xml"
done
run 2 'empty.xml: is empty' "$folder/empty.xml"
run 2 'large.xml: larger than the limit of 1 MB' --limit 1 "$folder/large.xml"
run 2 '-: larger than the limit of 1 MB' --limit 1 - < <(cat "$folder/large.xml")
truncate --size 5G "$folder/huge.xml"
run 2 'huge.xml: larger than the limit of 64 MB' "$folder/huge.xml"
rm "$folder/huge.xml"
run 2 'not an XML document' --limit 4095 "$folder/large.xml"
run 2 '--limit takes a number from 1 to 4095' --limit 4096 "$folder/large.xml"
run 2 'not an XML document' "$folder/large.xml"
run 2 'hollow.xml: an invoice without content' "$folder/hollow.xml"
run 2 'not an XML document' "$folder/text.xml"
run 2 'not an XML document' "$folder/cut.xml"
run 2 'not an NF-e or NFC-e: the document is CTe' "$folder/other.xml"
run 2 'cannot be read: Is a directory' --xml "$data"
run 2 'a file is needed'
run 2 'no option --jsn' --jsn "$data/nfe.xml"
run 2 '--by takes one of' --by day "$data"
run 2 '--width takes a number from 40' --width 4x "$data"
run 2 'only one of --csv, --json' --json --xml "$data/nfe.xml"
run 2 '--items goes with --csv' --items "$data/nfe.xml"
run 2 'standard input can be read once' - -
if [ "$(id -u)" != 0 ]; then
    mkdir "$folder/closed"
    cp "$data/nfe.xml" "$folder/closed"
    chmod 0 "$folder/closed"
    run 2 'closed: cannot be read: Permission denied' "$folder/closed" "$data/nfe.xml"
fi
( # a path that is too long cannot be read by root either
    mkdir "$folder/deep"
    cd "$folder/deep"
    for _ in {1..17}; do
        mkdir "$(printf '%0250d' 0)"
        cd 0*
    done
)
run 2 'deep/000' "$folder/deep" "$data/nfe.xml"
grep -qF '17.301,39' "$folder/out" || fault 'nothing told of the files that can be read'
for arguments in '' --json --xml --csv --help --check; do
    echo '<NFe><infNFe><ide/></infNFe></NFe>' > "$folder/faulty.xml"
    status=0
    # shellcheck disable=SC2086
    "$program" $arguments "$folder/faulty.xml" > /dev/full 2> "$folder/err" || status=$?
    { [ "$status" = 2 ] && grep -qF 'the output cannot be written' "$folder/err"; } ||
        fault "$arguments: does not tell that the disk is full"
done

# No file stays open.
(ulimit -n 12 && "$program" "$data" > "$folder/out" 2> "$folder/err") || fault 'files stay open'

# A text that a field cannot hold is told.
sed '/<emit>/,/<\/emit>/s|<CNPJ>[^<]*</CNPJ>|<CNPJ>12</CNPJ>|' "$data/difal.xml" > "$folder/refused.xml"
run 1 'emit/CNPJ: "12" is not a CNPJ' "$folder/refused.xml"
shows 'Blumenau - SC' 'Doubtful        the key has 99157340000198 where emit/CNPJ is 00000000000012'
for how in --json --xml; do
    run 1 'emit/CNPJ: "12" is not a CNPJ' $how "$folder/refused.xml"
done
sed 's|<nNF>|<nNF>00|' "$data/difal.xml" > "$folder/changed.xml"
run 0 'ide/nNF: "0055120" is written as "55120"' "$folder/changed.xml"

sed "s|<natOp>|$(printf '<x%s/>' {1..24})&|" "$data/nfce.xml" > "$folder/unknown.xml"
run 0 'and 4 more' --width 80 "$folder/unknown.xml"
[ "$(grep -c 'has no such element' "$folder/out")" = 20 ] || fault 'a long list is not cut'

# Nothing is lost on the way to another program, nor on the way back.
for name in icms-normal ibs-cbs-regular nfce; do
    file=$data/$name.xml
    cp "$file" "$folder/bare.xml"
    elements "$file" > "$folder/expected"
    run 0 '<infNFe' --xml "$file"
    cp "$folder/out" "$folder/written.xml"
    diff "$folder/expected" <(elements "$folder/written.xml") || fault "$name: --xml differs"
    run 0 '"texts"' --json "$file"
    [ "$(wc -l < "$folder/out")" -gt 100 ] || fault "$name: no line for a text"
    cp "$folder/out" "$folder/written.json"
    diff <(sed -n 's|^<[^>]*>\([^<]*\)</.*|\1|p' "$folder/expected") \
        <(jq -r '.texts[] | select(.path | contains("@") | not).text' "$folder/out") ||
        fault "$name: --json differs"
    run 0 '' --diff "$file" "$folder/written.json"
    cmp <("$program" --xml "$folder/written.json") "$folder/written.xml" ||
        fault "$name: other XML from JSON"
    cmp <("$program" --json - < "$folder/written.json" | sed 1,/texts/d) \
        <(sed 1,/texts/d "$folder/written.json") || fault "$name: other JSON from JSON"
    sed -i 's|<[/]*nfeProc[^>]*>||; /<Signature/,/<\/Signature>/d; /<protNFe/,/<\/protNFe>/d; /<infNFeSupl/,/<\/infNFeSupl>/d' "$folder/bare.xml"
    run 0 '' --diff "$folder/bare.xml" "$folder/written.xml"
done
run 1 '- ide/nNF: 55120' --diff "$data/difal.xml" <(sed 's|<nNF>55120|<nNF>7|' "$data/difal.xml")
shows '+ ide/nNF: 7'
[ "$(wc -l < "$folder/out")" = 4 ] || fault "--diff: more than one difference"
run 1 '+ transp/vol/qVol: 3' --diff <(sed 's|<qVol>3</qVol>||' "$data/difal.xml") "$data/difal.xml"
run 1 '+ protNFe/infProt/cStat: 301' --diff "$data/nfe.xml" <(sed 's|<cStat>100|<cStat>301|' "$data/nfe.xml")
run 2 'missing.xml: cannot be read' --diff "$data/nfe.xml" "$folder/missing.xml"

# Records of another program make an invoice, zeros in front included.
echo '[{"path": "ide/nNF", "text": "7"}, {"path": "det[1]/prod/cEAN", "text": "0078900"},
    {"path": "det[1]/prod/NCM", "text": "01012100"}, {"path": "det[2]/prod/NCM", "text": "02"}]' \
    > "$folder/records.json"
"$program" --xml "$folder/records.json" > "$folder/out" 2> "$folder/err" || fault 'no invoice of records'
shows '<NCM>01012100</NCM>' '<cEAN>0078900</cEAN>' '<NCM>02</NCM>'
cat "$folder/records.json" "$folder/records.json" > "$folder/lines.json"
run 2 'holds 2 invoices, where one is asked for' --xml "$folder/lines.json"
for text in '{' '[1]' '{"texts": 1}' '[{"path": "a b", "text": ""}]' '[{"path": "a", "text": 1}]' \
    '[{"path": "a<b", "text": ""}]' '[{"path": "a{b", "text": ""}]' '[{"path": "a`b", "text": ""}]' '{"root": "x", "texts": []}' '[{"path": "a[0]", "text": ""}]' \
    "[{\"path\": \"$(printf '%0200000d' 0 | sed 's|0|a/|g')\", \"text\": \"\"}]" \
    "$(printf '%0200000d' 0 | tr 0 '[')"; do
    run 2 'not what --json writes' --xml - <<< "$text"
done

# Of many files, only those that count are summed.
mkdir -p "$folder/many/below"
many=$folder/many
cp "$data/nfce.xml" "$many"
sed 's|<vNF>[^<]*|<vNF>999999999999999.99|' "$data/nfe.xml" > "$many/below/large.XML"
touch "$many/readme.txt"
run 0 'authorised         2  1.000.000.000.000.097,93' "$many"
shows '41260999206547000105650020000903181577203199   90318  18/09/2026  Padaria'
run 1 'authorised         3  1.000.000.000.003.025,83' "$many" "$folder/refused.xml"
shows 'refused.xml: emit/CNPJ: "12" is not a CNPJ'
cp "$folder/other.xml" "$many"
run 2 'other.xml: not an NF-e or NFC-e' "$many"
sums 'authorised 2 1.000.000.000.000.097,93' 'not read 1'
rm -r "$many"
mkdir "$many"
cp "$data/nfe.xml" "$many/1.xml"
cp "$data/nfe.xml" "$many/2-again.xml"
sed 's|<vNF>17301.39|<vNF>99|' "$data/nfe.xml" > "$many/3-other.xml"
numbered 000000101 "$data/nfe.xml" | sed 's|<tpAmb>1|<tpAmb>2|' > "$many/4-test.xml"
numbered 000000102 "$data/nfe.xml" | sed 's|<cStat>100|<cStat>301|' > "$many/5-denied.xml"
numbered 000000103 "$data/nfe.xml" | sed 's|<finNFe>1|<finNFe>4|' > "$many/6-return.xml"
numbered 000000104 "$data/nfe.xml" | sed 's|<finNFe>1|<finNFe>2|' > "$many/7-complement.xml"
numbered 000000105 "$data/nfe.xml" | sed 's|<finNFe>1|<finNFe>3|' > "$many/8-adjustment.xml"
numbered 000000106 "$data/nfe.xml" | sed '/<protNFe/,/<\/protNFe>/d' > "$many/9-bare.xml"
numbered 000000107 "$data/nfe.xml" | sed 's|<cStat>100|<cStat>204|' > "$many/a-rejected.xml"
numbered 000000108 "$data/nfe.xml" | sed 's|<tpNF>1|<tpNF>0|' > "$many/b-inbound.xml"
numbered 000000109 "$data/nfe.xml" | sed 's|<chNFe>|<chNFe>9|' > "$many/c-not-its-answer.xml"
run 0 '1.xml' "$many"
shows '2-again.xml: the same invoice as in' '3-other.xml: another invoice has the same key: ' \
    'c-not-its-answer.xml: the authorisation beside it is of another key, 94126'
sums 'authorised 1 17.301,39' 'inbound 1 17.301,39' 'complement 1 17.301,39' \
    'adjustment 1 17.301,39' 'return 1 17.301,39' 'without authorisation 2 34.602,78' \
    'denied 1 17.301,39' 'rejected 1 17.301,39' 'test environment 1 17.301,39' \
    'repeated, not summed 2'
for width in 40 60 80 200; do # at any width, what is wrong names its file
    run 0 'Sums' --width "$width" "$many"
    ! grep -E "^.{$((width + 1))}" "$folder/out" || fault "wider than $width"
    [ "$(tr -d ' \n' < "$folder/out" | grep -o '3-other.xml:another' | wc -l)" = 1 ] ||
        fault "$width: no file beside its problem"
done

# Events count for their invoices, once they are registered, and wherever they stand.
event 110111 '<descEvento>Cancelamento</descEvento><xJust>Pedido desfeito</xJust>' 135 "$key" > "$many/z.xml"
run 0 'cancelled' "$many/1.xml" "$many/z.xml"
shows 'cancellation of 13/08/2026 08:00:00 -03:00: Pedido desfeito'
sums 'authorised 0' 'cancelled 1 17.301,39'
run 0 'cancelled' "$many/z.xml" "$many/1.xml"
sums 'authorised 0' 'cancelled 1 17.301,39'
sed 's|<cStat>135|<cStat>573|' "$many/z.xml" > "$many/y.xml"
run 0 'not registered: 573 Resposta' "$many/1.xml" "$many/y.xml"
sums 'authorised 1 17.301,39'
event 110110 '<xCorrecao>Leia-se Rua B</xCorrecao>' 135 "$key" > "$many/y.xml"
run 0 'correction letter 2 of 13/08/2026 08:00:00 -03:00: Leia-se Rua B' "$many/1.xml" "$many/y.xml"
sums 'authorised 1 17.301,39'
run 0 'z.xml: holds no invoice, but what belongs to one' --json "$many/z.xml"
run 0 'Cancellation' "$many/z.xml"
shows "${key:0:4} ${key:4:4}" 'Justification   Pedido desfeito'
run 0 'is not among the files' "$data/difal.xml" "$many/z.xml"
{ # a message with a batch, the answer to one of it and an event for the other
    echo '<s:Envelope xmlns:s="urn:s"><s:Body><nfeDadosMsg><enviNFe>'
    for number in 000000201 000000202; do
        numbered "$number" "$data/nfe.xml" | sed '/<?xml/d; s|<[/]*nfeProc[^>]*>||; /<protNFe/,/<\/protNFe>/d'
    done
    echo '</enviNFe>'
    numbered 000000202 "$data/nfe.xml" | sed -n '/<protNFe/,/<\/protNFe>/p'
    event 110111 '' 155 "$(numbered 000000201 "$data/nfe.xml" | sed -n 's/.*<chNFe>\(.*\)<.*/\1/p')"
    echo '</nfeDadosMsg></s:Body></s:Envelope>'
} > "$folder/batch.xml"
run 0 'authorised' - < "$folder/batch.xml"
sums 'authorised 1 17.301,39' 'cancelled 1 17.301,39'
run 0 '-, invoice 2' - < "$folder/batch.xml"
run 0 '"texts"' --json "$folder/batch.xml"
cp "$folder/out" "$folder/batch.json"
[ "$(jq -c . "$folder/batch.json" | wc -l)" = 2 ] || fault 'not an invoice a line'
run 0 '000000202' "$folder/batch.json"
sums 'authorised 1 17.301,39' 'without authorisation 1 17.301,39'

# Sums by other things: what does not count stays apart there too.
run 0 '99157340000198  Móveis Rio dos Cedros' --by issuer "$data"
run 0 '2026-09  without authorisation, return ' --by month "$data"
rm "$many"/[yz].xml
run 0 '6101' --by cfop "$many/1.xml" "$many/2-again.xml" "$many/6-return.xml"
shows '6101              1  4.678,80  563,52  375,68' '6101  return      1  4.678,80  563,52  375,68'
run 0 '84672100' --by ncm "$many/1.xml"
run 0 '2026-08         1  17.301,39' --by month "$many/1.xml" "$many/2-again.xml"

# CSV is what RFC 4180 says, and nothing in it is a formula.
sed 's|<xNome>Ferragens|<xNome>=HYPERLINK("x","y")|; s|<natOp>[^<]*|<natOp>-1, "a"|' "$data/nfe.xml" > "$folder/formula,\"x\".xml"
run 0 'file,chNFe' --csv "$folder/formula,\"x\".xml" "$many/2-again.xml"
python3 - "$folder/out" <<'PYTHON' || fault 'other CSV'
import csv, sys
raw = open(sys.argv[1], newline='', encoding='utf-8').read()
assert raw.count('\r\n') == 3 and raw.count('\n') == 3, raw
rows = list(csv.DictReader(raw.splitlines()))
assert rows[0]['file'].endswith('formula,"x".xml')
assert rows[0]['natOp'] == '\'-1, "a"', rows[0]
assert rows[0]['dest_xNome'].startswith('\'=HYPERLINK("x","y")')
assert [row['counted'] for row in rows] == ['1', '0'], rows
assert (rows[0]['vNF'], rows[0]['vIPI'], rows[0]['status']) == ('17301.39', '375.68', 'authorised')
assert all(None not in row and None not in row.values() for row in rows)
PYTHON
run 0 ',,,1308.00' --csv "$data/medicine.xml" # neither IBS nor CBS
run 0 'nItem' --csv --items "$data/nfe.xml" "$data/medicine.xml"
python3 - "$folder/out" <<'PYTHON' || fault 'other CSV of items'
import csv, sys
rows = list(csv.DictReader(open(sys.argv[1], newline='', encoding='utf-8')))
assert [row['nItem'] for row in rows][:4] == ['1', '2', '3', '4']
first = rows[0]
assert rows[-1]['vIBS'] == rows[-1]['vCBS'] == '', rows[-1]
assert (first['NCM'], first['CFOP'], first['vProd'], first['vIPI']) == ('84672100', '6101', '4678.80', '375.68')
assert (first['ICMS_CST'], first['vPIS'], first['vIBS']) == ('000', '68.19', '3.75')
assert all(None not in row and None not in row.values() for row in rows)
PYTHON

# What is read as something else, or not read at all, is told.
sed 's|versao="4.00"|versao="3.10"|' "$data/nfce.xml" > "$folder/release.xml"
sed 's|</infNFe>|&<infNFe versao="4.00"/>|' "$data/nfce.xml" > "$folder/second.xml"
for how in --width=100 --xml; do
    run 0 '@versao: "3.10" is read as 4.00' $how "$folder/release.xml"
    run 0 'NFe/infNFe[2]: another invoice in the same NFe, not read' $how "$folder/second.xml"
done

sed 's|</nItemPed>|&<nFCI>7</nFCI>|' "$data/nfe.xml" > "$folder/repeated.xml"
run 0 'det/prod/nFCI (3 times)' --width=200 "$folder/repeated.xml"

# What the layout does not allow is listed, with the file.
run 0 '' --check "$data"
sed 's|<mod>55|<mod>56|; /<natOp>/d' "$data/nfe.xml" > "$folder/faulty.xml"
run 1 'faulty.xml: ide/mod: "56" is not 55 or 65' --check "$data/nfe.xml" "$folder/faulty.xml"
shows 'faulty.xml: ide/natOp is missing: 1 to 60 characters'
[ "$(wc -l < "$folder/out")" = 2 ] || fault "--check: other faults"

# A hostile file does not steer the terminal.
hostile=$folder/hostile
mkdir "$hostile"
sed 's|<xNome>|&\&#27;[2J\&#x9b;31m\&#x202e;\&#x2028;\&#x2066;\&#x200b;\&#13;\&#127;|; s|<qVol>|&\&#x9b;|' \
    "$data/difal.xml" | sed 's/&#27;//' > "$hostile/"$'bad\e[31m\xe2\x80\xae\xff.xml'
cp "$hostile"/bad* "$hostile/hostile.xml"
printf '<a\302\233b/>' > "$hostile/root.xml"
for arguments in hostile.xml '--width 60 hostile.xml' '--json hostile.xml' '--xml hostile.xml' \
    '--diff hostile.xml ../refused.xml' 'hostile.xml root.xml' root.xml . '--json .' '--csv .' \
    '--csv --items .' '--check .' '--by issuer .' '--by ncm .' '--lang pt_BR .' --$'\e'x; do
    # shellcheck disable=SC2086
    (cd "$hostile" && "$program" $arguments) > "$folder/out" 2>&1 || true
    [ -s "$folder/out" ] || fault "$arguments: nothing shown"
    ! tr -d '\r' < "$folder/out" | LC_ALL=C grep -aP \
        '[\x00-\x09\x0b-\x1f\x7f]|\xc2[\x80-\x9f]|\xe2\x80[\x8b\x8e\x8f\xa8-\xae]|\xe2\x81[\xa6-\xa9]|\xff' ||
        fault "$arguments: control characters"
done

exit $failed
