import { i18next } from '../../../i18n';
import { converterLabel } from '../../../model/sheet/converters';
import type { RowGeometry } from '../layout/sheetGeometry';

/** Texts that all words of a row share, looked up once: a row has up to 128 words. */
export interface RowTexts {
  readonly value: string;
  /** Name and visible label of each converter's field. */
  readonly converters: readonly { readonly name: string; readonly label: string }[];
  readonly bitField: string;
}

export function rowTexts({ bits, converters }: RowGeometry): RowTexts {
  return {
    value: i18next.t('words.value'),
    converters: converters.map((converter) => ({
      name: converter.kind === 'float' ? i18next.t('words.float') : i18next.t('words.base', { base: converter.base }),
      label: converterLabel(converter),
    })),
    bitField: i18next.t('words.bitField', { bits }),
  };
}

export function blockName(row: string, index: number): string {
  return i18next.t('words.block', { row, number: index + 1 });
}
