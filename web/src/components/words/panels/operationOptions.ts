import { OPERATION_NAMES } from '../../../model/operations/readOperation';

/** One line of the list below an operation that is being typed. */
export interface OperationOption {
  readonly id: string;
  readonly label: string;
  readonly hint: string;
  /** What takes the place of the typed text. */
  readonly text?: string;
  /** The text is whole: choosing the line applies it. */
  readonly isWhole?: boolean;
  /** A command that runs instead. */
  readonly command?: string;
}

interface Offered {
  readonly history: readonly string[];
  readonly sheets: readonly string[];
  readonly commands: readonly { readonly id: string; readonly label: string }[];
  /** What an operation does. */
  readonly help: (name: string) => string;
}

/** What fits a text that is being typed: operations that were applied, operations by name, sheets after @, commands. */
export function operationOptions(text: string, { history, sheets, commands, help }: Offered): OperationOption[] {
  const typed = text.trimStart().toLowerCase();
  const [before, name] = /^([^@]*@)"?([^"]*)$/.exec(text)?.slice(1) ?? [];
  if (before !== undefined) {
    const named = sheets.filter((sheet) => sheet.toLowerCase().startsWith(name!.toLowerCase()));
    return named.map((sheet) => ({
      id: `@${sheet}`,
      label: sheet,
      hint: '',
      text: `${before}"${sheet}"`,
      isWhole: true,
    }));
  }
  const known = history.filter((each) => each.toLowerCase().startsWith(typed) && each !== text);
  const operations = OPERATION_NAMES.filter((each) => each.name.startsWith(typed));
  const fitting = typed === '' ? [] : commands.filter(({ label }) => label.toLowerCase().includes(typed));
  return [
    ...known
      .slice(0, typed === '' ? 5 : 2)
      .map((each) => ({ id: `>${each}`, label: each, hint: '', text: each, isWhole: true })),
    ...operations.map(({ name: operation, placeholder }) => ({
      id: operation,
      label: `${operation} ${placeholder}`.trim(),
      hint: help(operation),
      text: placeholder === '' ? operation : `${operation} `,
      isWhole: placeholder === '',
    })),
    ...fitting.map(({ id, label }) => ({ id, label, hint: '', command: id })),
  ];
}
