import { bytesReading, numberReading, type Reading } from './reading';

const UUID = /^(?:urn:uuid:|\{)?([\da-f]{8}(?:-[\da-f]{4}){3}-[\da-f]{12})\}?$/i;
const BYTE_PAIRS = /^[\da-f]{2}(?:([:-])[\da-f]{2})(?:\1[\da-f]{2})+$/i;
const DOTTED_MAC = /^[\da-f]{4}\.[\da-f]{4}\.[\da-f]{4}$/i;
const IPV4 = /^\d{1,3}(?:\.\d{1,3}){3}$/;
const IPV6_GROUPS = 8;

/** Reads a UUID, an address of IPv4 or IPv6, a MAC address, or bytes with colons or hyphens between them. */
export function readAddress(text: string): Reading | undefined {
  const uuid = UUID.exec(text)?.[1];
  if (uuid !== undefined) return numberReading('uuid', BigInt(`0x${uuid.replace(/-/g, '')}`), 128);
  if (BYTE_PAIRS.test(text) || DOTTED_MAC.test(text)) {
    const pairs = text.replace(/[^\da-f]/gi, '').match(/../g)!;
    const isMac = pairs.length === 6 || pairs.length === 8;
    return {
      ...bytesReading(
        isMac ? 'mac' : 'words',
        pairs.map((pair) => parseInt(pair, 16)),
      ),
      ...(!isMac && { detail: '8 bits' }),
    };
  }
  const bytes = ipv4Bytes(text);
  if (bytes) return bytesReading('ipv4', bytes);
  const groups = ipv6Groups(text.replace(/^\[(.*)\]$/, '$1'));
  if (!groups) return undefined;
  const digits = groups.map((group) => group.toString(16).padStart(4, '0'));
  return numberReading('ipv6', BigInt(`0x${digits.join('')}`), 128);
}

function ipv4Bytes(text: string): number[] | undefined {
  if (!IPV4.test(text)) return undefined;
  const bytes = text.split('.').map(Number);
  return bytes.every((byte) => byte < 256) ? bytes : undefined;
}

/** The eight groups of RFC 4291's text forms, with "::" for zeros and an IPv4 address in place of the last two. */
function ipv6Groups(text: string): number[] | undefined {
  const halves = text.split('::').map(groupsOf);
  if (halves.length > 2 || !text.includes(':')) return undefined;
  const [head, tail] = halves;
  if (!head || (halves.length === 2 && !tail)) return undefined;
  const count = head.length + (tail?.length ?? 0);
  if (tail ? count >= IPV6_GROUPS : count !== IPV6_GROUPS) return undefined;
  return [...head, ...Array<number>(IPV6_GROUPS - count).fill(0), ...(tail ?? [])];
}

function groupsOf(text: string): number[] | undefined {
  if (text === '') return [];
  const groups: number[] = [];
  for (const part of text.split(':')) {
    const bytes = ipv4Bytes(part);
    if (bytes) groups.push((bytes[0]! << 8) | bytes[1]!, (bytes[2]! << 8) | bytes[3]!);
    else if (/^[\da-f]{1,4}$/i.test(part)) groups.push(parseInt(part, 16));
    else return undefined;
  }
  return groups;
}
