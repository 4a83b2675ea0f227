/** Holds the place of settings; there is none yet, and nothing links here. */
export function SettingsPage() {
  return <main>settings</main>;
}
