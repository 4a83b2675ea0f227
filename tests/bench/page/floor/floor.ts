/*
 * What the Words tool shows of a sheet, written by hand: plain elements for the words in view, each remembered where it
 * is used, and nothing else. It stands for the least that any page has to do.
 */
import cc from 'classcat';
import { directOperations, OPERATION_ICONS } from '../../../../web/src/commands/operationIcons';
import bits from '../../../../web/src/components/words/bitField/BitField.module.css';
import { BitFieldPainter } from '../../../../web/src/components/words/bitField/bitFieldPainter';
import { DARK_PALETTE } from '../../../../web/src/components/words/bitField/bitFieldPalette';
import { bitAt } from '../../../../web/src/components/words/layout/bitFieldLayout';
import { geometryProperties } from '../../../../web/src/components/words/layout/geometryProperties';
import {
  BLOCK_PADDING_X,
  LABELS_WIDTH,
  type RowGeometry,
  sheetGeometry,
} from '../../../../web/src/components/words/layout/sheetGeometry';
import { digitWidth } from '../../../../web/src/components/words/layout/useViewport';
import rows from '../../../../web/src/components/words/RowView.module.css';
import sheetView from '../../../../web/src/components/words/SheetView.module.css';
import block from '../../../../web/src/components/words/word/BlockFrame.module.css';
import field from '../../../../web/src/components/words/word/DigitsField.module.css';
import operations from '../../../../web/src/components/words/word/OperationsBar.module.css';
import fields from '../../../../web/src/components/words/word/WordFields.module.css';
import header from '../../../../web/src/components/words/word/WordHeader.module.css';
import tool from '../../../../web/src/components/words/WordsTool.module.css';
import { formatInteger } from '../../../../web/src/model/integer/formatInteger';
import { parseInteger } from '../../../../web/src/model/integer/parseInteger';
import { readWord, writeWord } from '../../../../web/src/model/integer/wordLayout';
import { definitionsFor } from '../../../../web/src/model/sheet/numberDefinitions';
import { wordHalfLabel, wordNumber, wordSignLabel } from '../../../../web/src/model/sheet/wordLabels';
import controls from '../../../../web/src/ui/controls.module.css';
import { tokenProperties } from '../../../../web/src/ui/tokens';

/** The height of the tool's bars above and below the rows. */
const BARS = 22 + 113 + 6;
/** Beside the rows: the rail, the rows' labels, the minimap. */
const SIDES = 56 + LABELS_WIDTH + 6 + 38;

interface Sheet {
  resolution: number;
  value: bigint;
}

const root = document.getElementById('root')!;
root.className = cc([controls.controls, tool.tool]);
for (const [name, value] of Object.entries({ ...tokenProperties, ...geometryProperties })) {
  root.style.setProperty(name, `${value}`);
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
  const geometry = sheetGeometry({
    resolution: sheet.resolution,
    definitions: definitionsFor(sheet.resolution),
    converters: undefined,
    viewWidth,
    charWidth: digitWidth(),
  });
  const view = element('div', sheetView.view);
  for (const [at, row] of geometry.rows.entries())
    if (geometry.tops[at]! < viewHeight && row.type === 'integer') view.append(rowOf(row, viewWidth));
  root.replaceChildren(view);
  for (const each of updates) each(-1n);
}

function rowOf(row: RowGeometry, viewWidth: number): HTMLElement {
  const content = element('div', rows.content);
  content.style.width = `${row.count * row.blockWidth}px`;
  for (let place = 0; place < row.count && place * row.blockWidth < viewWidth; place++) {
    content.append(blockOf(row, row.count - 1 - place));
  }
  const scroller = element('div', rows.scroller, content);
  scroller.dataset.scroller = 'row';
  const outer = element('div', rows.row);
  outer.style.height = `${row.height}px`;
  outer.append(element('span', rows.label, row.shortLabel), scroller);
  return outer;
}

function blockOf(row: RowGeometry, index: number): HTMLElement {
  const setters: ((word: bigint) => void)[] = [];
  const sticky = element('div', block.stickyContent, headerOf(row, index), fieldsOf(row, index, setters));
  sticky.style.width = `${row.boxWidth + 2 * BLOCK_PADDING_X}px`;
  const outer = element('div', cc([block.block, index % 2 === 1 && block.high]), sticky);
  outer.style.left = `${(row.count - 1 - index) * row.blockWidth}px`;
  outer.style.width = `${row.blockWidth}px`;
  (row.bitField.vertical ? sticky : outer).append(bitFieldOf(row, index, setters));
  updates.push((changed) => {
    if (readWord(changed, row.bits, index) === 0n) return;
    const word = readWord(sheet.value, row.bits, index);
    for (const set of setters) set(word);
  });
  return outer;
}

function headerOf({ bits: width }: RowGeometry, index: number): HTMLElement {
  const buttons = OPERATION_ICONS.slice(0, directOperations(width)).map(({ icon }) => element('button', '', icon));
  return element(
    'div',
    cc([header.header, width === 8 && header.tall]),
    element('span', header.number, wordNumber(index)),
    element('button', header.sign, wordSignLabel(width, false)),
    element('span', '', wordHalfLabel(width, index)),
    element('div', operations.operations, ...buttons),
  );
}

function fieldsOf(row: RowGeometry, index: number, setters: ((word: bigint) => void)[]): HTMLElement {
  const list = element('div', fields.fields);
  for (const [at, base] of [10, 2, 8, 16].entries()) {
    const { fullWidth, lines } = row.fields.places[at]!;
    const input = element(lines > 1 ? 'textarea' : 'input', '') as HTMLInputElement;
    if (lines > 1) input.setAttribute('rows', `${lines}`);
    input.setAttribute('aria-label', `Base ${base}`);
    input.addEventListener('keydown', ({ key }) => {
      const read = key === 'Enter' && parseInteger(input.value, base, row.bits);
      if (read && read.ok) update(writeWord(sheet.value, row.bits, index, read.value));
    });
    setters.push((word) => (input.value = formatInteger(word, base, row.bits)));
    const label = at === 0 ? [] : [element('span', field.label, `${base}:`)];
    list.append(element('label', cc([field.field, fullWidth && field.fullWidth]), ...label, input));
  }
  return list;
}

function bitFieldOf(
  { bits: width, bitField: layout }: RowGeometry,
  index: number,
  setters: ((word: bigint) => void)[],
) {
  const canvas = element('canvas', bits.bits) as HTMLCanvasElement;
  canvas.style.width = `${layout.width}px`;
  canvas.style.height = `${layout.height}px`;
  const painter = new BitFieldPainter();
  canvas.addEventListener('pointerdown', ({ offsetX, offsetY }) =>
    update(sheet.value ^ (1n << BigInt(width * index + bitAt(layout, offsetX, offsetY)))),
  );
  setters.push((word) => {
    const digits = word.toString(2).padStart(width, '0');
    painter.show(canvas, { layout, pixelRatio: devicePixelRatio, palette: DARK_PALETTE, digits }, true);
  });
  return canvas;
}

function element(name: string, className: string | undefined, ...children: (Node | string)[]): HTMLElement {
  const created = document.createElement(name);
  created.className = className ?? '';
  created.append(...children);
  return created;
}

Object.assign(window, {
  showSheet: (resolution: number, value: string) => show({ resolution, value: BigInt(value) }),
});
