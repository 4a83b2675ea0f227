import '@fontsource/inter/400.css';
import './styles.css';
import './i18n';
import { createRoot } from 'react-dom/client';
import { BrowserRouter } from 'react-router';
import { answerWindowEvents } from './actions/windowEvents';
import { App } from './app/App';
import { PageRoutes } from './app/PageRoutes';

answerWindowEvents();

createRoot(document.getElementById('root')!).render(
  <App>
    <BrowserRouter>
      <PageRoutes />
    </BrowserRouter>
  </App>,
);
