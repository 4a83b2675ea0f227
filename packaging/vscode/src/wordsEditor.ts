import {
  type CustomTextEditorProvider,
  type TextDocument,
  Uri,
  type Webview,
  type WebviewPanel,
  workspace,
} from 'vscode';
import { newNonce, pageHtml } from './pageHtml';
import { Session } from './session';

export const VIEW_TYPE = 'tessary.words';

/** Shows text documents in the page. The editor keeps the text and with it undo, saving, backups and comparing. */
export class WordsEditor implements CustomTextEditorProvider {
  readonly #page: Uri;

  /** @param extension - the folder that the extension is installed in */
  constructor(extension: Uri) {
    this.#page = Uri.joinPath(extension, 'page');
  }

  async resolveCustomTextEditor(document: TextDocument, { webview, onDidDispose }: WebviewPanel): Promise<void> {
    webview.options = { enableScripts: true, localResourceRoots: [this.#page] };
    const session = new Session(document, webview);
    onDidDispose(() => session.dispose());
    webview.html = await this.#html(webview);
  }

  async #html(webview: Webview): Promise<string> {
    const prepared = await workspace.fs.readFile(Uri.joinPath(this.#page, 'index.html'));
    return pageHtml(new TextDecoder().decode(prepared), {
      base: webview.asWebviewUri(this.#page).toString(),
      source: webview.cspSource,
      nonce: newNonce(),
    });
  }
}
