import { type JSONPath, modify, type Node, parseTree } from 'jsonc-parser';
import type { SheetData, WordsDocumentData } from '../../../web/src/document/schema';
import { printDocument } from './document';
import { hasUniqueIds, idsOf, isSame } from './documentMerge';

/** One replacement in a text. Places and lengths count UTF-16 units. */
export interface TextEdit {
  readonly offset: number;
  readonly length: number;
  readonly text: string;
}

/**
 * What has to be replaced in a document's text after the page went from `before` to `now`. Whatever the page did not
 * change stays as it stands: other lines, keys that the page does not have, and the way in which the text is laid out.
 * @param text - of a Words document, or empty
 * @param before - what the page showed of this text
 * @returns replacements that do not overlap, in the order of the text, with "\n" as line end
 */
export function editsFor(text: string, before: WordsDocumentData, now: WordsDocumentData): TextEdit[] {
  const root = text.trim() === '' ? undefined : parseTree(text);
  const sheets = root && valueOf(root, 'sheets');
  if (!sheets || !hasUniqueIds(before)) return [wholeText(text, now)];
  const parts = partsOf(text, sheets, before, now);
  if (!isSame(idsOf(before), idsOf(now))) return [narrowed(text, sheetList(text, sheets, parts))];
  return parts.flatMap(({ edits }) => edits);
}

/** The text after replacements that do not overlap. */
export function withEdits(text: string, edits: readonly TextEdit[]): string {
  let result = '';
  let done = 0;
  for (const { offset, length, text: replacement } of [...edits].sort((a, b) => a.offset - b.offset)) {
    result += text.slice(done, offset) + replacement;
    done = offset + length;
  }
  return result + text.slice(done);
}

/** A sheet that the page has now: where it stands in the text, if it does, and what is different there. */
interface SheetPart {
  readonly sheet: SheetData;
  readonly node: Node | undefined;
  readonly edits: readonly TextEdit[];
}

function partsOf(text: string, sheets: Node, before: WordsDocumentData, now: WordsDocumentData): SheetPart[] {
  const places = new Map(before.sheets.map(({ id }, place) => [id, place]));
  return now.sheets.map((sheet) => {
    const place = places.get(sheet.id);
    const node = place === undefined ? undefined : sheets.children?.[place];
    if (place === undefined || !node) return { sheet, node, edits: [] };
    return { sheet, node, edits: editsInSheet(text, node, place, before.sheets[place]!, sheet) };
  });
}

function editsInSheet(text: string, node: Node, place: number, before: SheetData, now: SheetData): TextEdit[] {
  const fields = Object.keys({ ...before, ...now }) as (keyof SheetData)[];
  const edits = fields.flatMap((field) => {
    if (isSame(before[field], now[field])) return [];
    const value = valueOf(node, field);
    if (value && now[field] !== undefined) return [replacement(text, value, now[field])];
    return otherProperty(text, ['sheets', place, field], now[field]);
  });
  return edits.sort((a, b) => a.offset - b.offset);
}

/** Writes a value in the place of another one, on one line where that one was. */
function replacement(text: string, { offset, length }: Node, value: unknown): TextEdit {
  const old = text.slice(offset, offset + length);
  const isOneLine = !old.includes('\n') && !/^[[{]\s*[\]}]$/.test(old);
  const printed = isOneLine ? JSON.stringify(value) : printAt(text, offset, value);
  return { offset, length, text: escaped(printed) };
}

/** Adds a property that a sheet's text does not have, or takes away one that the page no longer has. */
function otherProperty(text: string, path: JSONPath, value: unknown): TextEdit[] {
  const unit = unitOf(text);
  const formattingOptions = { insertSpaces: !unit.includes('\t'), tabSize: unit.length, eol: '\n' };
  return modify(text, path, value, { formattingOptions }).map(({ offset, length, content }) => ({
    offset,
    length,
    text: escaped(content),
  }));
}

/** The whole list of sheets, each in the text that it had. */
function sheetList(text: string, list: Node, parts: readonly SheetPart[]): TextEdit {
  const outer = indentAt(text, list.offset);
  const inner = outer + unitOf(text);
  const items = parts.map(({ sheet, node, edits }) => {
    if (!node) return escaped(JSON.stringify(sheet, null, unitOf(text)).replaceAll('\n', `\n${inner}`));
    const own = edits.map((edit) => ({ ...edit, offset: edit.offset - node.offset }));
    return withEdits(text.slice(node.offset, node.offset + node.length), own);
  });
  const inside = items.length === 0 ? '' : `\n${inner}${items.join(`,\n${inner}`)}\n${outer}`;
  return { offset: list.offset, length: list.length, text: `[${inside}]` };
}

/** The whole document in the page's own layout, with the final line break that there was. */
function wholeText(text: string, now: WordsDocumentData): TextEdit {
  const end = /\n$/.test(text) ? '\n' : '';
  return narrowed(text, { offset: 0, length: text.length, text: printDocument(now) + end });
}

/** The same edit without the lines at its begin and end that stay as they are. */
function narrowed(text: string, { offset, length, text: now }: TextEdit): TextEdit {
  const old = text.slice(offset, offset + length);
  const most = Math.min(old.length, now.length);
  let head = 0;
  while (head < most && old[head] === now[head]) head++;
  head = old.lastIndexOf('\n', head - 1) + 1;
  let tail = 0;
  while (tail < most - head && old.at(-1 - tail) === now.at(-1 - tail)) tail++;
  return { offset: offset + head, length: length - head - tail, text: now.slice(head, now.length - tail) };
}

/** The value of a property; of properties with the same name the last one counts. */
function valueOf(object: Node, name: string): Node | undefined {
  return object.children?.findLast(({ children }) => children?.[0]?.value === name)?.children?.[1];
}

function printAt(text: string, offset: number, value: unknown): string {
  return JSON.stringify(value, null, unitOf(text)).replaceAll('\n', `\n${indentAt(text, offset)}`);
}

/** The blanks that the line of a place begins with. */
function indentAt(text: string, offset: number): string {
  const begin = text.lastIndexOf('\n', offset - 1) + 1;
  return /^[ \t]*/.exec(text.slice(begin, offset))![0];
}

/** What the text indents its first line by, which is one level; two blanks where it indents none. */
function unitOf(text: string): string {
  return /\n([ \t]+)\S/.exec(text)?.[1] ?? '  ';
}

/** As the page writes its files. */
function escaped(json: string): string {
  return json.replaceAll('\u007f', '\\u007f');
}
