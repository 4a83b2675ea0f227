import { useEffect } from 'react';
import { useComparisonRequests } from '../../../actions/sheetComparison';
import { runCommand } from '../../../commands/command';
import { COMPARE_COMMANDS } from '../../../commands/compareCommands';
import { useSheetStore } from '../../../stores/sheetStore';
import { showStatus } from '../../../ui/statusMessage';
import { activeBitState } from '../bitField/activeBit';
import { focusBit } from '../bitField/focusBit';
import { CompareMenu } from './CompareMenu';

/** Lets the keyboard compare sheets and go from one difference to the next. */
export function SheetComparison() {
  const asked = useComparisonRequests((state) => state.asked);
  useEffect(() => {
    // Whatever has the focus has its keys first, so that Escape ends what is nearest. An editor around the page comes last.
    const onKeyDown = (event: KeyboardEvent) => {
      if (event.defaultPrevented || (event.target as Element).closest('[data-popup], [role="dialog"]')) return;
      const { bit } = activeBitState;
      runCommand(COMPARE_COMMANDS, event, { sheetBit: bit && bit.width * bit.index + bit.bit });
    };
    const { body } = document;
    body.addEventListener('keydown', onKeyDown);
    return () => body.removeEventListener('keydown', onKeyDown);
  }, []);
  useEffect(
    () =>
      useComparisonRequests.subscribe(({ visited }, before) => {
        if (!visited || visited === before.visited) return;
        const width = widthOfRow();
        focusBit({ bits: width, index: Math.floor(visited.bit / width) }, visited.bit % width);
        showStatus(visited.text);
      }),
    [],
  );
  return asked && <CompareMenu key={asked.sheetId} {...asked} />;
}

/** The width of the row that the focus is in, so that it stays there; of the widest one where it is in none of integers. */
function widthOfRow(): number {
  const { focusedBlock, numberDefinitions, int } = useSheetStore.getState();
  const [type, width] = focusedBlock;
  const row = numberDefinitions.find(({ bits, visible }) => visible && bits === width);
  return type === 'integer' && row ? width : int.resolution;
}
