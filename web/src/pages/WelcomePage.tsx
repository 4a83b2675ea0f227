import Button from '@mui/joy/Button';
import JoyLink from '@mui/joy/Link';
import Typography from '@mui/joy/Typography';
import type { ReactNode } from 'react';
import { useTranslation } from 'react-i18next';
import { Link } from 'react-router';
import { displayName, version } from '../../package.json';
import { FirstSteps } from '../components/FirstSteps';
import { Markdown } from '../components/Markdown';
import { isMsStorePackage } from '../host/hostFlags';
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
            <Typography level="h1">{displayName}</Typography>
            <Typography level="body-sm">{version}</Typography>
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
    <JoyLink component={Link} to={WORDS_ROUTE}>
      {t('tools.words.name')}
    </JoyLink>
  );
  return (
    <Section title={heading}>
      <Typography>{t('welcome.words.text')}</Typography>
      <Typography component="ul" sx={{ paddingLeft: 3, marginBlock: 1.5, lineHeight: 1.7 }}>
        <li>{t('welcome.words.resolutions')}</li>
        <li>{t('welcome.words.words')}</li>
        <li>{t('welcome.words.bases')}</li>
        <li>{t('welcome.words.colors')}</li>
      </Typography>
      <Button component={Link} to={WORDS_ROUTE}>
        {t('welcome.words.open')}
      </Button>
      <FirstSteps />
    </Section>
  );
}

function Section({ title, children }: { title: ReactNode; children: ReactNode }) {
  return (
    <section>
      <Typography level="h3" component="h2" sx={{ marginTop: 2.5, marginBottom: 1 }}>
        {title}
      </Typography>
      {children}
    </section>
  );
}
