import { mapVec3, type Matrix, transform, type Vec3 } from './vec3';

/*
 * CIE LAB and Oklab after the sample code of CSS Color 4: sRGB with its D65 white to XYZ, for CIE LAB on to the D50
 * white by Bradford's method. Lightness of CIE LAB is 0 to 100, that of Oklab 0 to 1.
 */

const XYZ_FROM_LINEAR: Matrix = [
  [506752 / 1228815, 87881 / 245763, 12673 / 70218],
  [87098 / 409605, 175762 / 245763, 12673 / 175545],
  [7918 / 409605, 87881 / 737289, 1001167 / 1053270],
];
const LINEAR_FROM_XYZ: Matrix = [
  [12831 / 3959, -329 / 214, -1974 / 3959],
  [-851781 / 878810, 1648619 / 878810, 36519 / 878810],
  [705 / 12673, -2585 / 12673, 705 / 667],
];
const D50_FROM_D65: Matrix = [
  [1.0479297925449969, 0.022946870601609652, -0.05019226628920524],
  [0.02962780877005599, 0.9904344267538799, -0.017073799063418826],
  [-0.009243040646204504, 0.015055191490298152, 0.7518742814281371],
];
const D65_FROM_D50: Matrix = [
  [0.955473421488075, -0.02309845494876471, 0.06325924320057072],
  [-0.0283697093338637, 1.0099953980813041, 0.021041441191917323],
  [0.012314014864481998, -0.020507649298898964, 1.330365926242124],
];
const LMS_FROM_XYZ: Matrix = [
  [0.819022437996703, 0.3619062600528904, -0.1288737815209879],
  [0.0329836539323885, 0.9292868615863434, 0.0361446663506424],
  [0.0481771893596242, 0.2642395317527308, 0.6335478284694309],
];
const XYZ_FROM_LMS: Matrix = [
  [1.2268798758459243, -0.5578149944602171, 0.2813910456659647],
  [-0.0405757452148008, 1.112286803280317, -0.0717110580655164],
  [-0.0763729366746601, -0.4214933324022432, 1.5869240198367816],
];
const OKLAB_FROM_LMS: Matrix = [
  [0.210454268309314, 0.7936177747023054, -0.0040720430116193],
  [1.9779985324311684, -2.4285922420485799, 0.450593709617411],
  [0.0259040424655478, 0.7827717124575296, -0.8086757549230774],
];
const LMS_FROM_OKLAB: Matrix = [
  [1, 0.3963377773761749, 0.2158037573099136],
  [1, -0.1055613458156586, -0.0638541728258133],
  [1, -0.0894841775298119, -1.2914855480194092],
];

const D50_WHITE: Vec3 = [0.3457 / 0.3585, 1, (1 - 0.3457 - 0.3585) / 0.3585];
const EPSILON = 216 / 24389;
const KAPPA = 24389 / 27;

export function labFromRgb(rgb: Vec3): Vec3 {
  const [x, y, z] = transform(D50_FROM_D65, transform(XYZ_FROM_LINEAR, mapVec3(rgb, linear)));
  const [fx, fy, fz] = mapVec3([x / D50_WHITE[0], y / D50_WHITE[1], z / D50_WHITE[2]], (part) =>
    part > EPSILON ? Math.cbrt(part) : (KAPPA * part + 16) / 116,
  );
  return [116 * fy - 16, 500 * (fx - fy), 200 * (fy - fz)];
}

export function rgbFromLab([lightness, a, b]: Vec3): Vec3 {
  const fy = (lightness + 16) / 116;
  const [x, y, z] = mapVec3([fy + a / 500, fy, fy - b / 200], (part) =>
    part ** 3 > EPSILON ? part ** 3 : (116 * part - 16) / KAPPA,
  );
  const d50: Vec3 = [x * D50_WHITE[0], y * D50_WHITE[1], z * D50_WHITE[2]];
  return mapVec3(transform(LINEAR_FROM_XYZ, transform(D65_FROM_D50, d50)), gammaEncoded);
}

export function oklabFromRgb(rgb: Vec3): Vec3 {
  const lms = transform(LMS_FROM_XYZ, transform(XYZ_FROM_LINEAR, mapVec3(rgb, linear)));
  return transform(OKLAB_FROM_LMS, mapVec3(lms, Math.cbrt));
}

export function rgbFromOklab(oklab: Vec3): Vec3 {
  const lms = mapVec3(transform(LMS_FROM_OKLAB, oklab), (part) => part ** 3);
  return mapVec3(transform(LINEAR_FROM_XYZ, transform(XYZ_FROM_LMS, lms)), gammaEncoded);
}

/** The lightness, chroma and hue of a colour given by lightness and two axes. Hue in degrees from 0 to 360. */
export function polar([lightness, a, b]: Vec3): Vec3 {
  const hue = (Math.atan2(b, a) * 180) / Math.PI;
  return [lightness, Math.hypot(a, b), hue < 0 ? hue + 360 : hue];
}

/** Undoes `polar`. */
export function rectangular([lightness, chroma, hue]: Vec3): Vec3 {
  const angle = (hue * Math.PI) / 180;
  return [lightness, chroma * Math.cos(angle), chroma * Math.sin(angle)];
}

function linear(channel: number): number {
  return channel <= 0.04045 ? channel / 12.92 : ((channel + 0.055) / 1.055) ** 2.4;
}

// Channels below 0 are outside the gamut and end at 0, so the curve need not be mirrored for them.
function gammaEncoded(channel: number): number {
  return channel > 0.0031308 ? 1.055 * channel ** (1 / 2.4) - 0.055 : 12.92 * channel;
}
