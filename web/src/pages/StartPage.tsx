import { isVsCode } from '../host/hostFlags';
import { ProblemPage } from './ProblemPage';
import { useStartupLoader } from './useStartupLoader';
import { WelcomePage } from './WelcomePage';

/** The page at "/": what went wrong while starting, else the welcome page. An editor's view waits here for its document. */
export function StartPage() {
  const { loadingError, isReady } = useStartupLoader();
  if (loadingError !== undefined) return <ProblemPage text={loadingError} />;
  return isReady && !isVsCode ? <WelcomePage /> : null;
}
