import { Fragment, type ReactNode } from 'react';

interface MarkedTextProps {
  /** May hold marked parts such as "<open>Open Document</open>", not one within another. */
  text: string;
  /** What to show for a marked part, by its mark. */
  parts: Record<string, (text: string) => ReactNode>;
}

/** A text with some parts shown in another way. The translation's own component for it takes 11 kB. */
export function MarkedText({ text, parts }: MarkedTextProps) {
  // Plain text, mark and marked text in turn.
  const pieces = text.split(/<(\w+)>(.*?)<\/\1>/);
  return pieces.map((piece, index) => {
    if (index % 3 === 2) return null;
    const shown = index % 3 === 1 ? parts[piece]!(pieces[index + 1]!) : piece;
    return <Fragment key={index}>{shown}</Fragment>;
  });
}
