import { displayFloat } from '../../../model/float/displayFloat';
import { floatFormatFor, WIDEST_EDITABLE_FLOAT } from '../../../model/float/floatFormats';
import { parseFloatInput } from '../../../model/float/parseFloatInput';
import { formatInteger } from '../../../model/integer/formatInteger';
import { parseInteger } from '../../../model/integer/parseInteger';
import type { Result } from '../../../model/result';
import type { Converter } from '../../../model/sheet/converters';
import { useSheetStore } from '../../../stores/sheetStore';
import { showWarning } from '../../../ui/notifications';
import type { RowGeometry } from '../layout/sheetGeometry';
import { DigitsField } from './DigitsField';
import type { RowTexts } from './rowTexts';
import styles from './WordFields.module.css';

interface WordFieldsProps {
  row: RowGeometry;
  texts: RowTexts;
  index: number;
  word: bigint;
  signed: boolean;
  sheetId: string | null;
}

const MAIN: Converter = { kind: 'integer', base: 10 };

/** A word's text fields: the main one in base 10, then one per converter. */
export function WordFields({ row, texts, index, word, signed, sheetId }: WordFieldsProps) {
  const { bits } = row;

  const commit = (read: Result<bigint>): boolean => {
    if (read.ok) useSheetStore.getState().updateWord(index, bits, read.value);
    else showWarning(read.reason);
    return read.ok;
  };

  const field = (converter: Converter, position: number) => {
    const isMain = position === 0;
    const text = texts.converters[position - 1];
    const shared = {
      name: isMain ? texts.value : text!.name,
      label: text?.label,
      focusKey: isMain ? 'value' : text!.label,
      place: row.fields.places[position]!,
      content: word,
      source: sheetId,
    };
    switch (converter.kind) {
      case 'integer': {
        const shown = formatInteger(word, converter.base, bits, signed);
        return (
          <DigitsField
            {...shared}
            key={position}
            shown={shown}
            restored={shown}
            onCommit={(input) => commit(parseInteger(input, converter.base, bits, signed))}
          />
        );
      }
      case 'float':
        return (
          <DigitsField
            {...shared}
            key={position}
            shown={displayFloat(word, floatFormatFor(bits)!)}
            restored={formatInteger(word, 10, bits)}
            readOnly={bits > WIDEST_EDITABLE_FLOAT}
            onCommit={(input) => commit(parseFloatInput(input, bits))}
          />
        );
    }
  };

  return (
    <div className={styles.fields} style={{ height: row.fields.height }}>
      {[MAIN, ...row.converters].map(field)}
    </div>
  );
}
