import { create } from 'zustand';
import { useSheetsStore } from '../stores/sheetsStore';

interface DiscardPromptState {
  /** Takes the user's answer while the question is on the screen, else null. */
  readonly answer: ((discard: boolean) => void) | null;
}

export const useDiscardPrompt = create<DiscardPromptState>()(() => ({ answer: null }));

/** Whether the open document may go: it is saved, or the user lets its changes go. While the question is open, a second one is answered with no. */
export async function mayDiscardChanges(): Promise<boolean> {
  if (!useSheetsStore.getState().isUnsaved) return true;
  if (useDiscardPrompt.getState().answer) return false;
  return new Promise((resolve) => {
    useDiscardPrompt.setState({
      answer(discard) {
        useDiscardPrompt.setState({ answer: null });
        resolve(discard);
      },
    });
  });
}
