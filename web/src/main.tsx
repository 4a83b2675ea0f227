import './host/launchRead'; // first: the host reads while the rest is made ready
import '@fontsource/inter/400.css';
import './ui/theme.css';
import './styles.css';
import './i18n';
import { createRoot } from 'react-dom/client';
import { answerWindowEvents } from './actions/windowEvents';
import { App } from './app/App';
import { PageRouter } from './app/PageRouter';
import { PageRoutes } from './app/PageRoutes';
import { restrictEngineMenu } from './host/engineMenu';

answerWindowEvents();
restrictEngineMenu();

createRoot(document.getElementById('root')!).render(
  <App>
    <PageRouter>
      <PageRoutes />
    </PageRouter>
  </App>,
);
