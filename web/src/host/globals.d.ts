/** Why a native function failed. A host of another version may send other texts, which are shown as they are. */
type NativeError = import('./nativeErrors').NativeErrorCode | (string & Record<never, never>);

/** What a host may put on the page's globals before the page's script runs. Every part may be missing. */
interface TessaryGlobals {
  os?: { platform?: string; arch?: string };
  backend?: { implementation?: string; msPackageName?: string | null };
  args?: { error?: string | null; filePath?: string | null };
}

/** The answer of a native function that ends with a file path or only with success. */
interface PathEnvelope {
  success: boolean;
  path?: string;
  error?: NativeError;
}

/** The answer of the native read; `data` is missing when the file is empty. */
interface DataEnvelope {
  success: boolean;
  data?: string;
  error?: NativeError;
}

interface EditorExtensionApi {
  postMessage(message: unknown): void;
  getState(): unknown;
  setState(state: unknown): void;
}

interface FilePickerTypes {
  types?: { description: string; accept: Record<string, readonly string[]> }[];
}

interface Window {
  tessary?: TessaryGlobals;
  showOpenDialog?: (filterName?: string, filterPattern?: string) => Promise<PathEnvelope>;
  showSaveDialog?: (
    suggestedName: string,
    filterName?: string,
    filterPattern?: string,
    defaultExtension?: string,
  ) => Promise<PathEnvelope>;
  readFile?: (path: string) => Promise<DataEnvelope>;
  writeFile?: (path: string, content: string) => Promise<{ success: boolean; error?: NativeError }>;
  openExternalUrl?: (url: string) => unknown;
  showOpenFilePicker?: (options: FilePickerTypes & { multiple?: boolean }) => Promise<FileSystemFileHandle[]>;
  showSaveFilePicker?: (options: FilePickerTypes & { suggestedName?: string }) => Promise<FileSystemFileHandle>;
}

interface Navigator {
  /** Safari's word for an installed page. */
  standalone?: boolean;
}

declare var acquireVsCodeApi: (() => EditorExtensionApi) | undefined;
