import Card from '@mui/joy/Card';
import Stack from '@mui/joy/Stack';
import Typography from '@mui/joy/Typography';
import { useId } from 'react';
import { useTranslation } from 'react-i18next';
import { formatInteger } from '../model/formatInteger';
import { readWord } from '../model/wordLayout';
import type { BitsSheet } from '../stores/bitsSheet';

const SHOWN_BASES = [16, 10];

/** A sheet at a glance: its name, its width and its value. */
export function SheetCard({ sheet }: { sheet: BitsSheet }) {
  const { t } = useTranslation();
  const headingId = useId();
  const value = readWord(sheet.int, sheet.intResolution, 0);
  return (
    <Card component="section" aria-labelledby={headingId} size="sm" sx={{ contentVisibility: 'auto', gap: 0.75 }}>
      <Stack direction="row" sx={{ gap: 2, justifyContent: 'space-between', alignItems: 'baseline' }}>
        <Typography id={headingId} level="title-md" component="h2" sx={{ overflowWrap: 'anywhere' }}>
          <bdi>{sheet.displayName}</bdi>
        </Typography>
        <Typography level="body-sm" noWrap sx={{ flexShrink: 0 }}>
          {t('sheets.width', { width: sheet.intResolution })}
        </Typography>
      </Stack>
      {SHOWN_BASES.map((base) => (
        <Stack key={base} direction="row" sx={{ gap: 1.5, alignItems: 'baseline' }}>
          <Typography level="body-xs" sx={{ width: '4rem', flexShrink: 0 }}>
            {t('sheets.base', { base })}
          </Typography>
          <Typography
            level="body-sm"
            textColor="text.primary"
            sx={{ fontFamily: 'code', fontVariantNumeric: 'tabular-nums', overflowWrap: 'anywhere', minWidth: 0 }}
          >
            {formatInteger(value, base, sheet.intResolution)}
          </Typography>
        </Stack>
      ))}
    </Card>
  );
}
