import Alert from '@mui/joy/Alert';
import { useStartupLoader } from './useStartupLoader';
import { WelcomePage } from './WelcomePage';

/** The page at "/": what went wrong while starting, else the welcome page. */
export function StartPage() {
  const { loadingError, isReady } = useStartupLoader();
  if (loadingError !== undefined) {
    return (
      <Alert color="danger" variant="outlined" sx={{ margin: 2, whiteSpace: 'pre-wrap', overflowWrap: 'anywhere' }}>
        {loadingError}
      </Alert>
    );
  }
  return isReady ? <WelcomePage /> : null;
}
