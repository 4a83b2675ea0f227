import { useMemo } from 'react';
import { useTranslation } from 'react-i18next';
import { definitionLabel, definitionShortLabel, selectableDefinitions } from '../../../model/sheet/numberDefinitions';
import { useSheetStore } from '../../../stores/sheetStore';
import { Picker } from '../../../ui/Picker';

/** Which rows the sheet shows besides the one of full width. */
export function FormatsPicker() {
  const { t } = useTranslation();
  const definitions = useSheetStore((sheet) => sheet.numberDefinitions);
  const selectable = useMemo(() => selectableDefinitions(definitions), [definitions]);
  const find = (id: string) => selectable.find((each) => definitionShortLabel(each) === id)!;
  const shown = selectable.filter(({ visible }) => visible);
  return (
    <Picker
      label={t('words.formats')}
      summary={shown.length === 0 ? t('words.noConverters') : shown.map(definitionShortLabel).join(', ')}
      groups={[
        { options: selectable.map((each) => ({ id: definitionShortLabel(each), label: definitionLabel(each) })) },
      ]}
      isChosen={(id) => find(id).visible}
      onChoose={(id) => useSheetStore.getState().setNumberVisibility(find(id), !find(id).visible)}
      multiple
    />
  );
}
