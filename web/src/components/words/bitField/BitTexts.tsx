import { useDeferredValue } from 'react';
import { i18next } from '../../../i18n';
import { visuallyHidden } from '../../../ui/visuallyHidden';

/**
 * The bits as a screen reader finds them one by one, while the keyboard is in their field. They stand beside it: not every
 * engine shows readers what is in a canvas. They follow when everything else is shown.
 */
export function BitTexts({ digits }: { digits: string }) {
  const shown = useDeferredValue(digits, '');
  return (
    <div role="group" aria-label={i18next.t('words.bits')} style={visuallyHidden}>
      {[...shown].map((value, place) => {
        const bit = shown.length - 1 - place;
        return <span key={bit} role="img" aria-label={bitName(bit, value)} />;
      })}
    </div>
  );
}

function bitName(bit: number, value: string): string {
  return ((bitNames[value] ??= [])[bit] ??= i18next.t('words.bitName', { bit, value }));
}

/** By value and bit: to look up a thousand of them takes some milliseconds. */
const bitNames: Record<string, string[]> = {};
