import { expect, test } from 'vitest';
import { hasFlagOption, SCROLL_LOCK_HORIZONTAL, withFlagOption, withFlagOptionToggled } from './flagOptions';

test('a switch is off until it is turned on', () => {
  expect(hasFlagOption([], SCROLL_LOCK_HORIZONTAL)).toBe(false);
  expect(hasFlagOption(withFlagOption([], SCROLL_LOCK_HORIZONTAL), 'scroll-lock-horizontal')).toBe(true);
});

test('turning a switch on twice names it once', () => {
  expect(withFlagOption(withFlagOption([], 'a'), 'a')).toEqual(['a']);
});

test('turning a switch off leaves the others on', () => {
  expect(withFlagOption(['a', 'b'], 'a', false)).toEqual(['b']);
});

test('toggling twice gives the switches of before', () => {
  const on = withFlagOptionToggled(['a'], 'b');
  expect(on).toEqual(['a', 'b']);
  expect(withFlagOptionToggled(on, 'b')).toEqual(['a']);
});
