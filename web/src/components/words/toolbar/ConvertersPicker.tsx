import { useTranslation } from 'react-i18next';
import { i18next } from '../../../i18n';
import { CONVERTER_GROUPS, DEFAULT_CONVERTERS, toggleConverter } from '../../../model/sheet/converters';
import { useSheetStore } from '../../../stores/sheetStore';
import { Picker } from '../../../ui/Picker';

const USUAL_BASES: Readonly<Record<string, string>> = {
  A2: i18next.t('words.bases.binary'),
  A8: i18next.t('words.bases.octal'),
  A10: i18next.t('words.bases.decimal'),
  A16: i18next.t('words.bases.hexadecimal'),
};

const GROUPS = CONVERTER_GROUPS.map(({ label, identifiers, columns }) => ({
  label,
  columns,
  options: identifiers.map((id) => ({ id, label: id, caption: USUAL_BASES[id] })),
}));

/** Which text fields each word has besides its main one. */
export function ConvertersPicker() {
  const { t } = useTranslation();
  const converters = useSheetStore((sheet) => sheet.converters);
  const setConverters = useSheetStore((sheet) => sheet.setConverters);
  const shown = converters ?? DEFAULT_CONVERTERS;
  return (
    <Picker
      label={t('words.converters')}
      summary={shown.length === 0 ? t('words.noConverters') : shown.join(', ')}
      groups={GROUPS}
      isChosen={(id) => shown.includes(id)}
      onChoose={(id) => setConverters(toggleConverter(converters, id))}
      multiple
      footer={
        <>
          <button type="button" onClick={() => setConverters(undefined)}>
            {t('words.reset')}
          </button>
          <button type="button" onClick={() => setConverters([])}>
            {t('words.clear')}
          </button>
        </>
      }
    />
  );
}
