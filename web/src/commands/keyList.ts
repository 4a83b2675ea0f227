import type { LabelKey } from '../i18n';
import { BIT_FIELD_COMMANDS } from './bitFieldCommands';
import { type Command, isOffered } from './command';
import { COMPARE_COMMANDS } from './compareCommands';
import { DOCUMENT_COMMANDS, PAGE_COMMANDS } from './documentCommands';
import { FIELD_COMMANDS } from './fieldCommands';
import { FRAME_COMMANDS } from './frameCommands';
import { HISTORY_COMMANDS } from './historyCommands';
import { chordLabels } from './keyChord';
import { TAB_COMMANDS } from './tabCommands';
import { TOOLBAR_COMMANDS } from './toolbarCommands';
import { WORD_ACTIONS } from './wordActions';
import { WORD_COMMANDS } from './wordCommands';

/** Commands that act on one kind of thing, under the name of that thing. */
export interface KeyGroup {
  readonly title: LabelKey;
  readonly entries: readonly { readonly id: string; readonly keys: string; readonly label: LabelKey }[];
}

/** Every key there is in this host, for a user to read. */
export const keyGroups = (): readonly KeyGroup[] =>
  [
    group('commands.groups.document', [...DOCUMENT_COMMANDS, ...HISTORY_COMMANDS, ...PAGE_COMMANDS]),
    group('commands.groups.frame', [...FRAME_COMMANDS, ...TOOLBAR_COMMANDS]),
    group('commands.groups.tabs', [...TAB_COMMANDS, ...COMPARE_COMMANDS]),
    group('commands.groups.words', [...WORD_COMMANDS, ...WORD_ACTIONS]),
    group('commands.groups.fields', FIELD_COMMANDS),
    group('commands.groups.bits', BIT_FIELD_COMMANDS),
  ].filter(({ entries }) => entries.length > 0);

function group(
  title: LabelKey,
  commands: readonly Pick<Command<never>, 'id' | 'keys' | 'label' | 'hosts'>[],
): KeyGroup {
  const entries = commands
    .filter((command) => command.keys.length > 0 && isOffered(command))
    .map(({ id, keys, label }) => ({ id, keys: chordLabels(keys).join(', '), label }));
  return { title, entries };
}
