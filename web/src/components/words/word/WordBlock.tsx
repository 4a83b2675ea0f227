import { memo } from 'react';
import { isSigned } from '../../../model/sheet/signMap';
import { isFocused, useSheetStore } from '../../../stores/sheetStore';
import { BitField } from '../bitField/BitField';
import { BlockFrame, type BlockProps } from './BlockFrame';
import type { RowTexts } from './rowTexts';
import { useWord } from './useWord';
import { WordFields } from './WordFields';
import { WordHeader } from './WordHeader';

interface WordBlockProps extends BlockProps {
  texts: RowTexts;
  pixelRatio: number;
}

/** One word of a row. Renders again only when its own bits or its own state change. */
export const WordBlock = memo(function WordBlock(props: WordBlockProps) {
  const { row, index, isInView, texts, pixelRatio, onMove } = props;
  const { bits } = row;
  const sheetId = useSheetStore((sheet) => sheet.id);
  const word = useWord(bits, index, isInView);
  const signed = useSheetStore((sheet) => isSigned(sheet.signMap, index, bits));
  const focused = useSheetStore((sheet) => isFocused(sheet, 'integer', bits, index));

  const bitField = (
    <BitField
      name={texts.bitField}
      layout={row.bitField}
      pixelRatio={pixelRatio}
      isInView={isInView}
      index={index}
      word={word}
      signed={signed}
      sheetId={sheetId}
    />
  );
  return (
    <BlockFrame
      row={row}
      index={index}
      onMove={onMove}
      stickyContent={
        <>
          <WordHeader lines={row.headerLines} width={bits} index={index} signed={signed} focused={focused} />
          <WordFields row={row} texts={texts} index={index} word={word} signed={signed} sheetId={sheetId} />
          {row.bitField.vertical && bitField}
        </>
      }
    >
      {!row.bitField.vertical && bitField}
    </BlockFrame>
  );
});
