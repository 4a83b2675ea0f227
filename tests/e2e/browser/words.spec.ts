import type { Locator } from '@playwright/test';
import { expect, test } from '../support/browser/fixtures';
import { enterText, WordsTool } from '../support/browser/words';

test.use({ viewport: { width: 1280, height: 800 } });

test.describe('rows and words', () => {
  test('a row for every width, then one of colors, most significant word first', async ({
    page,
    enter,
    expectAccessible,
  }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0x0102030405060708' });
    for (const [label, words] of [
      ['Int 64', ['1']],
      ['Int 32', ['2', '1']],
      ['Int 16', ['4', '3', '2', '1']],
      ['Int 8', ['8', '7', '6', '5', '4', '3', '2', '1']],
      ['Color 32', ['2', '1']],
    ] as const) {
      const blocks = tool.row(label).getByRole('group', { name: /word \d+$/ });
      await expect(blocks).toHaveCount(words.length);
      for (const [at, word] of words.entries())
        await expect(blocks.nth(at)).toHaveAccessibleName(`${label} word ${word}`);
    }
    await expect(tool.word(8, 8).value).toHaveValue('1');
    await expect(tool.word(8, 1).value).toHaveValue('8');
    await expect(tool.word(32, 2).base(16)).toHaveValue('1020304');
    await expectAccessible();
  });

  test('words stand below the wider word that holds them', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    const box = async (locator: Locator) => (await locator.boundingBox())!;
    for (const [wide, number] of [
      [64, 1],
      [32, 2],
      [16, 3],
    ] as const) {
      const holder = await box(tool.word(wide, number).group);
      const high = await box(tool.word(wide / 2, number * 2).group);
      const low = await box(tool.word(wide / 2, number * 2 - 1).group);
      expect(high.x).toBeCloseTo(holder.x, 1);
      expect(low.x).toBeCloseTo(holder.x + holder.width / 2, 1);
      expect(low.x + low.width).toBeCloseTo(holder.x + holder.width, 1);
    }
  });

  test('headers show number, width, sign and half', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    const header = tool.word(16, 2).group;
    await expect(header.getByText('HI:32', { exact: true })).toBeVisible();
    await expect(tool.word(16, 1).group.getByText('LO:32')).toBeVisible();
    await expect(tool.word(16, 2).sign).toHaveText('16U');
    await expect(header.getByText('2', { exact: true })).toBeVisible();
  });

  for (const width of [8, 16]) {
    test(`a document's sheet of ${width} bits is shown as it is`, async ({ page, enter, expectAccessible }) => {
      const tool = new WordsTool(page);
      await tool.open(enter, { int: '0xffff', intResolution: width });
      await expect(tool.resolution).toContainText(`${width}`);
      await expect(tool.word(width, 1).value).toHaveValue(`${2 ** width - 1}`);
      await expect(page.getByRole('group', { name: /^Color/ })).toHaveCount(0);
      await expectAccessible();
    });
  }
});

test.describe('text fields', () => {
  test('word 1 of 32 bits set to FFFFFFFF leaves the low half as it is', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0xabcd1234' });
    await enterText(tool.word(32, 2).base(16), 'FFFFFFFF');
    await expect(tool.word(64, 1).base(16)).toHaveValue('FFFFFFFFABCD1234');
    await expect(tool.word(32, 1).base(16)).toHaveValue('ABCD1234');
    await expect(page.getByRole('toolbar', { name: 'Document' })).toContainText('numbers.words.tessary*');
  });

  test('-1 in base 10 needs a signed word', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    const byte = tool.word(8, 1);
    await enterText(byte.value, '-1');
    await expect(tool.warning).toHaveText('Value -1 is out of range. Must be between 0 and 255');
    await expect(tool.word(64, 1).value).toHaveValue('0');
    await expect(byte.value).toHaveValue('-1');

    await byte.sign.click();
    await expect(byte.sign).toHaveText('8S');
    await enterText(byte.value, '-1');
    await expect(byte.value).toHaveValue('-1');
    await expect(byte.base(16)).toHaveValue('FF');
    await expect(tool.word(16, 1).value).toHaveValue('255');
  });

  test('-1 in base 16 is refused', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    await enterText(tool.word(8, 1).base(16), '-1');
    await expect(tool.warning).toHaveText('Negative numbers not supported for base 16');
    await expect(tool.word(64, 1).value).toHaveValue('255');
  });

  test('a signed 32-bit word refuses FFFFFFFF in base 16', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    const word = tool.word(32, 1);
    await word.value.click();
    await word.sign.click();
    await enterText(word.base(16), 'FFFFFFFF');
    await expect(tool.warning).toHaveText('Value FFFFFFFF is out of range. Must be between -80000000 and 7FFFFFFF');
    await expect(tool.word(64, 1).value).toHaveValue('0');
  });

  test('0x alone, nothing, and a strange character are refused with their reasons', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    const word = tool.word(16, 1);
    for (const [base, text, reason] of [
      [16, '0x', 'Empty input after removing prefix'],
      [16, '  ', 'Empty or invalid input'],
      [2, '102', "Invalid character '2' for base 2. Valid characters: 01 (case insensitive)"],
    ] as const) {
      await enterText(word.base(base), text);
      await expect(tool.warning.last()).toContainText(reason);
    }
    await expect(word.value).toHaveValue('255');
  });

  test('Escape and leaving bring the shown text back without a change', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    const { value } = tool.word(16, 1);
    await value.fill('77');
    await value.press('Escape');
    await expect(value).toHaveValue('255');
    await value.fill('77');
    await value.press('Tab');
    await expect(value).toHaveValue('255');
    await expect(page.getByRole('toolbar', { name: 'Document' })).not.toContainText('*');
  });

  test('a committed text is written as every text is, also when the word stays the same', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    const field = tool.word(16, 1).base(16);
    await enterText(field, ' 0x00fF ');
    await expect(field).toHaveValue('FF');
    await expect(page.getByRole('toolbar', { name: 'Document' })).not.toContainText('*');
  });

  test('letters above base 36 are read and written by two alphabets', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    await tool.setConverters('A62');
    await enterText(tool.word(16, 1).base(62), 'A');
    await expect(tool.word(16, 1).value).toHaveValue('36');
    await expect(tool.word(16, 1).base(62)).toHaveValue('a');
  });

  test('texts too long for a line wrap; line breaks that are pasted go', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0, intResolution: 1024 });
    const field = tool.word(1024, 1).base(16);
    await enterText(field, `${'F'.repeat(128)}\n${'0'.repeat(128)}`);
    await expect(field).toHaveValue('F'.repeat(128) + '0'.repeat(128));
    const clipped = await field.evaluate((element) => element.scrollHeight > element.clientHeight);
    expect(clipped).toBe(false);
  });
});

test.describe('floats', () => {
  test('65504 fits 16 bits, 65520 overflows', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    await tool.setConverters('FLOAT');
    const { float, value } = tool.word(16, 1);
    await enterText(float, '65504');
    await expect(value).toHaveValue(String(0x7bff));
    await expect(float).toHaveValue('65504.0');
    await enterText(float, '65520');
    await expect(tool.warning).toHaveText('Value 65520 cannot be represented in 16-bit IEEE754 format (overflow)');
    await expect(value).toHaveValue(String(0x7bff));
  });

  test('after Escape or leaving the decimal integer is shown until the value changes', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0x3f800000' });
    await tool.setConverters('A16', 'FLOAT');
    const word = tool.word(32, 1);
    await expect(word.float).toHaveValue('1.0');
    await word.float.fill('2');
    await word.float.press('Escape');
    await expect(word.float).toHaveValue(String(0x3f800000));
    await expect(word.float).toBeFocused();
    await enterText(word.base(16), '40000000');
    await expect(word.float).toHaveValue('2.0');
    await word.float.focus();
    await word.value.focus();
    await expect(word.float).toHaveValue(String(0x40000000));
  });

  test('Escape leaves an unaltered float as it is', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: '0x3f800000' });
    await tool.setConverters('FLOAT');
    const { float } = tool.word(32, 1);
    await float.focus();
    await float.press('Escape');
    await expect(float).toHaveValue('1.0');
  });

  test('a field above 128 bits can be read and copied but not typed into', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0, intResolution: 256 });
    await tool.setConverters('FLOAT');
    const { float } = tool.word(256, 1);
    await expect(float).toHaveAttribute('readonly', '');
    await float.focus();
    await page.keyboard.type('12');
    await page.keyboard.press('Backspace');
    await page.keyboard.press('Enter');
    await page.keyboard.press('Escape');
    await expect(float).toHaveValue('0.0');
    await expect(tool.warning).toHaveCount(0);
    await page.keyboard.press('Tab');
    await expect(float).not.toBeFocused();
  });

  test('words above 256 bits have no float field; 128 bits refuse input', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0, intResolution: 512 });
    await tool.setConverters('FLOAT');
    await expect(tool.word(512, 1).float).toHaveCount(0);
    await tool.choose(tool.resolution, '128');
    await enterText(tool.word(128, 1).float, '1');
    await expect(tool.warning).toHaveText(
      'Input validation not supported for 128-bit floats (JavaScript limitation). Use printToFloat with hex bit patterns instead.',
    );
  });
});

test.describe('operations', () => {
  for (const [id, bits, from, to] of [
    ['none', 8, 0x80, 0],
    ['none', 16, 0x8001, 0],
    ['all', 8, 0x80, 0xff],
    ['all', 16, 0x80, 0xffff],
    ['bitwise-not', 8, 0x80, 0x7f],
    ['bitwise-not', 16, 0x80, 0xff7f],
    ['shift-left', 8, 0x81, 0x02],
    ['shift-left', 16, 0x8181, 0x0302],
    ['shift-right', 8, 0x80, 0xc0],
    ['shift-right', 16, 0x4000, 0x2000],
    ['shift-right-unsigned', 8, 0x80, 0x40],
    ['shift-right-unsigned', 16, 0x8000, 0x4000],
  ] as const) {
    test(`${id} on a word of ${bits} bits`, async ({ page, enter }) => {
      const tool = new WordsTool(page);
      await tool.open(enter, { int: from });
      await tool.word(bits, 1).operate(id);
      await expect(tool.word(bits, 1).value).toHaveValue(`${to}`);
      await expect(tool.word(bits, 2).value).toHaveValue('0');
    });
  }

  test('>> keeps the top bit of signed words too', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0x80 });
    const byte = tool.word(8, 1);
    await byte.value.click();
    await byte.sign.click();
    await byte.operate('shift-right');
    await expect(byte.value).toHaveValue('-64');
  });

  test('random bits stay within their word', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    await expect
      .poll(async () => {
        await tool.word(8, 2).operate('random');
        return tool.word(8, 2).value.inputValue();
      })
      .not.toBe('0');
    await expect(tool.word(8, 1).value).toHaveValue('0');
    await expect(tool.word(8, 3).value).toHaveValue('0');
  });

  test('the narrowest words have five buttons and a menu for the rest', async ({ page, enter, expectAccessible }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, {});
    const operations = (bits: number) =>
      tool
        .word(bits, 1)
        .group.locator('[data-operation]')
        .evaluateAll((buttons) => buttons.map((button) => button.getAttribute('data-operation')));
    const all = ['none', 'all', 'random', 'bitwise-not', 'shift-left', 'shift-right', 'shift-right-unsigned'];
    expect(await operations(16)).toEqual(all);
    expect(await operations(8)).toEqual(all.slice(0, 5));
    const more = tool.word(8, 1).group.getByRole('button', { name: 'More operations' });
    await more.click();
    await expect(page.getByRole('menuitem')).toHaveCount(2);
    await expectAccessible();
    await page.keyboard.press('Escape');
    await expect(page.getByRole('menu')).toHaveCount(0);
    await expect(more).toBeFocused();
  });
});

test.describe('signs', () => {
  test('the first press only focuses the word, the next one changes its sign', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0xff });
    const { sign, value } = tool.word(8, 1);
    await sign.click();
    await expect(sign).toHaveText('8U');
    await sign.click();
    await expect(sign).toHaveText('8S');
    await expect(sign).toHaveAccessibleName(/^8S/);
    await expect(value).toHaveValue('-1');
    await sign.click();
    await expect(value).toHaveValue('255');
  });

  test('survive a narrower resolution', async ({ page, enter }) => {
    const tool = new WordsTool(page);
    await tool.open(enter, { int: 0 });
    const top = tool.word(8, 8);
    await top.value.click();
    await top.sign.click();
    await tool.choose(tool.resolution, '32');
    await expect(tool.word(8, 5).group).toHaveCount(0);
    await tool.choose(tool.resolution, '64');
    await expect(top.sign).toHaveText('8S');
  });
});
