/** Three numbers of a colour space. Red, green and blue are 0 to 1 inside the gamut, and may lie outside. */
export type Vec3 = readonly [number, number, number];

export type Matrix = readonly [Vec3, Vec3, Vec3];

export function transform(matrix: Matrix, [x, y, z]: Vec3): Vec3 {
  const row = (factors: Vec3) => factors[0] * x + factors[1] * y + factors[2] * z;
  return [row(matrix[0]), row(matrix[1]), row(matrix[2])];
}

export function mapVec3([x, y, z]: Vec3, change: (number: number) => number): Vec3 {
  return [change(x), change(y), change(z)];
}
