import '../i18n';
import { render } from '@testing-library/react';
import type { ComponentType, ReactNode } from 'react';
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
  return renderPageWith(({ children }) => <MemoryRouter initialEntries={[route]}>{children}</MemoryRouter>);
}

/** Renders the whole page with its routes where the router has them. */
export function renderPageWith(Router: ComponentType<{ children: ReactNode }>) {
  return render(
    <App>
      <Router>
        <PageRoutes />
      </Router>
    </App>,
  );
}
