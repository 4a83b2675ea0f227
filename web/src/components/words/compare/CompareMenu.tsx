import { useRef } from 'react';
import type { FocusOrigin } from '../../../actions/focusOrigin';
import { beginComparison, endAsking } from '../../../actions/sheetComparison';
import { i18next } from '../../../i18n';
import { setBits } from '../../../model/integer/setBits';
import { differencesOf } from '../../../stores/comparison';
import { useSheetsStore } from '../../../stores/sheetsStore';
import { PopupMenu } from '../../../ui/PopupMenu';

/** No line shows more than this of a name, however long a document makes it. */
const LONGEST_NAME = 60;

interface CompareMenuProps {
  sheetId: string;
  /** Where the focus goes back to. */
  origin: FocusOrigin | undefined;
}

/** The other sheets, each with how many bits differ, of which one is chosen to compare a sheet with. */
export function CompareMenu({ sheetId, origin }: CompareMenuProps) {
  const sheets = useSheetsStore((store) => store.sheets);
  const anchor = useRef(origin?.element ?? null);
  const sheet = sheets.get(sheetId);
  const others = [...sheets.values()].filter(({ id }) => id !== sheetId);
  if (!sheet || others.length === 0) return null;
  const items = others.map((other) => {
    const count = setBits(differencesOf(sheet, other)).length;
    const { displayName } = other;
    const label = displayName.length > LONGEST_NAME ? `${displayName.slice(0, LONGEST_NAME)}…` : displayName;
    return { id: other.id, label, hint: i18next.t('compare.count', { count }) };
  });
  return (
    <PopupMenu
      anchor={anchor}
      at={document.querySelector('[role="tab"][aria-selected="true"]')?.getBoundingClientRect() ?? ORIGIN}
      name={i18next.t('compare.choose')}
      items={items}
      onClose={endAsking}
      onChoose={(other) => beginComparison(sheetId, other)}
    />
  );
}

const ORIGIN = { left: 0, top: 0, bottom: 0 };
