import { existsSync, readFileSync, rmSync } from 'node:fs';
import { join } from 'node:path';
import { until } from './until';

/** Stands in for the user's browser and mail program: a script that writes down the link that it is given. */
export class LinkRecorder {
  readonly #record: string;

  constructor(folder: string) {
    this.#record = join(folder, 'opened');
  }

  /** The text of the script, which takes the link as its only argument. */
  get script(): string {
    return `#!/bin/sh\nprintf '%s' "$1" >'${this.#record}.new'\nmv '${this.#record}.new' '${this.#record}'\n`;
  }

  /** Waits for the link of something in the program to be opened, gives it, and is ready for the next. */
  async opened(from = 'the page'): Promise<string> {
    const link = await until(
      `the link of ${from} to be opened`,
      () => existsSync(this.#record) && readFileSync(this.#record, 'utf8'),
    );
    rmSync(this.#record);
    return link;
  }
}
