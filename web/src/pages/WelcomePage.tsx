import cc from 'classcat';
import type { ReactNode } from 'react';
import { useTranslation } from 'react-i18next';
import { Link } from 'react-router';
import { displayName, version } from '../../package.json';
import { FirstSteps } from '../components/FirstSteps';
import { Markdown } from '../components/Markdown';
import { isMsStorePackage } from '../host/hostFlags';
import buttonStyles from '../ui/button.module.css';
import textStyles from '../ui/text.module.css';
import { PrivacyPolicyLink } from './PrivacyPolicyLink';
import styles from './WelcomePage.module.css';
import { download, introduction, support } from './welcomeTexts';

const WORDS_ROUTE = '/tools/words';

/** What the application is, what it can do, and where to go from here. */
export function WelcomePage() {
  const { t } = useTranslation();
  return (
    <main className={styles.page}>
      <div className={styles.column}>
        <div className={styles.title}>
          <img src={`${import.meta.env.BASE_URL}favicon.svg`} alt="" width={64} height={64} />
          <div>
            <h1 className={textStyles.h1}>{displayName}</h1>
            <p className={textStyles.small}>{version}</p>
          </div>
        </div>
        <Markdown text={introduction} />
        <WordsSection />
        <hr />
        {isMsStorePackage ? (
          <Section title={t('welcome.resources')}>
            <PrivacyPolicyLink />
          </Section>
        ) : (
          <Section title={t('welcome.download')}>
            <Markdown text={download} />
            <PrivacyPolicyLink />
          </Section>
        )}
        <hr />
        <Section title={t('welcome.support')}>
          <Markdown text={support} />
        </Section>
      </div>
    </main>
  );
}

function WordsSection() {
  const { t } = useTranslation();
  const heading = (
    <Link className={textStyles.link} to={WORDS_ROUTE}>
      {t('tools.words.name')}
    </Link>
  );
  return (
    <Section title={heading}>
      <p className={textStyles.body}>{t('welcome.words.text')}</p>
      <ul className={cc([textStyles.body, styles.abilities])}>
        <li>{t('welcome.words.resolutions')}</li>
        <li>{t('welcome.words.words')}</li>
        <li>{t('welcome.words.bases')}</li>
        <li>{t('welcome.words.colors')}</li>
      </ul>
      <Link className={cc([buttonStyles.button, buttonStyles.primary])} to={WORDS_ROUTE}>
        {t('welcome.words.open')}
      </Link>
      <FirstSteps />
    </Section>
  );
}

function Section({ title, children }: { title: ReactNode; children: ReactNode }) {
  return (
    <section>
      <h2 className={cc([textStyles.h3, styles.heading])}>{title}</h2>
      {children}
    </section>
  );
}
