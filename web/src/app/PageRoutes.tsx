import { Navigate, Route, Routes } from 'react-router';
import { SettingsPage } from '../pages/SettingsPage';
import { StartPage } from '../pages/StartPage';
import { WordsPage } from '../pages/WordsPage';
import { Frame } from './Frame';

/** The page's own routes. A server answers only "/", so the page is always entered there. */
export function PageRoutes() {
  return (
    <Routes>
      <Route path="/" element={<Frame />}>
        <Route index element={<StartPage />} />
        <Route path="tools/words" element={<WordsPage />} />
        <Route path="settings" element={<SettingsPage />} />
      </Route>
      {/* Where a web server shows the page under its file's name. */}
      <Route path="/index.html" element={<Navigate to="/" replace />} />
    </Routes>
  );
}
