import type { SnackbarKey } from 'notistack';
import { VscClose } from 'react-icons/vsc';
import styles from './NoticeActions.module.css';

/** Something that a notification offers to do. */
export interface Offer {
  readonly label: string;
  readonly run: () => void;
}

interface NoticeActionsProps {
  id: SnackbarKey;
  offers: readonly Offer[];
  closeLabel: string;
  onClose: (id: SnackbarKey) => void;
}

/** The buttons of a notification: what it offers, and to close it. */
export function NoticeActions({ id, offers, closeLabel, onClose }: NoticeActionsProps) {
  const take = (offer: Offer) => {
    onClose(id);
    offer.run();
  };
  return (
    <div className={styles.actions}>
      {offers.map((offer) => (
        <button key={offer.label} type="button" onClick={() => take(offer)}>
          {offer.label}
        </button>
      ))}
      <button type="button" className={styles.close} aria-label={closeLabel} onClick={() => onClose(id)}>
        <VscClose aria-hidden />
      </button>
    </div>
  );
}
