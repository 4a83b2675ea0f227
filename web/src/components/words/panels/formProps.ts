import type { ChangedWord } from '../../../stores/changeCause';

/** What a form over a word begins with. */
export interface FormProps {
  word: ChangedWord;
  initial: string;
}
