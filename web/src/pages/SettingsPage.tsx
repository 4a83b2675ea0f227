import Box from '@mui/joy/Box';
import Typography from '@mui/joy/Typography';

/** Holds the place of settings; there is none yet, and nothing links here. */
export function SettingsPage() {
  return (
    <Box component="main" sx={{ padding: 2 }}>
      <Typography level="h1">settings</Typography>
    </Box>
  );
}
