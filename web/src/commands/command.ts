import { type HostKind, hostKind } from '../host/hostKind';
import type { LabelKey } from '../i18n';
import { type ChordEvent, chordLabels, chordMatches, type KeyChord } from './keyChord';

/**
 * Something a user can do. Key handling, menus, tooltips and the list of keys derive from entries of this kind.
 * @typeParam Target - what it acts on: the document, a tab, a word, a text field or a bit field
 */
export interface Command<Target> {
  readonly id: string;
  readonly keys: readonly KeyChord[];
  /** More keys that do it, which are in no list. */
  readonly moreKeys?: readonly KeyChord[];
  /** Key of its text in the catalogue. */
  readonly label: LabelKey;
  /** Where its keys are the page's own; absent means everywhere. */
  readonly hosts?: readonly HostKind[];
  /** Whether it can be done now. Its keys stay the page's own when it cannot, unless `yields` is set. */
  readonly when?: (target: Target) => boolean;
  /** Leaves its keys to the next command that has them, or to the browser, where it cannot be done. */
  readonly yields?: boolean;
  /** The key also does what it does by itself, such as writing a letter. */
  readonly passesOn?: boolean;
  /** A held key does it again and again. */
  readonly repeats?: boolean;
  /** @param chord - the key that was pressed; absent when it was chosen in another way */
  readonly run: (target: Target, chord?: KeyChord) => void;
}

/** The parts of a keyboard event that running a command needs. */
export type CommandEvent = ChordEvent & Pick<KeyboardEvent, 'repeat' | 'preventDefault'>;

/** Whether this host leaves the command's keys to the page. */
export function isOffered({ hosts }: Pick<Command<never>, 'hosts'>): boolean {
  return hosts?.includes(hostKind) ?? true;
}

/**
 * Runs the command that a pressed key asks for.
 * @returns whether the key was taken, so that nobody else should act on it
 */
export function runCommand<Target>(commands: readonly Command<Target>[], event: CommandEvent, target: Target): boolean {
  for (const command of commands) {
    const keys = command.moreKeys ? [...command.keys, ...command.moreKeys] : command.keys;
    const chord = isOffered(command) && keys.find((each) => chordMatches(each, event));
    if (!chord) continue;
    const isPossible = command.when?.(target) ?? true;
    if (!isPossible && command.yields) continue;
    if (!command.passesOn) event.preventDefault();
    if (isPossible && (command.repeats || !event.repeat)) command.run(target, chord);
    return true;
  }
  return false;
}

/** The command's keys as the user knows them, the usual one first; undefined where the host keeps them. */
export function shortcutLabel(command: Pick<Command<never>, 'keys' | 'hosts'>): string | undefined {
  return isOffered(command) ? chordLabels(command.keys)[0] : undefined;
}
