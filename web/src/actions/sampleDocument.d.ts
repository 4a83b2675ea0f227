/** The text of sample.words.tessary, put in when the page is built. */
declare const SAMPLE_DOCUMENT: string;
