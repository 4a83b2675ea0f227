import { memo, useLayoutEffect, useRef } from 'react';
import { i18next } from '../../../i18n';
import { displayFloat } from '../../../model/float/displayFloat';
import { floatFormatFor, WIDEST_EDITABLE_FLOAT } from '../../../model/float/floatFormats';
import { parseFloatInput } from '../../../model/float/parseFloatInput';
import { formatInteger } from '../../../model/integer/formatInteger';
import { otherReadings, type Reading } from '../../../model/integer/otherReadings';
import { parseInteger } from '../../../model/integer/parseInteger';
import type { Result } from '../../../model/result';
import type { Converter } from '../../../model/sheet/converters';
import { PICKER_RESOLUTIONS } from '../../../model/sheet/resolutions';
import { nearestFloat } from '../../../model/text/floatText';
import { inOneStep } from '../../../stores/history';
import { useSheetStore } from '../../../stores/sheetStore';
import type { Offer } from '../../../ui/NoticeActions';
import { keepTabStop } from '../../../ui/tabStop';
import type { RowGeometry } from '../layout/sheetGeometry';
import { DigitsField, type Refusal } from './DigitsField';
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
export const WordFields = memo(function WordFields({ row, texts, index, word, signed, sheetId }: WordFieldsProps) {
  const { bits } = row;

  const group = useRef<HTMLDivElement>(null);
  // The field where the Tab key stops may be one that is gone.
  useLayoutEffect(() => keepTabStop([...group.current!.querySelectorAll<HTMLElement>('input, textarea')]), [row]);

  const commit = (read: Result<bigint>): Refusal | undefined => {
    if (!read.ok) return { reason: read.reason };
    useSheetStore.getState().updateWord(index, bits, read.value);
    return undefined;
  };
  const commitDigits = (text: string, base: number): Refusal | undefined => {
    const refusal = commit(parseInteger(text, base, bits, signed));
    if (!refusal) return undefined;
    const wider = row.count === 1 ? PICKER_RESOLUTIONS.filter((each) => each > bits) : [];
    const readings = otherReadings(text, base, bits, signed, wider);
    const offers = readings.map((reading) => offerOf(offerLabel(reading, base, bits), reading, bits, index, sheetId));
    const float = nearestFloat(text, bits);
    if (float === undefined) return { ...refusal, offers };
    const asFloat = offerOf(i18next.t('words.offers.readFloat'), { value: float, width: bits }, bits, index, sheetId);
    return { ...refusal, offers: [...offers, asFloat] };
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
      isStop: isMain,
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
            onCommit={(input) => commitDigits(input, converter.base)}
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
    <div ref={group} data-fields className={styles.fields} style={{ height: row.fields.height }}>
      {[MAIN, ...row.converters].map(field)}
    </div>
  );
});

function offerLabel({ base, width }: Reading, refusedBase: number, bits: number): string {
  const isOtherBase = base !== refusedBase;
  const key = width === bits ? 'read' : isOtherBase ? 'readWider' : 'widen';
  return i18next.t(`words.offers.${key}`, { base, bits: width });
}

/** What a refused text could be instead, as a button. */
function offerOf(
  label: string,
  { value, width }: Pick<Reading, 'value' | 'width'>,
  bits: number,
  index: number,
  sheetId: string | null,
): Offer {
  return {
    label,
    run() {
      const { id, setIntResolution, updateWord } = useSheetStore.getState();
      if (id !== sheetId) return; // it is offered until the notification goes
      inOneStep(() => {
        if (width !== bits) setIntResolution(width);
        updateWord(index, width, value);
      });
    },
  };
}
