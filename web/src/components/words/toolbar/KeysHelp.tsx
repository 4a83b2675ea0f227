import { useTranslation } from 'react-i18next';
import { useSnapshot } from 'valtio';
import { keysHelp, toggleKeysHelp } from '../../../actions/keysHelp';

/** Opens the list of keys. */
export function KeysHelp() {
  const { t } = useTranslation();
  const { isOpen } = useSnapshot(keysHelp);
  return (
    <button type="button" aria-haspopup="dialog" aria-expanded={isOpen} aria-keyshortcuts="F1" onClick={toggleKeysHelp}>
      {t('words.keys')}
    </button>
  );
}
