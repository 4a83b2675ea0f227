import { readFileSync } from 'node:fs';

/** One resource's bytes, with its type and number. */
export interface Resource {
  type: number;
  id: number;
  bytes: Buffer;
}

interface Section {
  address: number;
  size: number;
  offset: number;
}

const importDirectory = 1;
const resourceDirectory = 2;

/** What Windows reads from a 64-bit executable: PE/COFF, as Microsoft publishes it. */
export class PortableExecutable {
  readonly #bytes: Buffer;
  readonly #optionalHeader: number;
  readonly #sections: Section[];

  constructor(path: string) {
    this.#bytes = readFileSync(path);
    const header = this.#bytes.readUInt32LE(0x3c);
    if (this.#bytes.toString('latin1', header, header + 4) !== 'PE\0\0') throw new Error(`${path} is no executable`);
    this.#optionalHeader = header + 24;
    if (this.#bytes.readUInt16LE(this.#optionalHeader) !== 0x20b) throw new Error(`${path} is not for 64 bits`);
    const first = this.#optionalHeader + this.#bytes.readUInt16LE(header + 20);
    this.#sections = Array.from({ length: this.#bytes.readUInt16LE(header + 6) }, (_, index) => {
      const at = first + index * 40;
      const [size, address, , offset] = [8, 12, 16, 20].map((field) => this.#bytes.readUInt32LE(at + field));
      return { size: size!, address: address!, offset: offset! };
    });
  }

  /** 2 is a program with windows, 3 one with a console. */
  get subsystem(): number {
    return this.#bytes.readUInt16LE(this.#optionalHeader + 68);
  }

  /** What Windows may do to keep the program's memory from being used against it, as DLL characteristics. */
  get characteristics(): number {
    return this.#bytes.readUInt16LE(this.#optionalHeader + 70);
  }

  /** Bytes of address space that each thread's stack may grow to. */
  get stackReserve(): number {
    return Number(this.#bytes.readBigUInt64LE(this.#optionalHeader + 72));
  }

  /** The names of the DLLs that are loaded with the program. */
  get imports(): string[] {
    const names: string[] = [];
    for (let at = this.#directory(importDirectory); this.#bytes.readUInt32LE(at + 12) !== 0; at += 20) {
      const name = this.#offset(this.#bytes.readUInt32LE(at + 12));
      names.push(this.#bytes.toString('latin1', name, this.#bytes.indexOf(0, name)));
    }
    return names;
  }

  /** The resources that have numbers, in their order, each in its first language. */
  get resources(): Resource[] {
    const root = this.#directory(resourceDirectory);
    return this.#entries(root, root).flatMap(([type, names]) =>
      this.#entries(root, names).map(([id, languages]) => {
        const [, data] = this.#entries(root, languages)[0]!;
        const start = this.#offset(this.#bytes.readUInt32LE(data));
        return { type, id, bytes: this.#bytes.subarray(start, start + this.#bytes.readUInt32LE(data + 4)) };
      }),
    );
  }

  /** The numbers in a resource directory, each with the place of what it leads to. */
  #entries(root: number, directory: number): [number: number, offset: number][] {
    const named = this.#bytes.readUInt16LE(directory + 12);
    const numbered = this.#bytes.readUInt16LE(directory + 14);
    return Array.from({ length: numbered }, (_, index) => {
      const at = directory + 16 + (named + index) * 8;
      return [this.#bytes.readUInt32LE(at), root + (this.#bytes.readUInt32LE(at + 4) & 0x7fffffff)];
    });
  }

  #directory(index: number): number {
    return this.#offset(this.#bytes.readUInt32LE(this.#optionalHeader + 112 + index * 8));
  }

  /** Where in the file something is that is at this address when the program runs. */
  #offset(address: number): number {
    const section = this.#sections.find((each) => address >= each.address && address < each.address + each.size);
    if (!section) throw new Error(`No section holds the address ${address}`);
    return address - section.address + section.offset;
  }
}
