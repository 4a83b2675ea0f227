import { openFiles, privateSize, programOf, proportionalSize, threadsOf, treeOf } from '../processTree';

/** What the program and all that it started take at one moment. Memory in MB, as proportional set size. */
export interface Sample {
  /** Seconds since the work began. */
  at: number;
  host: number;
  web: number;
  /** All processes together. */
  total: number;
  /** Of that what no other process has a share in: other programs on the machine do not change it. */
  alone: number;
  files: number;
  threads: number;
  operations: number;
}

const WEB = 'WebKitWebProcess';

export function sampleOf(pid: number, at: number, operations: number): Sample {
  const sample: Sample = {
    at,
    host: proportionalSize(pid),
    web: 0,
    total: 0,
    alone: 0,
    files: 0,
    threads: 0,
    operations,
  };
  for (const each of treeOf(pid)) add(each, sample);
  return sample;
}

function add(pid: number, sample: Sample) {
  try {
    const size = proportionalSize(pid);
    const [files, threads] = [openFiles(pid), threadsOf(pid)];
    if (programOf(pid) === WEB) sample.web += size;
    sample.total += size;
    sample.alone += privateSize(pid);
    sample.files += files;
    sample.threads += threads;
  } catch {
    return; // it ended meanwhile, or has ended and nobody has asked for its code yet
  }
}

/** How memory at the end stands to memory at the mark: minute 5, or half the time in shorter runs. */
export interface Verdict {
  /** Seconds. */
  mark: number;
  atMark: number;
  atEnd: number;
  /** 0.1 for a tenth more. */
  growth: number;
  /** The same for memory that is the program's alone. */
  growthAlone: number;
}

const MARK = 300;

/** Compares the medians of the last minute and of the minute around the mark. */
export function verdictOn(samples: Sample[]): Verdict {
  const end = samples.at(-1)?.at ?? 0;
  const mark = Math.min(MARK, end / 2);
  const within = (from: number, to: number, figure: (sample: Sample) => number) =>
    median(samples.filter(({ at }) => at >= from && at <= to).map(figure));
  const compare = (figure: (sample: Sample) => number) => {
    const [before, after] = [within(mark - 30, mark + 30, figure), within(end - 60, end, figure)];
    return { before, after, growth: after / before - 1 };
  };
  const total = compare((sample) => sample.total);
  const alone = compare((sample) => sample.alone);
  return { mark, atMark: total.before, atEnd: total.after, growth: total.growth, growthAlone: alone.growth };
}

export function median(figures: number[]): number {
  const sorted = figures.toSorted((a, b) => a - b);
  const middle = sorted.length / 2;
  return ((sorted[Math.ceil(middle) - 1] ?? NaN) + (sorted[Math.floor(middle)] ?? NaN)) / 2;
}

/** One line per minute: medians, and the operations done by its end. */
export function tableOf(samples: Sample[]): string {
  const lines = ['  minute  host MB   web MB  total MB  alone MB  files  threads  operations'];
  const minutes = Math.ceil((samples.at(-1)?.at ?? 0) / 60);
  for (let minute = 1; minute <= minutes; minute++) {
    const of = samples.filter(({ at }) => Math.ceil(at / 60) === minute);
    if (of.length === 0) continue;
    const middle = (figure: (sample: Sample) => number, digits: number, width: number) =>
      median(of.map(figure)).toFixed(digits).padStart(width);
    lines.push(
      String(minute).padStart(8) +
        middle(({ host }) => host, 1, 9) +
        middle(({ web }) => web, 1, 9) +
        middle(({ total }) => total, 1, 10) +
        middle(({ alone }) => alone, 1, 10) +
        middle(({ files }) => files, 0, 7) +
        middle(({ threads }) => threads, 0, 9) +
        String(of.at(-1)?.operations ?? 0).padStart(12),
    );
  }
  return lines.join('\n');
}
