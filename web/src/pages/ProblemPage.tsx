import Alert from '@mui/joy/Alert';
import { displayName } from '../../package.json';
import { visuallyHidden } from '../ui/visuallyHidden';

/** Why there is no document to show. */
export function ProblemPage({ text }: { text: string }) {
  return (
    <main>
      <h1 style={visuallyHidden}>{displayName}</h1>
      <Alert color="danger" variant="outlined" sx={{ margin: 2, whiteSpace: 'pre-wrap', overflowWrap: 'anywhere' }}>
        {text}
      </Alert>
    </main>
  );
}
