import { i18next } from '../../../i18n';
import styles from './panels.module.css';

interface ValueChangeProps {
  /** In bits. */
  width: number;
  before: bigint;
  /** Undefined while there is none. */
  after: bigint | undefined;
}

const GROUP = 8;

/** A value as it is and as it would be, with the digits marked that change. */
export function ValueChange({ width, before, after }: ValueChangeProps) {
  const [now, then] = [before, after].map((value) => value?.toString(16).padStart(Math.ceil(width / 4), '0'));
  const parts = then?.match(/./g)!.map((digit, place) => {
    const isGroup = place > 0 && (then.length - place) % GROUP === 0;
    return { digit, isGroup, isChanged: digit !== now![place] };
  });
  return (
    <dl className={styles.values}>
      <dt>{i18next.t('panels.now')}</dt>
      <dd>{now!.replace(new RegExp(`(?!^)(?=(?:.{${GROUP}})+$)`, 'g'), ' ')}</dd>
      <dt>{i18next.t('panels.then')}</dt>
      <dd>
        {parts?.map(({ digit, isGroup, isChanged }, place) => (
          <span key={place}>
            {isGroup && ' '}
            {isChanged ? <mark>{digit}</mark> : digit}
          </span>
        ))}
      </dd>
    </dl>
  );
}
