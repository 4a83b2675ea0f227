import '../i18n';
import { render } from '@testing-library/react';
import { MemoryRouter } from 'react-router';
import { App } from '../app/App';
import { PageRoutes } from '../app/PageRoutes';

const page: Partial<Window & typeof globalThis> = window;

// jsdom has no media queries; no query of the page matches here.
page.matchMedia ??= (media) =>
  Object.assign(new EventTarget(), {
    media,
    matches: false,
    onchange: null,
    addListener() {},
    removeListener() {},
  });

// jsdom lays nothing out, so no size ever changes.
page.ResizeObserver ??= class {
  observe() {}
  unobserve() {}
  disconnect() {}
};

// jsdom draws nothing, and would say so each time.
HTMLCanvasElement.prototype.getContext = () => null;

/** Renders the whole page at a route. */
export function renderPage(route = '/') {
  return render(
    <App>
      <MemoryRouter initialEntries={[route]}>
        <PageRoutes />
      </MemoryRouter>
    </App>,
  );
}
