import type { Page } from '@playwright/test';

type Color = readonly number[];
type ColorTools = ReturnType<typeof colorTools>;

/** How colors meet on a page, by WCAG's relative luminance and contrast ratio. It is handed to the page as its text. */
function colorTools() {
  const context = document.createElement('canvas').getContext('2d', { willReadFrequently: true })!;
  const read = (text: string): Color => {
    context.clearRect(0, 0, 1, 1);
    context.fillStyle = text;
    context.fillRect(0, 0, 1, 1);
    return [...context.getImageData(0, 0, 1, 1).data].map((each) => each / 255);
  };
  const over = (above: Color, below: Color): Color =>
    below.map((each, channel) => above[channel]! * above[3]! + each * (1 - above[3]!));
  const luminance = (color: Color) => {
    const [red, green, blue] = color.map((each) => (each <= 0.04045 ? each / 12.92 : ((each + 0.055) / 1.055) ** 2.4));
    return 0.2126 * red! + 0.7152 * green! + 0.0722 * blue!;
  };
  const contrast = (one: Color, other: Color) => {
    const [darker, lighter] = [luminance(one), luminance(other)].sort((a, b) => a - b);
    return (lighter! + 0.05) / (darker! + 0.05);
  };
  const backgroundOf = (element: Element | null): Color => {
    if (!element) return [0, 0, 0, 1];
    const pseudo = getComputedStyle(element, '::before');
    const own = over(read(getComputedStyle(element).backgroundColor), backgroundOf(element.parentElement));
    return pseudo.content === 'none' ? own : over(read(pseudo.backgroundColor), own);
  };
  return { read, over, contrast, backgroundOf };
}

/** Runs a function in the page that works with colors; it sees nothing of its file. */
export const withColors = <Found>(page: Page, find: (tools: ColorTools) => Found) =>
  page.evaluate<Found>(`(${String(find)})((${String(colorTools)})())`);

/**
 * Texts, also those in fields, whose contrast to the grounds of what they are in is below WCAG's 4.5 to 1, or 3 to 1 where they are
 * large. Texts on canvases are not seen.
 */
export const faintTexts = (page: Page) =>
  withColors(page, ({ read, over, contrast, backgroundOf }) => {
    const isText = (element: Element) =>
      element instanceof HTMLInputElement || element instanceof HTMLTextAreaElement
        ? element.value !== ''
        : [...element.childNodes].some(
            ({ nodeType, textContent }) => nodeType === Node.TEXT_NODE && textContent!.trim(),
          );
    const opacityOf = (element: Element | null): number =>
      element ? parseFloat(getComputedStyle(element).opacity) * opacityOf(element.parentElement) : 1;
    const shown = [...document.querySelectorAll('body *')].filter(
      (element) =>
        isText(element) &&
        element.checkVisibility({ visibilityProperty: true, opacityProperty: true }) &&
        element.getBoundingClientRect().width > 1 &&
        !element.closest(':disabled, [aria-disabled="true"], script, style'),
    );
    return shown.flatMap((element) => {
      const { color, fontSize, fontWeight } = getComputedStyle(element);
      const size = parseFloat(fontSize);
      const least = size >= 24 || (size >= 18.66 && parseFloat(fontWeight) >= 700) ? 3 : 4.5;
      const behind = backgroundOf(element);
      const [red, green, blue, alpha] = read(color);
      const seen = over([red!, green!, blue!, alpha! * opacityOf(element)], behind);
      const ratio = contrast(seen, behind);
      return ratio < least ? [`${element.textContent || element.ariaLabel}: ${ratio.toFixed(2)}`] : [];
    });
  });
