import { proxy } from 'valtio';

/** Whether the list of keys is open. */
export const keysHelp = proxy({ isOpen: false });

export function toggleKeysHelp(): void {
  keysHelp.isOpen = !keysHelp.isOpen;
}

export function closeKeysHelp(): void {
  keysHelp.isOpen = false;
}
