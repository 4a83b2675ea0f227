import { useEffect, useRef } from 'react';
import { useTranslation } from 'react-i18next';
import { newDocument, openDocument } from '../actions/documentActions';
import { useDocumentTarget } from '../commands/useDocumentCommands';
import { isVsCode } from '../host/hostFlags';
import { ActionLink } from '../ui/ActionLink';
import { MarkedText } from '../ui/MarkedText';
import textStyles from '../ui/text.module.css';
import styles from './EmptyTool.module.css';
import { FirstSteps } from './FirstSteps';

/** What the Words tool shows while there is no sheet. */
export function EmptyTool() {
  const { t } = useTranslation();
  const { navigate } = useDocumentTarget();
  const place = useRef<HTMLDivElement>(null);
  // What had the focus may have gone with the document: the keyboard goes on here.
  useEffect(() => {
    if (document.activeElement === document.body) place.current!.querySelector('a')?.focus();
  }, []);
  return (
    <div ref={place} className={styles.empty}>
      <h1 className={textStyles.h2}>{t('tools.words.welcome')}</h1>
      <p className={textStyles.body}>{t('tools.words.getStarted')}</p>
      <p className={textStyles.body}>
        <MarkedText
          text={t(isVsCode ? 'tools.words.create' : 'tools.words.createOrOpen')}
          parts={{
            create: (text) => <ActionLink onActivate={() => void newDocument(navigate)}>{text}</ActionLink>,
            open: (text) => <ActionLink onActivate={() => void openDocument(navigate)}>{text}</ActionLink>,
          }}
        />
      </p>
      <FirstSteps />
    </div>
  );
}
