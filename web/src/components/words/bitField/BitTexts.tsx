import { memo, useDeferredValue } from 'react';
import { i18next } from '../../../i18n';
import { visuallyHidden } from '../../../ui/visuallyHidden';

/**
 * The bits as a screen reader finds them one by one, while the keyboard is in their field. They stand beside it: not every
 * engine shows readers what is in a canvas. They follow when everything else is shown.
 */
export function BitTexts({ digits }: { digits: string }) {
  return <AllBits digits={useDeferredValue(digits, '')} />;
}

const AllBits = memo(function AllBits({ digits }: { digits: string }) {
  const bytes = digits.match(/.{1,8}/g) ?? [];
  return (
    <div role="group" aria-label={i18next.t('words.bits')} style={visuallyHidden}>
      {bytes.map((byte, place) => {
        const lowest = digits.length - 8 * place - byte.length;
        return <ByteOfBits key={lowest} digits={byte} lowest={lowest} />;
      })}
    </div>
  );
});

/** An edit renders only the bytes that it changes, of up to 128. */
const ByteOfBits = memo(function ByteOfBits({ digits, lowest }: { digits: string; lowest: number }) {
  return [...digits].map((value, place) => {
    const bit = lowest + digits.length - 1 - place;
    return <span key={bit} role="img" aria-label={bitName(bit, value)} />;
  });
});

function bitName(bit: number, value: string): string {
  return ((bitNames[value] ??= [])[bit] ??= i18next.t('words.bitName', { bit, value }));
}

/** By value and bit: to look up a thousand of them takes some milliseconds. */
const bitNames: Record<string, string[]> = {};
