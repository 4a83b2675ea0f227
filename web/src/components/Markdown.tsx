import Typography from '@mui/joy/Typography';
import MarkdownText, { type ReactRenderer } from 'marked-react';
import { ExternalLink } from './ExternalLink';

const renderer: Partial<ReactRenderer> = {
  link(href, text) {
    return (
      <ExternalLink key={this.elementId} href={href}>
        {text}
      </ExternalLink>
    );
  },
  paragraph(children) {
    return (
      <Typography key={this.elementId} level="body-md" sx={{ marginBlock: 1 }}>
        {children}
      </Typography>
    );
  },
};

/** Markdown text of our own with links that leave the page. */
export function Markdown({ text }: { text: string }) {
  return <MarkdownText value={text} renderer={renderer} />;
}
