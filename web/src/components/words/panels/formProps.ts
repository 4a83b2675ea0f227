import type { BitsTarget } from '../../../actions/focusedWord';

/** What a form over a word begins with. */
export interface FormProps {
  word: BitsTarget;
  initial: string;
}
