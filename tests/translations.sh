#!/bin/bash
# Checks that nfe_summary says everything in each language: no message is without a translation, or
# has other braces than its translation, and none stands in the sources without being a message.
# Usage: translations.sh TOOL_SOURCES PROGRAM
set -euo pipefail
sources=$1
program=$2
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT

"$sources/po/extract.sh" "$folder/all.pot"
for translation in "$sources"/po/*.po; do
    msgcmp "$translation" "$folder/all.pot" 2> "$folder/log" || { # also fails for fuzzy ones
        cat "$folder/log" >&2
        exit 1
    }
    msgattrib --obsolete "$translation" | grep -q msgid && {
        echo "$translation: messages that nothing says" >&2
        exit 1
    }
    python3 - "$sources" "$translation" <<'PYTHON'
import ast, glob, re, sys

sources, translation = sys.argv[1:]
literal = r'"(?:[^"\\]|\\.)*"'
words = {'en pt_BR', 'issuer recipient month cfop ncm'}  # of the command line
faults = []
said = {}
for entry in open(translation, encoding='utf-8').read().split('\n\n'):
    parts = [''.join(ast.literal_eval(piece) for piece in re.findall(literal, text))
             for text in re.findall(rf'^msg(?:id|str) ((?:{literal}\n?)+)', entry, re.M)]
    if len(parts) == 2 and parts[0]:
        said[parts[0]] = parts[1]
        if sorted(re.findall('{[^}]*}', parts[0])) != sorted(re.findall('{[^}]*}', parts[1])):
            faults.append(f'other braces: {parts}')

for name in sorted(glob.glob(sources + '/*.[ch]pp')):
    code = re.sub(r'^#.*|//.*', '', open(name, encoding='utf-8').read(), flags=re.M)
    code = re.sub(rf'({literal})\s*(?={literal})', lambda piece: piece[1][:-1] + '\0', code)
    code = code.replace('\0"', '')
    for found in re.finditer(rf'(\w*)\(?(?<=[(,{{ ])({literal})', code):
        text = ast.literal_eval('b' + found[2]).decode(errors='replace') if found[2].isascii() else found[2]
        command = (text.startswith('nfe_summary ') or text in words
                   or '_nfe_summary' in text or '$LANG' in text)  # for shells
        if re.search('[a-z]{2} [a-z]{2}', text) and not command and not any(
                message.startswith(text) for message in said):
            faults.append(f'{name}: not a message: {text}')
    # a label has its place before its text
    for label in re.findall(rf'fields?\(\s*tr\(({literal})\)', code):
        if len(said.get(ast.literal_eval(label), label)) > 15:
            faults.append(f'too long a label: {said[ast.literal_eval(label)]}')
print(*faults, sep='\n', file=sys.stderr)
sys.exit(bool(faults))
PYTHON
done

# The language is the environment's, whether its locale is on the machine or not.
speaks() { # WORDS [VARIABLE=VALUE...] ARGUMENT
    local words=$1
    shift
    env -u LANGUAGE -u LC_ALL -u LC_MESSAGES -u LANG "${@:1:$#-1}" "$program" "${@: -1}" \
        > "$folder/said" 2>&1 || true
    grep -qF "$words" "$folder/said" || {
        echo "$*: does not say '$words'" >&2
        exit 1
    }
}
speaks 'Usage:' --help
speaks 'Uso:' LANG=pt_BR.UTF-8 --help
speaks 'Uso:' LANG=pt_PT --help
speaks 'Usage:' LANG=pt_BR.UTF-8 LC_ALL=C --help
speaks 'Usage:' LANG=pt_BR.UTF-8 LANGUAGE=en --help
speaks 'Uso:' LANG=en_US.UTF-8 LANGUAGE=de:pt_BR:en --help
speaks 'Usage:' LANG=de_DE.UTF-8 --help
speaks 'não pode ser lido: arquivo ou pasta inexistente' LANG=pt_BR.UTF-8 /missing
echo '<NFe><infNFe/></NFe>' > "$folder/hollow.xml"
speaks 'uma nota sem conteúdo' LANG=pt_BR.UTF-8 "$folder/hollow.xml"
echo '<NFe><infNFe></NFe>' > "$folder/broken.xml"
speaks 'não é um documento XML: marcas de início e fim não combinam (linha 1, coluna' \
    LANG=pt_BR.UTF-8 "$folder/broken.xml"
LANG=pt_BR.UTF-8 "$program" --lang en --help | grep -F "Usage:" > "$folder/said"
LANG=C "$program" --lang pt_BR --help | grep -F "Uso:" > "$folder/said"
