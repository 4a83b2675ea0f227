// The page that the bare window shows: as heavy as a page of a program, and as simple as it can be.

const SIZE = 900_000;

/** One file of 900 kB: a text, and a script of functions that nobody calls. */
export function barePage(): string {
  const head =
    '<!doctype html><title>Bare</title><style>body{background:#0f1214;color:#eee;font:16px sans-serif}</style>';
  const text = '<p>A page that shows some lines of text and does nothing else.</p>'.repeat(12);
  const functions: string[] = [];
  for (let size = 0, at = 0; size < SIZE - head.length - text.length - 20; at++) {
    const next = `function f${at}(a,b){if(a>${at}){return b.map(function(c){return c*${at}+a})}return [a,b,"text ${at}"]}\n`;
    functions.push(next);
    size += next.length;
  }
  return `${head}<script>${functions.join('')}</script>${text}`;
}
