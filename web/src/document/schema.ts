import * as z from 'zod/mini';
import { DOCUMENT_RESOLUTIONS } from '../model/sheet/resolutions';

// The checks must run under a content policy that forbids compiling code from text.
z.config({ jitless: true });

/** The tools that documents can belong to. */
export const TOOLS = ['words'] as const;
export type Tool = (typeof TOOLS)[number];

const integer = z.number().check(z.refine((value) => Number.isInteger(value)));

export const headerSchema = z.object({
  tool: z.enum(TOOLS),
  version: integer.check(z.refine((version) => version > 0)),
});

export const sheetSchema = z.object({
  id: z.string(),
  displayName: z.string(),
  int: z.union([z.string(), integer]),
  intResolution: z.literal([...DOCUMENT_RESOLUTIONS]),
  signMap: z.optional(z.custom<Record<string, boolean>>(holdsOnlyBooleans)),
  numberDefinitions: z.array(
    z.object({
      type: z.enum(['integer', 'float', 'color32']),
      bits: z.custom<number>((bits) => typeof bits === 'number'),
      visible: z.boolean(),
    }),
  ),
  converters: z.optional(z.array(z.string())),
});

/** A sheet as a document holds it. */
export type SheetData = z.infer<typeof sheetSchema>;

/** A document as it is read: checked, but otherwise as it stands. */
export interface WordsDocumentData {
  tool: Tool;
  version: number;
  sheets: SheetData[];
}

// By hand, because a schema for records leaves the key "__proto__" out of its checks.
function holdsOnlyBooleans(value: unknown): boolean {
  if (typeof value !== 'object' || value === null || Array.isArray(value)) return false;
  return Object.values(value).every((entry) => typeof entry === 'boolean');
}
