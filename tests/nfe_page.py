"""Looks at a page of nfe_summary --html on standard input as a browser would.

Usage: nfe_page.py        its visible texts, one a line
       nfe_page.py bars   what a reader of bar codes reads off its drawings, one a line

Fails where the page is not well formed, could load or run anything, or shows an amount that does not
end at the right.
"""

import html.parser
import re
import subprocess
import sys

VOID = {'meta'}
# of HTML and SVG; nothing that loads, runs or leads elsewhere is among them
ELEMENTS = VOID | set('''html head title style body main aside header section div dl dt dd p b strong
    small h1 h2 h3 table thead tbody tr th td svg path'''.split())
ATTRIBUTES = set('''lang charset name content class style data-label viewbox preserveaspectratio
    role aria-label aria-hidden d'''.split())


class Page(html.parser.HTMLParser):
    """Takes a page apart; what is wrong with it ends the program."""

    def __init__(self, text):
        super().__init__(convert_charrefs=True)
        self.open, self.texts, self.styles, self.drawings = [], [], [], []
        self.at_left = False  # whether the field of a form has its text there
        self.feed(text)
        self.close()
        if self.open:
            sys.exit(f'not closed: {self.open}')

    def handle_starttag(self, tag, attributes):
        if tag not in ELEMENTS:
            sys.exit(f'an element {tag}')
        for name, value in attributes:
            if name not in ATTRIBUTES:
                sys.exit(f'an attribute {name} of {tag}')
            if name == 'style' and not re.fullmatch(r'--width:\d+', value):
                sys.exit(f'a style {value}')
        attributes = dict(attributes)
        if tag == 'svg':
            self.drawings.append([attributes['viewbox'], ''])
        elif tag == 'path':
            self.drawings[-1][1] = attributes['d']
        elif tag in ('dl', 'div'):
            self.at_left = 'style' in attributes and attributes.get('class') != 'number'
        if tag not in VOID:
            self.open.append(tag)

    def handle_startendtag(self, tag, attributes):
        if tag not in VOID:  # a browser would take it for the begin of the element
            sys.exit(f'a short form of {tag}')
        self.handle_starttag(tag, attributes)

    def handle_endtag(self, tag):
        if not self.open or self.open.pop() != tag:
            sys.exit(f'{tag} ends where it is not open')

    def handle_data(self, data):
        inside = self.open[-1] if self.open else ''
        if inside == 'style':
            self.styles.append(data)
        elif data.strip():
            self.texts.append(data)
            if inside == 'dd' and self.at_left and re.fullmatch(r'[\d.]+,\d\d', data):
                sys.exit(f'an amount that does not end at the right: {data}')

    def handle_comment(self, data):
        sys.exit(f'a comment: {data}')


def picture(view, path, scale=2):
    """The drawing as a picture of the PGM format."""
    left, top, width, height = (int(number) for number in view.split())
    rows = [bytearray(b'\xff' * width) for _ in range(height)]
    for x, y, across, down in re.findall(r'M(\d+) (\d+)h(\d+)v(\d+)h-\3z', path):
        for row in rows[int(y) - top:int(y) - top + int(down)]:
            begin = int(x) - left
            row[begin:begin + int(across)] = bytes(int(across))
    wide = [bytes(value for value in row for _ in range(scale)) for row in rows]
    return b'P5 %d %d 255\n' % (width * scale, height * scale) + b''.join(
        row for row in wide for _ in range(scale))


page = Page(sys.stdin.buffer.read().decode())
for style in page.styles:
    if re.search(r'url|import|src|expression|\\', style):
        sys.exit(f'a style that loads: {style}')
if sys.argv[1:] == ['bars']:
    for drawing in page.drawings:
        print(subprocess.run(['zbarimg', '--quiet', '--nodbus', '--raw', '-'],
                             input=picture(*drawing), stdout=subprocess.PIPE, check=True).stdout.decode().strip())
else:
    print(*page.texts, sep='\n')
