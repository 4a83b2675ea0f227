import { type ESTree, parseSync, type Plugin } from 'vite';
import { LEFT_OUT, type LeftOut } from './leftOut.ts';

const FAIL = 'leftOutOfBundle';

/** A part of the code that is replaced, by offsets. */
interface Cut {
  readonly start: number;
  readonly end: number;
  readonly by: string;
}

type Statement = ESTree.Program['body'][number];

/** The function whose prototype the statement gives a method. */
function prototypeOf(statement: Statement): string | undefined {
  if (statement.type !== 'ExpressionStatement' || statement.expression.type !== 'AssignmentExpression')
    return undefined;
  const { left, right } = statement.expression;
  if (right.type !== 'FunctionExpression') return undefined; // others may be assigned in the same statement
  if (left.type !== 'MemberExpression' || left.object.type !== 'MemberExpression') return undefined;
  const { object, property } = left.object;
  return object.type === 'Identifier' && property.type === 'Identifier' && property.name === 'prototype'
    ? object.name
    : undefined;
}

/** What goes of a statement at the top of a file. Adds what it finds of `leftOut` to `found`. */
function cutsOf(statement: Statement, leftOut: LeftOut, found: Set<string>): Cut[] {
  if (statement.type === 'FunctionDeclaration' && leftOut.functions?.includes(statement.id!.name)) {
    found.add(statement.id!.name);
    const { start, end } = statement.body!;
    return [{ start, end, by: `{ ${FAIL}(${JSON.stringify(statement.id!.name)}); }` }];
  }
  if (statement.type === 'ClassDeclaration') {
    return statement.body.body.flatMap((member) => {
      if (member.type !== 'MethodDefinition' || member.key.type !== 'Identifier') return [];
      const name = `${statement.id!.name}.${member.key.name}`;
      if (!leftOut.methods?.includes(name)) return [];
      found.add(name);
      return [{ start: member.start, end: member.end, by: '' }];
    });
  }
  const owner = prototypeOf(statement);
  if (owner === undefined || !leftOut.prototypes?.includes(owner)) return [];
  found.add(owner);
  return [{ start: statement.start, end: statement.end, by: '' }];
}

/**
 * The code of a library's file without what the page never reaches.
 * @throws where the file does not have all that is to be left out: a new version may have other names
 */
export function withoutLeftOut(code: string, leftOut: LeftOut): string {
  const found = new Set<string>();
  const cuts = parseSync(leftOut.file, code).program.body.flatMap((statement) => cutsOf(statement, leftOut, found));
  const all = [leftOut.functions, leftOut.methods, leftOut.prototypes].flatMap((names) => names ?? []);
  const missing = all.filter((name) => !found.has(name));
  if (missing.length > 0) throw new Error(`${leftOut.file} has no ${missing.join(', ')} to leave out.`);
  const kept = cuts.reduceRight((text, { start, end, by }) => text.slice(0, start) + by + text.slice(end), code);
  if (!leftOut.functions) return kept;
  return `${kept}\nfunction ${FAIL}(name) { throw new Error(name + ' is left out of the bundle'); }\n`;
}

/** Leaves out of the bundle what `LEFT_OUT` names. */
export function leftOutPlugin(): Plugin {
  return {
    name: 'tessary-left-out',
    apply: 'build',
    enforce: 'pre',
    transform(code, id) {
      const leftOut = LEFT_OUT.find(({ file }) => id.endsWith(file));
      return leftOut ? { code: withoutLeftOut(code, leftOut), map: null } : null;
    },
  };
}
