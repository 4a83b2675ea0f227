import { useTranslation } from 'react-i18next';
import { PICKER_RESOLUTIONS } from '../../../model/sheet/resolutions';
import { useSheetStore } from '../../../stores/sheetStore';
import { Picker } from '../../../ui/Picker';

const GROUPS = [{ options: PICKER_RESOLUTIONS.map((width) => ({ id: `${width}`, label: `${width}` })) }];

/** How many bits the sheet has. */
export function ResolutionPicker() {
  const { t } = useTranslation();
  const resolution = useSheetStore((sheet) => sheet.int.resolution);
  return (
    <Picker
      label={t('words.resolution')}
      summary={`${resolution}`}
      groups={GROUPS}
      isChosen={(id) => Number(id) === resolution}
      onChoose={(id) => useSheetStore.getState().setIntResolution(Number(id))}
    />
  );
}
