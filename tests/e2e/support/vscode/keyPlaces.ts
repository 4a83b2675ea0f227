import type { Locator } from '@playwright/test';
import type { WordsView } from './editorWindow';

/** Where in the page keys have a meaning of their own: a bit, a sheet's tab, a field, a word's header. */
export function keyPlaces(view: WordsView): Locator[] {
  const header = view.frame.getByRole('toolbar', { name: 'Header' }).first();
  return [view.frame.locator('canvas').first(), view.sheets.first(), view.value(), header.getByRole('button').first()];
}

/** Puts the keyboard somewhere, and from then on takes notice of whether the page uses what is pressed. */
export function enterPlace(place: Locator): Promise<void> {
  return place.evaluate((element: HTMLElement) => {
    const { body } = document;
    const notice = (event: Event) => {
      if (event.defaultPrevented || event.type === 'paste') body.dataset.used = 'yes';
    };
    if (body.dataset.used === undefined) {
      addEventListener('keydown', notice, true); // the page's commands of words let nothing pass that they take
      body.addEventListener('keydown', notice);
      addEventListener('paste', notice, true);
    }
    body.dataset.used = 'no';
    element.focus();
  });
}

/** Whether the page has used what was pressed since the keyboard was put there. */
export async function isUsedByPage(view: WordsView): Promise<boolean> {
  return (await view.body.getAttribute('data-used')) === 'yes';
}
