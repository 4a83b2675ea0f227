import i18next from 'i18next';
import { initReactI18next } from 'react-i18next';
import { en } from './en';

void i18next.use(initReactI18next).init({
  lng: 'en',
  fallbackLng: 'en',
  resources: { en: { translation: en } },
  keySeparator: '.',
  // React escapes what it renders; a second escaping would show the escapes.
  interpolation: { escapeValue: false, nestingPrefix: '@(', nestingSuffix: ')' },
  initAsync: false,
  react: { useSuspense: false },
});

export { i18next };
