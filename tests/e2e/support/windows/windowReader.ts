import { windowReader } from './paths';
import type { WinePrefix } from './winePrefix';

/** A window, a control in it or an entry of a list, as Windows programs see it. */
export interface Control {
  /** 0 for a window of its own. */
  depth: number;
  className: string;
  /** The control's number in its dialog, or the entry's in its list. */
  id: number;
  text: string;
}

/** All windows that can be seen in a prefix, each followed by what is in it. */
export function readWindows(prefix: WinePrefix): Control[] {
  return prefix
    .output(windowReader)
    .split(/\r?\n/)
    .filter((line) => line !== '')
    .map((line) => {
      const [depth, className = '', id, text = ''] = line.split('\t');
      return { depth: Number(depth), className, id: Number(id), text };
    });
}

/** The dialog with this title, followed by what is in it; nothing when there is none. */
export function readDialog(prefix: WinePrefix, title: string): Control[] {
  const all = readWindows(prefix);
  const isDialog = ({ depth, className, text }: Control) => depth === 0 && className === '#32770' && text === title;
  const start = all.findIndex(isDialog);
  if (start < 0) return [];
  const end = all.findIndex(({ depth }, index) => index > start && depth === 0);
  return all.slice(start, end < 0 ? undefined : end);
}
