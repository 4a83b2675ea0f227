import Typography from '@mui/joy/Typography';

/** Holds the place of settings; there is none yet, and nothing links here. */
export function SettingsPage() {
  return (
    <main style={{ padding: 16 }}>
      <Typography level="h1">settings</Typography>
    </main>
  );
}
