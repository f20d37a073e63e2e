#!/bin/bash
# Checks what is the system's in nfe_summary on Windows: names, wildcards, bytes, languages and the
# console. Usage: nfe_summary_windows.sh PROGRAM DATA_FOLDER
set -euo pipefail
# shellcheck source=tests/support/tool_test.sh
. "$(dirname "$0")/support/tool_test.sh"

# run STATUS PATTERN ARGUMENT...: the status it has to end with, and what has to stand in a line
run() {
    local status=0
    "$program" "${@:3}" > "$folder/out" 2>&1 || status=$?
    [ "$status" = "$1" ] || fault "${*:3}: ended with $status instead of $1"
    grep -qF -- "$2" "$folder/out" || fault "${*:3}: no '$2' in: $(head -5 "$folder/out")"
}

# Names are UTF-8, in arguments and in folders, and what *.xml names is listed.
mkdir "$folder/Emissão 東"
cp "$data/nfe.xml" "$folder/Emissão 東/nota fé.xml"
cp "$data/nfce.xml" "$folder/Emissão 東/cupom.xml"
run 0 'São José dos Pinhais - PR' "$folder/Emissão 東/nota fé.xml"
run 2 'Emissão 東/nada.xml: cannot be read: No such file or directory' "$folder/Emissão 東/nada.xml"
run 2 'Emissão 東: cannot be read: Is a directory' --xml "$folder/Emissão 東"
for named in "$folder/Emissão 東" "$folder/Emissão 東/*.xml"; do
    run 0 'authorised         2' "$named"
done

# Bytes are as they are: no line ends otherwise, and standard input is read to its end.
run 0 '"texts"' --json "$data/nfe.xml"
! grep -q $'\r' "$folder/out" || fault '--json: a carriage return'
"$program" --xml "$data/nfe.xml" > "$folder/xml"
cmp "$folder/xml" <("$program" --json - < "$data/nfe.xml" | "$program" --xml -) || fault 'other XML from JSON'
run 0 'file,chNFe' --csv "$data/nfe.xml"
[ "$(grep -c $'[^\r]\r$' "$folder/out")" = 2 ] || fault '--csv: lines do not end by RFC 4180'
run 2 'a byte is not UTF-8, or a control character' - < <(printf '<NFe>\032</NFe>')

# The language is the environment's, or the one that is asked for.
run 0 'Uso:' --lang pt_BR --help
LC_ALL='' LANG=pt_BR.UTF-8 run 2 'não pode ser lido: arquivo ou pasta inexistente' "$folder/missing"

# A console shows every character, and has a width.
script --quiet --return --command "stty cols 70; '$program' '$data/nfe.xml'" /dev/null \
    < /dev/null > "$folder/console"
grep -qF 'São José dos Pinhais - PR' "$folder/console" || fault "the console shows $(head -c 300 "$folder/console")"

exit $failed
