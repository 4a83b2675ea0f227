import type { FileHandle } from '../host/fileHandle';
import type { BitsSheet } from '../model/sheet/bitsSheet';

/** The open document. */
export interface SheetsState {
  /** In the order of the tabs. */
  readonly sheets: ReadonlyMap<string, BitsSheet>;
  readonly activeSheetKey: string | null;
  /** The open document's file; null while no document is open. */
  readonly documentFile: FileHandle | null;
  readonly isUnsaved: boolean;
}
