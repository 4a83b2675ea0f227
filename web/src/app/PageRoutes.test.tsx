// @vitest-environment jsdom
import { cleanup, screen, within } from '@testing-library/react';
import userEvent from '@testing-library/user-event';
import { afterEach, describe, expect, test } from 'vitest';
import { renderPage } from '../testing/renderPage';

afterEach(cleanup);

describe('the rail', () => {
  test('leads to the Words tool and back, and marks the tool that is open', async () => {
    renderPage('/');
    const words = within(screen.getByRole('navigation')).getByRole('link', { name: 'Words' });
    expect(words.getAttribute('aria-current')).toBeNull();
    await userEvent.click(words);
    expect(words.getAttribute('aria-current')).toBe('page');
    await userEvent.click(screen.getByRole('link', { name: 'About the app' }));
    expect(await screen.findByRole('heading', { level: 1, name: 'Tessary' })).toBeDefined();
  });
});

describe('the welcome page', () => {
  test('says version and abilities in their order', async () => {
    renderPage('/');
    await screen.findByRole('heading', { level: 1, name: 'Tessary' });
    expect(screen.getByText('1.5.4')).toBeDefined();
    expect(screen.getAllByRole('heading', { level: 2 }).map(({ textContent }) => textContent)).toEqual([
      'Words',
      'Download',
      'Support',
    ]);
    expect(screen.getAllByRole('listitem').map(({ textContent }) => textContent)).toEqual([
      'Supports integers from 32 and up to 1024 bit resolution',
      'View each base integer resolution split words',
      'Convert each integer to various bases from 2 to 64 and float values',
      'View and manipulate integer RGBA colors',
      'Open a sample document',
      'Drop a document file anywhere on this page',
      'Ctrl+O Open',
      'F1 List and search all keys',
      'See every key',
    ]);
  });

  test('external links open a new tab where no host opens them', async () => {
    renderPage('/');
    const link = await screen.findByRole('link', { name: 'IEEE 754 floating point' });
    expect(link.getAttribute('target')).toBe('_blank');
    expect(link.getAttribute('href')).toBe('https://en.wikipedia.org/wiki/IEEE_754');
  });

  test('the privacy policy opens in the page', async () => {
    renderPage('/');
    await userEvent.click(await screen.findByRole('link', { name: 'Privacy policy' }));
    expect((await screen.findByRole('dialog', { name: 'Privacy policy' })).textContent).toContain('no telemetry');
  });
});

test('the placeholder for settings says "settings"', async () => {
  renderPage('/settings');
  expect((await screen.findByRole('main')).textContent).toBe('settings');
});
