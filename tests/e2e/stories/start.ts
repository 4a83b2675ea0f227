import { expect } from '@playwright/test';
import { launchArgs } from '../support/shared/runningProgram';
import type { StoryTest } from '../support/shared/storyTest';

/**
 * What the command line leads to, on every system.
 * @param gone - a relative path of no file, as the system's users write it
 */
export function startStories(test: StoryTest, gone: string) {
  test('without a document the welcome page is shown', async ({ open }) => {
    const program = await open();
    await program.shows('Open Words Tool');
    expect(await launchArgs(program)).toEqual({ error: null, filePath: null });
    expect(program.log()).not.toContain('[Backend]');
  });

  test('a document that is not there is named on the start page', async ({ open }) => {
    const program = await open([gone]);
    await program.shows(`Failed to start Tessary: File not found: ${gone}`);
    expect(await launchArgs(program)).toEqual({ error: `File not found: ${gone}`, filePath: null });
    expect(program.log()).toContain(`\n[Backend Error] File not found: ${gone}\n`);
  });

  test('a second document leaves the welcome page and the usage in the log', async ({ open }) => {
    const program = await open(['one', 'two']);
    await program.shows('Open Words Tool');
    expect(await program.page.evaluate(() => typeof (window as { tessary?: { args?: unknown } }).tessary?.args)).toBe(
      'undefined',
    );
    expect(program.log()).toMatch(/\n\[Backend Error\] [^\n]+\n\nUsage: tessary [^\n]+\n[^]*Path to file to open/);
  });
}
