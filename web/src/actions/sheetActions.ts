import { useSheetsStore } from '../stores/sheetsStore';

/** Shows the sheet beside the one that is shown, in tab order; nothing happens at either end. */
export function showNeighbourSheet(step: 1 | -1): void {
  const { sheets, activeSheetKey, setActiveSheet } = useSheetsStore.getState();
  const ids = [...sheets.keys()];
  const id = activeSheetKey === null ? undefined : ids[ids.indexOf(activeSheetKey) + step];
  if (id !== undefined) setActiveSheet(id);
}
