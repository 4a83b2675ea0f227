import '../stores/sheetSync';
import { ThemeProvider } from '@emotion/react';
import type { ReactNode } from 'react';
import { Notices } from '../ui/Notices';
import { theme } from '../ui/theme';

/** Everything that the routes need around them: theme and notifications. */
export function App({ children }: { children: ReactNode }) {
  return (
    <ThemeProvider theme={theme}>
      <Notices />
      {children}
    </ThemeProvider>
  );
}
