import textStyles from '../ui/text.module.css';

/** Holds the place of settings; there is none yet, and nothing links here. */
export function SettingsPage() {
  return (
    <main style={{ padding: 16 }}>
      <h1 className={textStyles.h1}>settings</h1>
    </main>
  );
}
