import '../stores/sheetSync';
import { CssVarsProvider } from '@mui/joy/styles';
import type { ReactNode } from 'react';
import { Notices } from '../ui/Notices';
import { theme } from '../ui/theme';

/** Everything that the routes need around them: theme and notifications. */
export function App({ children }: { children: ReactNode }) {
  return (
    // With a key of its own: another program's page at the same port may have chosen a scheme that this one does not have.
    <CssVarsProvider
      theme={theme}
      defaultMode="dark"
      defaultColorScheme="dark"
      colorSchemeStorageKey="tessary-color-scheme"
      disableStyleSheetGeneration
      disableTransitionOnChange
    >
      <Notices />
      {children}
    </CssVarsProvider>
  );
}
