import type { FileType } from '../document/fileType';
import type { FileHandle } from './fileHandle';
import { USER_CANCELLED } from './nativeErrors';

const JSON_TYPE = 'application/json';

/** Lets the user choose a file of which the browser keeps a handle. Needs the File System Access interface. */
export async function openInBrowser(type?: FileType): Promise<{ fileHandle: FileHandle; content: string }> {
  const [handle] = await window.showOpenFilePicker!({ ...pickerTypes(type), multiple: false });
  if (!handle) throw new Error('No file selected');
  const file = await handle.getFile();
  return { fileHandle: { name: file.name, handle }, content: await file.text() };
}

/** Writes to the file of a handle, or to one that the user chooses. Needs the File System Access interface. */
export async function saveInBrowser(
  content: string,
  known: FileSystemFileHandle | undefined,
  suggestedName: string,
  type?: FileType,
): Promise<FileHandle> {
  const handle = known ?? (await window.showSaveFilePicker!({ ...pickerTypes(type), suggestedName }));
  const writable = await handle.createWritable();
  await writable.write(content);
  await writable.close();
  return { name: handle.name, handle };
}

/** Lets the user choose a file through a file input, which every browser has. */
export async function openThroughInput(type?: FileType): Promise<{ fileHandle: FileHandle; content: string }> {
  const file = await chooseThroughInput(type?.extensions.join(',') ?? '*');
  return { fileHandle: { name: file.name }, content: await file.text() };
}

function chooseThroughInput(accept: string): Promise<File> {
  const input = document.createElement('input');
  input.type = 'file';
  input.accept = accept;
  input.hidden = true;
  document.body.append(input); // some browsers only open the dialog of an input that is part of the page
  const chosen = new Promise<File>((resolve, reject) => {
    input.addEventListener('change', () => {
      const file = input.files?.[0];
      if (file) resolve(file);
      else reject(new Error('No file selected'));
    });
    input.addEventListener('cancel', () => reject(new Error(USER_CANCELLED)));
  });
  input.click();
  return chosen.finally(() => input.remove());
}

/** Hands a text to the browser's downloads. Where it ends up stays the browser's secret. */
export function saveAsDownload(content: string, name: string): void {
  const url = URL.createObjectURL(new Blob([content], { type: JSON_TYPE }));
  const link = document.createElement('a');
  link.href = url;
  link.download = name;
  link.click();
  // The download may begin after this task; the address must live until then.
  setTimeout(() => URL.revokeObjectURL(url), 60_000);
}

function pickerTypes(type?: FileType): FilePickerTypes {
  if (!type) return {};
  return { types: [{ description: type.name, accept: { [type.mimeType || JSON_TYPE]: type.extensions } }] };
}
