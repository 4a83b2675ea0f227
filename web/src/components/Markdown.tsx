import cc from 'classcat';
import MarkdownText, { type ReactRenderer } from 'marked-react';
import textStyles from '../ui/text.module.css';
import { ExternalLink } from './ExternalLink';
import styles from './Markdown.module.css';

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
      <p key={this.elementId} className={cc([textStyles.body, styles.paragraph])}>
        {children}
      </p>
    );
  },
};

/** Markdown text of our own with links that leave the page. */
export function Markdown({ text }: { text: string }) {
  return <MarkdownText value={text} renderer={renderer} />;
}
