import cc from 'classcat';
import { memo } from 'react';
import { i18next } from '../../../i18n';
import { COLOR_CHANNELS, colorOfBlock } from '../../../model/color/colorWord';
import { COLOR_NOTATIONS, type ColorNotation, formatColor } from '../../../model/color/formatColor';
import { parseColor } from '../../../model/color/parseColor';
import { parseInteger } from '../../../model/integer/parseInteger';
import { wordNumber } from '../../../model/sheet/wordLabels';
import { useSheetStore } from '../../../stores/sheetStore';
import { Picker } from '../../../ui/Picker';
import { isNarrowColor } from '../layout/sheetGeometry';
import { BlockFrame, type BlockProps } from './BlockFrame';
import styles from './ColorBlock.module.css';
import { DigitsField, type Refusal } from './DigitsField';
import { useWord } from './useWord';
import headerStyles from './WordHeader.module.css';

interface ColorBlockProps extends BlockProps {
  notation: ColorNotation;
  onNotation: (notation: ColorNotation) => void;
}

const NOTATIONS = [{ options: COLOR_NOTATIONS.map((id) => ({ id, label: id })) }];
const ONE_LINE = { fullWidth: false, lines: 1 };
const CHANNEL_BITS = 8;

/** A 32-bit word as a colour: its look, its channels and its text in a notation. */
export const ColorBlock = memo(function ColorBlock(props: ColorBlockProps) {
  const { row, index, isInView, onMove, notation, onNotation } = props;
  const { bits } = row;
  const sheetId = useSheetStore((sheet) => sheet.id);
  const word = useWord(bits, index, isInView);
  const color = colorOfBlock(word);
  const written = formatColor(color, notation);

  const commitChannel = (channel: number, text: string): Refusal | undefined => {
    const read = parseInteger(text, 10, CHANNEL_BITS);
    if (!read.ok) return { reason: read.reason };
    useSheetStore.getState().updateColor32Part(index, channel, Number(read.value));
    return undefined;
  };
  const commitColor = (text: string): Refusal | undefined => {
    const read = parseColor(text);
    if (!read.ok) return { reason: read.reason };
    useSheetStore.getState().updateColor32(index, read.value.color, read.value.hasAlpha);
    return undefined;
  };

  return (
    <BlockFrame
      row={row}
      index={index}
      onMove={onMove}
      stickyContent={
        <>
          <div className={headerStyles.header}>
            <span className={headerStyles.number}>{wordNumber(index)}</span>
            <span>{row.shortLabel}</span>
          </div>
          <div data-fields className={cc([styles.color, isNarrowColor(row.boxWidth) && styles.narrow])}>
            <div className={styles.swatch}>
              <div style={{ backgroundColor: formatColor(color, 'RGBA') }} />
            </div>
            <div className={styles.channels}>
              {COLOR_CHANNELS.map((name, channel) => (
                <DigitsField
                  key={name}
                  name={i18next.t(`words.channels.${name}`)}
                  label={i18next.t(`words.channelLabels.${name}`)}
                  focusKey={name}
                  place={ONE_LINE}
                  shown={`${color[name]}`}
                  restored={`${color[name]}`}
                  content={color[name]}
                  source={sheetId}
                  isStop={channel === 0}
                  onCommit={(text) => commitChannel(channel, text)}
                />
              ))}
            </div>
            <div className={styles.notation}>
              <Picker
                hideLabel
                focusKey="notation"
                label={i18next.t('words.notation')}
                summary={notation}
                groups={NOTATIONS}
                isChosen={(id) => id === notation}
                onChoose={(id) => onNotation(id as ColorNotation)}
              />
              <DigitsField
                name={i18next.t('words.colorText')}
                focusKey="text"
                place={ONE_LINE}
                shown={written}
                restored={written}
                content={word}
                source={sheetId}
                isStop={false}
                onCommit={commitColor}
              />
            </div>
          </div>
        </>
      }
    />
  );
});
