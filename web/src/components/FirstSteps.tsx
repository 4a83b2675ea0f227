import cc from 'classcat';
import { useTranslation } from 'react-i18next';
import { openSample } from '../actions/documentActions';
import { toggleKeysHelp } from '../actions/keysHelp';
import { shortcutLabel } from '../commands/command';
import { DOCUMENT_COMMANDS } from '../commands/documentCommands';
import { FRAME_COMMANDS } from '../commands/frameCommands';
import { useDocumentTarget } from '../commands/useDocumentCommands';
import { isVsCode } from '../host/hostFlags';
import { labelText } from '../i18n';
import { ActionLink } from '../ui/ActionLink';
import textStyles from '../ui/text.module.css';
import styles from './FirstSteps.module.css';

/** What somebody can do who sees the program for the first time. */
export function FirstSteps() {
  const { t } = useTranslation();
  const { navigate } = useDocumentTarget();
  const commands = [...DOCUMENT_COMMANDS.slice(0, 2), ...FRAME_COMMANDS.filter(({ id }) => id === 'help.keys')];
  const keys = commands.flatMap((command) => {
    const shown = shortcutLabel(command);
    return shown ? [{ shown, label: labelText(command.label) }] : [];
  });
  if (isVsCode) return null;
  return (
    <ul className={cc([textStyles.body, styles.steps])}>
      <li>
        <ActionLink onActivate={() => void openSample(navigate)}>{t('firstSteps.sample')}</ActionLink>
      </li>
      <li>{t('firstSteps.drop')}</li>
      {keys.map(({ shown, label }) => (
        <li key={shown}>
          <kbd>{shown}</kbd> {label}
        </li>
      ))}
      <li>
        <ActionLink onActivate={toggleKeysHelp}>{t('firstSteps.keys')}</ActionLink>
      </li>
    </ul>
  );
}
