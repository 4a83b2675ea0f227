import * as z from 'zod/mini';
import { DOCUMENT_RESOLUTIONS } from '../model/sheet/resolutions';

/** The tools that documents can belong to. */
export const TOOLS = ['words'] as const;
export type Tool = (typeof TOOLS)[number];

/** What documents are checked against: what each begins with, and a sheet. */
function makeSchemas() {
  z.config({ jitless: true }); // the checks must run under a content policy that forbids compiling code from text
  const integer = z.number().check(z.refine((value) => Number.isInteger(value)));

  const header = z.object({
    tool: z.enum(TOOLS),
    version: integer.check(z.refine((version) => version > 0)),
  });

  const sheet = z.object({
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
  return { header, sheet };
}

let made: ReturnType<typeof makeSchemas> | undefined;

/** They are made when the first document is checked, for which no start has to wait. */
export function schemas() {
  return (made ??= makeSchemas());
}

/** A sheet as a document holds it. */
export type SheetData = z.infer<ReturnType<typeof makeSchemas>['sheet']>;

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
