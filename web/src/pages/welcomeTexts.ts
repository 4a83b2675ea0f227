/* Markdown texts of the welcome page. */

export const introduction = `
Tessary shows what is inside a number. Type or paste an integer once and read it at every width at the same time: as
whole, halves, quarters, down to single bytes and bits. Change any of them and all others follow.

Everything happens on this machine. Documents are plain JSON files that you choose, and nothing is sent anywhere.
`;

export const download = `
The same page runs as a desktop program for Windows and Linux and in a browser. The desktop program opens documents
from the command line, saves them in place without asking each time, and works without a network.

Background reading on what the tool shows:
[IEEE 754 floating point](https://en.wikipedia.org/wiki/IEEE_754),
[two's complement](https://en.wikipedia.org/wiki/Two%27s_complement) and
[CSS colours](https://www.w3.org/TR/css-color-4/).
`;

export const support = `
Something is wrong or missing? Write to whoever gave you this copy: name the version above, say what you did and what you
saw, and add the document if you may share it. The desktop program keeps a log, \`debug.log\`, beside its executable.
`;

export const privacyPolicy = `
Tessary has no account, no advertising and no telemetry, and it does not contact any server but the one that it was
loaded from.

Documents are read and written only where you choose them. In a browser the page keeps the open sheets between visits in the
browser's own storage, so that a reload does not lose them; clearing the site's data removes them. The desktop program keeps
them for its own run only, and a copy of unsaved work in your own state folder until it is saved or discarded.

A link that leads elsewhere opens in your browser, and that site's own rules apply there.
`;
