import { describe, expect, test } from 'vitest';
import { briefMessage } from './briefMessage';

const MILLION = '7'.repeat(1_000_000);

describe('a message', () => {
  test.each([
    ['of words stays as it is', 'Empty or invalid input', 'Empty or invalid input'],
    ['shows 64 bits in full', `Not above ${'1'.repeat(64)}`, `Not above ${'1'.repeat(64)}`],
    [
      'shows the ends of longer numbers',
      `Value ${MILLION} is out of range. Must be between 0 and 255`,
      `Value ${'7'.repeat(24)}…${'7'.repeat(8)} is out of range. Must be between 0 and 255`,
    ],
    ['of many words ends before they do', 'so '.repeat(100), `${'so '.repeat(93)}…`],
  ])('%s', (_, message, brief) => expect(briefMessage(message)).toBe(brief));
});
