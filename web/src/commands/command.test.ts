// @vitest-environment jsdom
import { describe, expect, test, vi } from 'vitest';
import { BIT_FIELD_COMMANDS } from './bitFieldCommands';
import { type Command, isOffered, runCommand, shortcutLabel } from './command';
import { COMPARE_COMMANDS } from './compareCommands';
import { DOCUMENT_COMMANDS, PAGE_COMMANDS } from './documentCommands';
import { FIELD_COMMANDS } from './fieldCommands';
import { FRAME_COMMANDS } from './frameCommands';
import { HISTORY_COMMANDS } from './historyCommands';
import { keyGroups } from './keyList';
import { TAB_COMMANDS } from './tabCommands';
import { TOOLBAR_COMMANDS } from './toolbarCommands';
import { WORD_ACTIONS } from './wordActions';
import { WORD_COMMANDS } from './wordCommands';

function press(key: string, repeat = false) {
  const modifiers = { ctrlKey: false, metaKey: false, altKey: false, shiftKey: false };
  return { ...modifiers, key, repeat, preventDefault: vi.fn() };
}

function command(changes: Partial<Command<string>> = {}) {
  const run = vi.fn();
  return { run, commands: [{ id: 'x', keys: ['F2', 'F3'], label: 'ui.new', run, ...changes }] as Command<string>[] };
}

describe('a pressed key', () => {
  test('runs its command on the target and is kept from the browser', () => {
    const { run, commands } = command();
    const event = press('F3');
    expect(runCommand(commands, event, 'target')).toBe(true);
    expect(run).toHaveBeenCalledExactlyOnceWith('target', 'F3');
    expect(event.preventDefault).toHaveBeenCalledOnce();
  });

  test('runs a command also where no list names it', () => {
    const { run, commands } = command({ moreKeys: ['F4'] });
    expect(runCommand(commands, press('F4'), 'target')).toBe(true);
    expect(run).toHaveBeenCalledExactlyOnceWith('target', 'F4');
    expect(shortcutLabel(commands[0]!)).toBe('F2');
  });

  test('of no command is left alone', () => {
    const { run, commands } = command();
    const event = press('F4');
    expect(runCommand(commands, event, 'target')).toBe(false);
    expect(run).not.toHaveBeenCalled();
    expect(event.preventDefault).not.toHaveBeenCalled();
  });

  test('is kept from the browser also where its command cannot be done now', () => {
    const { run, commands } = command({ when: () => false });
    const event = press('F2');
    expect(runCommand(commands, event, 'target')).toBe(true);
    expect(run).not.toHaveBeenCalled();
    expect(event.preventDefault).toHaveBeenCalledOnce();
  });

  test('is left to the browser by a command that yields', () => {
    const { commands } = command({ when: () => false, yields: true });
    const event = press('F2');
    expect(runCommand(commands, event, 'target')).toBe(false);
    expect(event.preventDefault).not.toHaveBeenCalled();
  });

  test('does what it does by itself, too, where its command passes it on', () => {
    const { run, commands } = command({ passesOn: true });
    const event = press('F2');
    expect(runCommand(commands, event, 'target')).toBe(true);
    expect(run).toHaveBeenCalledOnce();
    expect(event.preventDefault).not.toHaveBeenCalled();
  });

  test.each([
    { repeats: false, runs: 0 },
    { repeats: true, runs: 1 },
  ])('that is held runs a command with repeats $repeats $runs more times', ({ repeats, runs }) => {
    const { run, commands } = command({ repeats });
    expect(runCommand(commands, press('F2', true), 'target')).toBe(true);
    expect(run).toHaveBeenCalledTimes(runs);
  });

  test('belongs to the host where the command names other hosts', () => {
    const { run, commands } = command({ hosts: ['native', 'editor'] });
    expect(runCommand(commands, press('F2'), 'target')).toBe(false);
    expect(run).not.toHaveBeenCalled();
    expect(shortcutLabel(commands[0]!)).toBeUndefined();
  });
});

describe('the list of keys', () => {
  const all = [
    DOCUMENT_COMMANDS,
    HISTORY_COMMANDS,
    PAGE_COMMANDS,
    FRAME_COMMANDS,
    TOOLBAR_COMMANDS,
    TAB_COMMANDS,
    COMPARE_COMMANDS,
    WORD_COMMANDS,
    WORD_ACTIONS,
    FIELD_COMMANDS,
    BIT_FIELD_COMMANDS,
  ] as const;

  test('names every command that has keys in this host', () => {
    const offered = all.flat().filter((each) => each.keys.length > 0 && isOffered(each));
    expect(keyGroups().flatMap(({ entries }) => entries.map(({ id }) => id))).toEqual(offered.map(({ id }) => id));
  });

  test('names of several keys for one thing those that a reader needs', () => {
    const entries = keyGroups().flatMap((each) => each.entries);
    expect(entries.find(({ id }) => id === 'page.reload')?.keys).toBe('F5, Ctrl+R');
  });

  test('has no key twice among commands that can act at the same place', () => {
    // What passes its key on acts beside the others, not in their place.
    const exclusive = FRAME_COMMANDS.filter(({ passesOn }) => !passesOn);
    // What has the focus takes Escape before these do, and a tab has a menu of its own.
    const isNear = ({ id }: { id: string }) => id !== 'compare.end' && id !== 'range.end';
    const pages = [...DOCUMENT_COMMANDS, ...HISTORY_COMMANDS, ...PAGE_COMMANDS];
    const everywhere = [...pages, ...exclusive, ...COMPARE_COMMANDS.filter(isNear), ...WORD_ACTIONS.filter(isNear)];
    for (const local of [
      TAB_COMMANDS.filter(({ id }) => id !== 'tab.menu'),
      [...WORD_COMMANDS, ...TOOLBAR_COMMANDS],
      [...WORD_COMMANDS, ...FIELD_COMMANDS],
      [...WORD_COMMANDS, ...BIT_FIELD_COMMANDS],
    ]) {
      const commands: readonly Pick<Command<never>, 'keys' | 'moreKeys'>[] = [...everywhere, ...local];
      const keys = commands.flatMap((each) => [...each.keys, ...(each.moreKeys ?? [])]);
      expect(new Set(keys).size).toBe(keys.length);
    }
  });
});
