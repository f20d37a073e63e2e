#!/bin/bash
# Checks the pages of nfe_summary --html: that they hold what the printed forms have, mark what has
# no legal force, can be scanned, and load or run nothing, whatever stands in the invoice.
# Usage: nfe_page.sh PROGRAM DATA_FOLDER
set -euo pipefail
# shellcheck source=tests/support/tool_test.sh
. "$(dirname "$0")/support/tool_test.sh"
look=$(dirname "$0")/nfe_page.py

# page ARGUMENT...: makes a page and its texts
page() {
    "$program" --html "$@" > "$folder/page" || fault "$*: ended with $?"
    python3 "$look" < "$folder/page" > "$folder/texts" || fault "$*: see above"
}

# shows TEXT...: what has to stand in the page as a text of its own
shows() {
    local text
    for text; do
        grep -qxF -- "$text" "$folder/texts" || fault "no '$text' on the page"
    done
}

# marked WORDS [TEXT...]: across the page, and once more above what tells why
marked() {
    [ "$(grep -cxE 'SEM VALOR FISCAL|CANCELADA|USO DENEGADO' "$folder/texts")" = 2 ] ||
        fault "not marked twice"
    shows "$@"
}

key=41260899317482000175550010000186421409173560 # of nfe.xml

# The fields of the printed form, by its own labels, and the bars of the key.
page --lang pt_BR "$data/nfe.xml"
shows DANFE 'Nº 000.018.642' 'SÉRIE 1' 'CHAVE DE ACESSO' \
    '4126 0899 3174 8200 0175 5500 1000 0186 4214 0917 3560' \
    'PROTOCOLO DE AUTORIZAÇÃO DE USO' '141260073518264 - 12/08/2026 13:45:14 -03:00' \
    'DESTINATÁRIO / REMETENTE' '(11) 3333-9021' 17:30:00 'FATURA / DUPLICATAS' \
    '002 - 11/09/2026 - 6.055,49' 'CÁLCULO DO IMPOSTO' 'VALOR TOTAL DA NOTA' 17.301,39 \
    'TRANSPORTADOR / VOLUMES TRANSPORTADOS' '126,85 kg' 'Depósito Curva da Maré Armazéns Gerais Ltda' \
    'DADOS DOS PRODUTOS / SERVIÇOS' FUR-0016 4.696,00 'VALOR TOTAL DO IBS' 12,64 'RESERVADO AO FISCO'
! grep -qE 'SEM VALOR FISCAL|CANCELADA|USO DENEGADO' "$folder/texts" || fault 'marked without need'
diff <(python3 "$look" bars < "$folder/page") <(echo "$key") || fault 'the bars say something else'
page "$data/nfe.xml"
shows 'CALCULATION OF THE TAX' 'BASE OF THE ICMS'
grep -qF 'lang="en"' "$folder/page" || fault 'not in English'

# What is paid for services is no ICMS, and the rare totals have their places.
page --lang pt_BR "$data/issqn.xml"
shows 'CÁLCULO DO ISSQN' 9.582,00 'RETENÇÃO DE TRIBUTOS'
! grep -qxF 165,00 "$folder/texts" || fault 'ISSQN stands below ICMS'
page --lang pt_BR "$data/icms-monofasico.xml"
shows 'ICMS MONOFÁSICO' 16.274,00

# A consumer's invoice is a receipt with its QR code.
page --lang pt_BR "$data/nfce.xml"
shows 'Documento Auxiliar da Nota Fiscal de Consumidor Eletrônica' 'Valor a Pagar R$' 97,94 \
    'CONSUMIDOR - CPF 271.828.182-05 - João Antônio Conceição' 'Troco R$' \
    'https://nfce.example.com/consulta' '4126 0999 2065 4700 0105 6500 2000 0903 1815 7720 3199'
diff <(python3 "$look" bars < "$folder/page") \
    <(sed -n 's|.*<qrCode>\(.*\)</qrCode>.*|\1|p' "$data/nfce.xml") || fault 'another QR code'

# Every sample makes a page, and every key can be scanned.
for file in "$data"/*.xml; do
    page "$file"
    [ "$file" = "$data/nfce.xml" ] ||
        diff <(python3 "$look" bars < "$folder/page") \
            <(sed -n 's/.*Id="NFe\([0-9A-Z]*\)".*/\1/p' "$file") || fault "$file: other bars"
done

# What has no legal force is marked, and it is told why.
variant() { sed "$1" "$data/nfe.xml" > "$folder/variant.xml"; }
page --lang pt_BR "$data/issqn.xml"
marked 'SEM VALOR FISCAL' 'O arquivo não traz a autorização de uso da Sefaz.'
variant 's|<tpAmb>1|<tpAmb>2|'
page --lang pt_BR "$folder/variant.xml"
marked 'SEM VALOR FISCAL' 'Nota emitida em ambiente de homologação, sem valor fiscal.'
variant 's|<cStat>100|<cStat>204|; s|<xMotivo>[^<]*|<xMotivo>Duplicidade|'
page --lang pt_BR "$folder/variant.xml"
marked 'SEM VALOR FISCAL' '204 Duplicidade'
variant 's|<cStat>100|<cStat>301|'
page --lang pt_BR "$folder/variant.xml"
marked 'USO DENEGADO' 'PROTOCOLO DE DENEGAÇÃO DE USO'
variant 's|<cStat>100|<cStat>101|'
page --lang pt_BR "$folder/variant.xml"
marked CANCELADA 'A nota está cancelada.'
event="<procEventoNFe><evento><infEvento><tpAmb>1</tpAmb><chNFe>$key</chNFe>
    <dhEvento>2026-08-13T08:00:00-03:00</dhEvento><tpEvento>110111</tpEvento><detEvento>
    <xJust>Erro de emissao</xJust></detEvento></infEvento></evento><retEvento><infEvento>
    <cStat>135</cStat></infEvento></retEvento></procEventoNFe>"
page --lang pt_BR "$data/nfe.xml" - <<< "$event"
marked CANCELADA 'cancelamento de 13/08/2026 08:00:00 -03:00: Erro de emissao'
page --lang pt_BR - "$data/nfe.xml" <<< "${event/110111/110110}"
! grep -qxF CANCELADA "$folder/texts" || fault 'a correction cancels'

# Whatever an invoice holds stays a text, and does not spread over what stands around it.
hostile='</title></style></td><script src="http://x/">alert(1)</script>'"\"' onload=x <!-- ]]> &amp; {} %s \\a"
python3 - "$data" "$folder" "$hostile" <<'PYTHON'
import html, re, sys
data, folder, hostile = sys.argv[1:]
hostile = html.escape(hostile)
document = open(data + '/nfe.xml', encoding='utf-8').read()
receipt = open(data + '/nfce.xml', encoding='utf-8').read()
texts = r'<(xNome|xFant|xLgr|xCpl|xBairro|xMun|UF|fone|IE|natOp|serie|cProd|xProd|uCom|infAdProd' \
        r'|xPed|nFat|nDup|esp|marca|nVol|placa|RNTC|xEnder|infCpl|infAdFisco|nProt|xMotivo|dhRecbto' \
        r'|CNPJ|CEP|xPag|qrCode|urlChave)>[^<]*<'
for name, content in {
        'hostile': re.sub(texts, lambda found: f'<{found[1]}>{hostile}<', document),
        'receipt': re.sub(texts, lambda found: f'<{found[1]}>{hostile}<', receipt),
        'key': document.replace('Id="NFe', f'Id="NFe{hostile}'),
        'steers': document.replace('<xProd>', '<xProd>\u202e\u200b\u009b31m')}.items():
    with open(f'{folder}/{name}.xml', 'w', encoding='utf-8') as file:
        file.write(content)
PYTHON
for file in hostile:30 receipt:15 key:1; do
    "$program" --html "$folder/${file%:*}.xml" > "$folder/page" 2> "$folder/err" || true
    python3 "$look" < "$folder/page" > "$folder/texts" || fault "${file%:*}: more than texts"
    found=$(grep -cF -- "$hostile" "$folder/texts")
    [ "$found" -ge "${file#*:}" ] || fault "${file%:*}: only $found of the hostile texts"
done
page "$folder/steers.xml"
! grep -qP '[\x{202e}\x{200b}\x{9b}]' "$folder/page" || fault 'a sign that steers'

# One invoice, and a text that its field cannot hold is told on the page too.
refuses() { # STATUS PATTERN ARGUMENT...
    local status=0
    "$program" --html "${@:3}" > "$folder/page" 2> "$folder/err" || status=$?
    [ "$status" = "$1" ] || fault "${*:3}: ended with $status"
    grep -qF -- "$2" "$folder/err" || fault "${*:3}: no '$2' in $(cat "$folder/err")"
}
refuses 2 'one invoice, and what belongs to it; the files hold 2 invoices' "$data/nfe.xml" "$data/nfce.xml"
refuses 2 'the files hold 0 invoices' - <<< "$event"
refuses 2 'cannot be read: No such file' "$folder/missing.xml"
echo '<NFe><infNFe/></NFe>' > "$folder/hollow.xml"
refuses 2 'an invoice without content' "$folder/hollow.xml"
variant 's|<vProd>4678.80|<vProd>many|'
refuses 1 '"many" is not' "$folder/variant.xml"
python3 "$look" < "$folder/page" > "$folder/texts"
grep -qF '"many" is not' "$folder/texts" || fault 'the page does not tell it'

exit $failed
