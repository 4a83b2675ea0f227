/*
 * What the Words tool shows of a sheet, written by hand: plain elements for the words in view, each remembered where it
 * is used, and nothing else. It stands for the least that any page has to do.
 */
import { DARK_PALETTE } from '../../../../web/src/components/words/bitField/bitFieldPalette';
import { bitAt } from '../../../../web/src/components/words/layout/bitFieldLayout';
import { BitFieldPainter } from '../../../../web/src/components/words/bitField/bitFieldPainter';
import { directOperations, WORD_OPERATIONS } from '../../../../web/src/commands/wordCommands';
import { sheetGeometry, type RowGeometry } from '../../../../web/src/components/words/layout/sheetGeometry';
import { digitWidth } from '../../../../web/src/components/words/layout/useViewport';
import { formatInteger } from '../../../../web/src/model/integer/formatInteger';
import { definitionsFor } from '../../../../web/src/model/sheet/numberDefinitions';
import { parseInteger } from '../../../../web/src/model/integer/parseInteger';
import { wordHalfLabel, wordNumber, wordSignLabel } from '../../../../web/src/model/sheet/wordLabels';
import { readWord, writeWord } from '../../../../web/src/model/integer/wordLayout';
import '../../../../web/src/components/words/words.css';

/** The height of the tool's bars above and below the rows. */
const BARS = 22 + 113 + 6;
/** Beside the rows: the rail, the rows' labels, the minimap. */
const SIDES = 56 + 44 + 6 + 38;

interface Sheet {
  resolution: number;
  value: bigint;
}

let sheet: Sheet = { resolution: 64, value: 0n };
let updates: ((changed: bigint) => void)[] = [];

function update(value: bigint): void {
  const changed = sheet.value ^ value;
  sheet.value = value;
  for (const each of updates) each(changed);
}

/** Shows a sheet; one of the same width as before keeps its elements. */
function show(next: Sheet): void {
  if (next.resolution === sheet.resolution && updates.length > 0) return update(next.value);
  sheet = { ...next };
  updates = [];
  const viewHeight = innerHeight - BARS;
  const viewWidth = innerWidth - SIDES;
  const { rows } = sheetGeometry({
    resolution: sheet.resolution,
    definitions: definitionsFor(sheet.resolution),
    converters: undefined,
    viewWidth,
    charWidth: digitWidth(),
  });
  const view = element('div', 'sheet-view');
  for (const row of rows) if (row.top < viewHeight && row.type === 'integer') view.append(rowOf(row, viewWidth));
  document.getElementById('root')!.replaceChildren(view);
  for (const each of updates) each(-1n);
}

function rowOf(row: RowGeometry, viewWidth: number): HTMLElement {
  const content = element('div', 'row-content');
  content.style.width = `${row.count * row.blockWidth}px`;
  for (let place = 0; place < row.count && place * row.blockWidth < viewWidth; place++) {
    content.append(blockOf(row, row.count - 1 - place));
  }
  const outer = element('div', 'row');
  outer.style.height = `${row.height}px`;
  outer.append(element('span', 'row-label', row.shortLabel), element('div', 'row-scroller', content));
  return outer;
}

function blockOf(row: RowGeometry, index: number): HTMLElement {
  const { bits } = row;
  const setters: ((word: bigint) => void)[] = [];
  const box = element('div', 'box', headerOf(row, index), fieldsOf(row, index, setters));
  box.style.width = `${row.boxWidth + 14}px`;
  const block = element('div', `block ${index % 2 === 0 ? 'low' : 'high'}`, box);
  block.style.left = `${(row.count - 1 - index) * row.blockWidth}px`;
  block.style.width = `${row.blockWidth}px`;
  (row.bitField.vertical ? box : block).append(bitFieldOf(row, index, setters));
  updates.push((changed) => {
    if (readWord(changed, bits, index) === 0n) return;
    const word = readWord(sheet.value, bits, index);
    for (const set of setters) set(word);
  });
  return block;
}

function headerOf({ bits }: RowGeometry, index: number): HTMLElement {
  const buttons = WORD_OPERATIONS.slice(0, directOperations(bits)).map(({ icon }) => element('button', '', icon));
  return element(
    'div',
    bits === 8 ? 'word-header narrow' : 'word-header',
    element('span', 'word-number', wordNumber(index)),
    element('button', 'sign', wordSignLabel(bits, false)),
    element('span', 'word-half', wordHalfLabel(bits, index)),
    element('div', 'operations', ...buttons),
  );
}

function fieldsOf(row: RowGeometry, index: number, setters: ((word: bigint) => void)[]): HTMLElement {
  const fields = element('div', 'fields');
  for (const [at, base] of [10, 2, 8, 16].entries()) {
    const { spans, lines } = row.fields.places[at]!;
    const input = element(lines > 1 ? 'textarea' : 'input', '') as HTMLInputElement;
    if (lines > 1) input.setAttribute('rows', `${lines}`);
    input.setAttribute('aria-label', `Base ${base}`);
    input.addEventListener('keydown', ({ key }) => {
      const read = key === 'Enter' && parseInteger(input.value, base, row.bits);
      if (read && read.ok) update(writeWord(sheet.value, row.bits, index, read.value));
    });
    setters.push((word) => (input.value = formatInteger(word, base, row.bits)));
    const label = at === 0 ? [] : [element('span', 'field-label', `${base}:`)];
    fields.append(element('label', spans ? 'field spans' : 'field', ...label, input));
  }
  return fields;
}

function bitFieldOf({ bits, bitField: layout }: RowGeometry, index: number, setters: ((word: bigint) => void)[]) {
  const canvas = element('canvas', 'bit-field') as HTMLCanvasElement;
  canvas.style.width = `${layout.width}px`;
  canvas.style.height = `${layout.height}px`;
  const painter = new BitFieldPainter();
  canvas.addEventListener('pointerdown', ({ offsetX, offsetY }) =>
    update(sheet.value ^ (1n << BigInt(bits * index + bitAt(layout, offsetX, offsetY)))),
  );
  setters.push((word) => {
    const digits = word.toString(2).padStart(bits, '0');
    painter.show(canvas, { layout, pixelRatio: devicePixelRatio, palette: DARK_PALETTE, digits });
  });
  return canvas;
}

function element(name: string, className: string, ...children: (Node | string)[]): HTMLElement {
  const created = document.createElement(name);
  created.className = className;
  created.append(...children);
  return created;
}

Object.assign(window, {
  showSheet: (resolution: number, value: string) => show({ resolution, value: BigInt(value) }),
});
