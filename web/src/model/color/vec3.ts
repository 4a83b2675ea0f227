/** Three numbers of a colour space. Red, green and blue are 0 to 1 inside the gamut, and may lie outside. */
export type Triple = readonly [number, number, number];

export type Matrix = readonly [Triple, Triple, Triple];

export function transform(matrix: Matrix, [x, y, z]: Triple): Triple {
  const row = (factors: Triple) => factors[0] * x + factors[1] * y + factors[2] * z;
  return [row(matrix[0]), row(matrix[1]), row(matrix[2])];
}

export function mapTriple([x, y, z]: Triple, change: (number: number) => number): Triple {
  return [change(x), change(y), change(z)];
}
