import { Hover, type HoverProvider, MarkdownString, type Position, Range, type TextDocument, workspace } from 'vscode';
import { literalAt } from './numbersInText';
import { numberRows } from './numberTable';

export const SHOW_NUMBER = 'tessary.showNumber';
/** Shorter numbers are read without help, and there are many of them. */
const DIGITS = 8;
/** Lines of data without a break would take long to look through. */
const LONGEST_LINE = 10_000;

/** Shows what a long number is when the pointer rests on it. */
export const numberHover: HoverProvider = {
  provideHover(document: TextDocument, { line, character }: Position): Hover | undefined {
    if (!workspace.getConfiguration('tessary', document).get<boolean>('hover.enabled')) return undefined;
    const { text } = document.lineAt(line);
    const span = text.length <= LONGEST_LINE ? literalAt(text, character, DIGITS) : undefined;
    const rows = span && numberRows(span.text);
    return rows && new Hover(tableOf(span.text, rows), new Range(line, span.start, line, span.end));
  },
};

function tableOf(number: string, rows: NonNullable<ReturnType<typeof numberRows>>): MarkdownString {
  const argument = encodeURIComponent(JSON.stringify([number]));
  const table = new MarkdownString();
  table.isTrusted = { enabledCommands: [SHOW_NUMBER] };
  table.appendMarkdown('| | |\n| --- | --- |\n');
  for (const { name, text } of rows) table.appendMarkdown(`| ${name} | \`${text}\` |\n`);
  return table.appendMarkdown(`\n[Show as Words](command:${SHOW_NUMBER}?${argument} "Open in a new Words document")`);
}
