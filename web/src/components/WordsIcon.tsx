/** The Words tool's sign: one word above its halves and their halves. */
export function WordsIcon() {
  return (
    <svg viewBox="0 0 24 24" width={28} height={28} fill="currentColor" aria-hidden="true">
      <rect x="2" y="4" width="20" height="4.5" rx="1.2" />
      <rect x="2" y="10" width="9.3" height="4.5" rx="1.2" opacity="0.85" />
      <rect x="12.7" y="10" width="9.3" height="4.5" rx="1.2" opacity="0.85" />
      <rect x="2" y="16" width="3.95" height="4.5" rx="1" opacity="0.65" />
      <rect x="7.35" y="16" width="3.95" height="4.5" rx="1" opacity="0.65" />
      <rect x="12.7" y="16" width="3.95" height="4.5" rx="1" opacity="0.65" />
      <rect x="18.05" y="16" width="3.95" height="4.5" rx="1" opacity="0.65" />
    </svg>
  );
}
