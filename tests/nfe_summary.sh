#!/bin/bash
# Checks how nfe_summary ends and what it says for good, bad and missing files.
# Usage: nfe_summary.sh PROGRAM DATA_FOLDER
set -euo pipefail
program=$1
data=$2
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
failed=0

# run STATUS PATTERN FILE: the status it has to end with, and what has to stand in one line on
# stderr, or in stdout where stderr is to be empty
run() {
    local status=0 wanted=$1 pattern=$2 file=$3
    "$program" "$file" > "$folder/out" 2> "$folder/err" || status=$?
    if [ "$status" != "$wanted" ]; then
        echo "$file: ended with $status instead of $wanted" >&2
        failed=1
    fi
    local shown=$folder/out
    if [ -s "$folder/err" ]; then
        shown=$folder/err
        [ "$(wc -l < "$folder/err")" = 1 ] || { echo "$file: more than one line" >&2; failed=1; }
    fi
    grep -qF -- "$pattern" "$shown" || { echo "$file: no '$pattern' in:" >&2; cat "$shown" >&2; failed=1; }
}

run 0 'São José dos Pinhais - PR' "$data/nfe.xml"
run 0 '271.828.182-05' "$data/nfce.xml"

run 1 'cannot be read' "$folder/missing.xml"
run 1 'cannot be read' "$folder"
echo 'no XML' > "$folder/text.xml"
run 1 'not an XML document' "$folder/text.xml"
head -c 3000 "$data/nfe.xml" > "$folder/cut.xml"
run 1 'not an XML document' "$folder/cut.xml"
echo '<CTe/>' > "$folder/other.xml"
run 1 'not an NF-e or NFC-e' "$folder/other.xml"

sed '/<emit>/,/<\/emit>/s|<CNPJ>[^<]*</CNPJ>|<CNPJ>12</CNPJ>|' "$data/nfe.xml" > "$folder/refused.xml"
run 1 'emit/CNPJ: "12" is not a CNPJ' "$folder/refused.xml"
run 1 'São José dos Pinhais - PR' "$folder/refused.xml"

exit $failed
