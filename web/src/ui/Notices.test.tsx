// @vitest-environment jsdom
import { cleanup, render, screen } from '@testing-library/react';
import { useLayoutEffect } from 'react';
import { afterEach, expect, test } from 'vitest';
import { Notices } from './Notices';
import { areNoticesOpen, closeNotices, showError, showWarning } from './notifications';

afterEach(() => {
  closeNotices();
  cleanup();
});

test('the first notifications are shown, though their library is made ready only then', async () => {
  render(<Notices />);
  showError('No room');
  showWarning('Too wide');
  expect(areNoticesOpen()).toBe(true);
  expect(await screen.findByText('No room')).toBeDefined();
  expect(screen.getByText('Too wide')).toBeDefined();
});

test('what is reported before the first frame is shown', async () => {
  const Early = () => {
    useLayoutEffect(() => showWarning('Back'), []);
    return null;
  };
  render(
    <>
      <Notices />
      <Early />
    </>,
  );
  expect(await screen.findByText('Back')).toBeDefined();
});

test('one that is closed before its library is ready does not come', async () => {
  render(<Notices />);
  showError('Gone');
  closeNotices();
  expect(areNoticesOpen()).toBe(false);
  showError('Here');
  expect(await screen.findByText('Here')).toBeDefined();
  expect(screen.queryByText('Gone')).toBeNull();
});
