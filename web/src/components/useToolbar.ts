import { type FocusEvent, type KeyboardEvent, type RefObject, useLayoutEffect } from 'react';
import { runCommand } from '../commands/command';
import { TOOLBAR_COMMANDS } from '../commands/toolbarCommands';
import { keepTabStop, makeTabStop } from '../ui/tabStop';

/** Makes a bar of buttons one stop of the Tab key, with the arrow keys, Home and End inside. */
export const toolbarHandlers = { onFocus: makeTargetTabStop, onKeyDown: moveInBar };

/** Keeps the stop of a bar whose buttons come, go or are disabled. */
export function useTabStop(bar: RefObject<HTMLElement | null>): void {
  useLayoutEffect(() => {
    if (bar.current) keepTabStop(buttonsOf(bar.current));
  });
}

function makeTargetTabStop({ currentTarget, target }: FocusEvent<HTMLElement>): void {
  const buttons = buttonsOf(currentTarget);
  if (buttons.includes(target)) makeTabStop(target, buttons);
}

function moveInBar(event: KeyboardEvent<HTMLElement>): void {
  const buttons = buttonsOf(event.currentTarget).filter((button) => !button.matches(':disabled'));
  const index = buttons.indexOf(event.target as HTMLElement);
  if (index < 0) return;
  runCommand(TOOLBAR_COMMANDS, event, {
    move(place) {
      const next = { previous: index - 1, next: index + 1, first: 0, last: buttons.length - 1 }[place];
      buttons[next]?.focus();
    },
  });
}

function buttonsOf(bar: HTMLElement): HTMLElement[] {
  return [...bar.querySelectorAll<HTMLElement>('button')];
}
