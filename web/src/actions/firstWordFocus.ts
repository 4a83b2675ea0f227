import { proxy } from 'valtio';

/** Whether the first word's main field is to get the keyboard's focus as soon as it is on the page. */
export const firstWordFocus = proxy({ isRequested: false });

/** Lets the user type the value at once. Called for what the user asked for, never for what a host does by itself. */
export function requestFirstWordFocus(): void {
  firstWordFocus.isRequested = true;
}
