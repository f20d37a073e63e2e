#!/bin/bash
# Checks what first_invoice shows, and that the invoice it writes holds the same.
# Usage: first_invoice.sh FIRST_INVOICE NFE_SUMMARY
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
"$1" | tr -d '\r' > "$folder/out" # lines end as the system's do

# the copy is another invoice, and the first is as it was filled
diff - <(head -5 "$folder/out") <<'TEXT'
Invoice 1042 to Confeitaria Largo da Ordem Ltda
  12 UN  Café torrado em grãos, 250 g: R$ 298.80
  5 CX  Filtro de papel 103, 30 unidades: R$ 32.50
Invoice 1043 to Confeitaria Largo da Ordem Ltda
  24 UN  Café torrado em grãos, 250 g: R$ 597.60
TEXT

sed 1,5d "$folder/out" > "$folder/invoice.xml"
for element in '<cDV>4</cDV>' '<nNF>1042</nNF>' '<NCM>09012100</NCM>' '<det nItem="2">' \
    '<qCom>12</qCom>' '<vNF>331.30</vNF>'; do
    grep -qF "$element" "$folder/invoice.xml" || { echo "no $element" >&2; exit 1; }
done
"$2" "$folder/invoice.xml" > /dev/null # ends with 0: every text found its place
