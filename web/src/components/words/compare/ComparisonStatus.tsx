import { comparisonText, shownComparison } from '../../../actions/sheetComparison';
import { useComparison } from '../../../stores/comparison';
import { useSheetStore } from '../../../stores/sheetStore';
import styles from './ComparisonStatus.module.css';

/** How many bits differ from the sheet that this one is compared with. It was announced when the comparison began. */
export function ComparisonStatus() {
  useComparison((state) => state.comparison);
  useSheetStore(({ id, int }) => `${id} ${int.resolution}`);
  const comparison = shownComparison();
  return comparison && <span className={styles.differences}>{comparisonText(comparison)}</span>;
}
