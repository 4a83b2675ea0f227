import Alert from '@mui/joy/Alert';
import { displayName } from '../../package.json';
import { visuallyHidden } from '../ui/visuallyHidden';
import { useStartupLoader } from './useStartupLoader';
import { WelcomePage } from './WelcomePage';

/** The page at "/": what went wrong while starting, else the welcome page. */
export function StartPage() {
  const { loadingError, isReady } = useStartupLoader();
  if (loadingError !== undefined) {
    return (
      <main>
        <h1 style={visuallyHidden}>{displayName}</h1>
        <Alert color="danger" variant="outlined" sx={{ margin: 2, whiteSpace: 'pre-wrap', overflowWrap: 'anywhere' }}>
          {loadingError}
        </Alert>
      </main>
    );
  }
  return isReady ? <WelcomePage /> : null;
}
