import { useEffect } from 'react';
import { openFileOf } from '../actions/documentActions';
import { useDocumentTarget } from '../commands/useDocumentCommands';
import { hasExtensionOf, WORDS_FILE_TYPE } from '../document/fileType';
import { isVsCode } from '../host/hostFlags';
import { i18next } from '../i18n';
import { showError } from '../ui/notifications';

/** A dragged item in browsers that hand out lasting rights to files. */
interface ItemWithHandle extends DataTransferItem {
  getAsFileSystemHandle?(): Promise<FileSystemHandle | null>;
}

/** Opens a document file that is dropped anywhere on the page. Whatever else is dropped, the browser does not leave the page for it. */
export function useDocumentDrop(): void {
  const { navigate } = useDocumentTarget();
  useEffect(() => {
    const onDragOver = (event: DragEvent) => {
      if (isTextForField(event)) return;
      event.preventDefault();
      if (event.dataTransfer) event.dataTransfer.dropEffect = holdsFiles(event) && !isVsCode ? 'copy' : 'none';
    };
    const onDrop = (event: DragEvent) => {
      if (isTextForField(event)) return;
      event.preventDefault();
      if (!event.dataTransfer || !holdsFiles(event) || isVsCode) return;
      const dropped = droppedDocument(event.dataTransfer);
      if (dropped) void openFileOf(dropped.file, dropped.handle, navigate);
      else showError(i18next.t('messages.document.load.notToolDocument'));
    };
    window.addEventListener('dragover', onDragOver);
    window.addEventListener('drop', onDrop);
    return () => {
      window.removeEventListener('dragover', onDragOver);
      window.removeEventListener('drop', onDrop);
    };
  }, [navigate]);
}

function holdsFiles(event: DragEvent): boolean {
  return event.dataTransfer?.types.includes('Files') ?? false;
}

function isTextForField(event: DragEvent): boolean {
  const isField = event.target instanceof HTMLInputElement || event.target instanceof HTMLTextAreaElement;
  return isField && !holdsFiles(event);
}

/** The first file with a document's name. Its handle must be asked for at once: the items are gone after the event. */
function droppedDocument(data: DataTransfer): { file: File; handle: Promise<FileSystemFileHandle | null> } | undefined {
  for (const item of data.items) {
    const file = item.kind === 'file' ? item.getAsFile() : null;
    if (file && hasExtensionOf(WORDS_FILE_TYPE, file.name)) return { file, handle: handleOf(item) };
  }
  return undefined;
}

async function handleOf(item: ItemWithHandle): Promise<FileSystemFileHandle | null> {
  try {
    const handle = await item.getAsFileSystemHandle?.();
    return handle?.kind === 'file' ? (handle as FileSystemFileHandle) : null;
  } catch {
    return null; // the file can still be read, only not be saved in place
  }
}
