import { i18next } from '../../../i18n';
import { type Converter, converterLabel } from '../../../model/sheet/converters';
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
      name: converterName(converter),
      label: converterLabel(converter),
    })),
    bitField: i18next.t('words.bitField', { bits }),
  };
}

function converterName(converter: Converter): string {
  switch (converter.kind) {
    case 'integer':
      return i18next.t('words.base', { base: converter.base });
    case 'float':
      return i18next.t('words.float');
  }
}

export function blockName(row: string, index: number): string {
  return i18next.t('words.block', { row, number: index + 1 });
}
