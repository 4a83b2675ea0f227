import { expect, test } from '@playwright/test';
import { faintTexts } from './contrast';

const GROUND = 'body { background: #111 } span, input { color: #ccc; background: #222 }';

test('texts that can hardly be read are found: by their color, their ground, a fade, in fields', async ({ page }) => {
  await page.setContent(`<style>${GROUND}</style>
    <span>readable</span> <input value="readable" aria-label="readable" />
    <span style="color: #555">dark</span>
    <span style="background: #aaa">on light</span>
    <p style="opacity: 0.3"><span>faded</span></p>
    <input value="1" aria-label="dark field" style="color: #555" />`);
  const names = (await faintTexts(page)).map((each) => each.replace(/: [\d.]+$/, ''));
  expect(names).toEqual(['dark', 'on light', 'faded', 'dark field']);
});

test('large texts need less contrast, and disabled, hidden and empty ones none', async ({ page }) => {
  await page.setContent(`<style>${GROUND}</style>
    <span style="color: #777">small</span> <span style="color: #777; font-size: 24px">large</span>
    <button disabled style="color: #222; background: #222">disabled</button>
    <span style="color: #222; visibility: hidden">hidden</span> <input style="color: #222" />`);
  expect(await faintTexts(page)).toEqual([expect.stringMatching(/^small: 3\.\d\d$/)]);
});
