/** A command for which files without write permission are read-only. Root's right to write them all the same is given up. */
export function asOrdinaryUser(...command: string[]): string[] {
  if (process.getuid?.() !== 0) return command;
  return ['setpriv', '--bounding-set=-dac_override,-dac_read_search', ...command];
}
