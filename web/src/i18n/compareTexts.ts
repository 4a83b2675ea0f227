/** Texts about two sheets whose bits are compared. */
export const compareTexts = {
  choose: 'Compare with',
  none: 'There is no other sheet to compare with',
  count_one: '{{count}} bit',
  count_other: '{{count}} bits',
  found_zero: 'No bit differs',
  found_one: '1 bit differs, at {{first}}',
  found_other: '{{count}} bits differ, first at {{first}}, last at {{last}}',
  beyond: '{{count}} of them beyond the {{bits}} bits of this sheet',
  visited: 'Difference {{place}} of {{count}}: bit {{bit}}',
} as const;
