import i18next, { type ParseKeys } from 'i18next';
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

/** Key of a text that names something to do; it has no places to fill in. */
export type LabelKey = Extract<ParseKeys, `commands.${string}` | `ui.${string}` | `words.operations.${string}`>;

const labels = new Map<LabelKey, string>();

/** A text that names something to do, looked up once: each word of a sheet shows the same ones. */
export function labelText(key: LabelKey): string {
  const known = labels.get(key);
  if (known !== undefined) return known;
  const text = i18next.t(key);
  labels.set(key, text);
  return text;
}
