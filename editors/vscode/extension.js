// Starts `zentrox-story lsp` and passes on what the editor asks and what the server says. Needs nothing but the editor.
'use strict';

const vscode = require('vscode');
const { spawn } = require('child_process');

const LANGUAGE = 'zentrox-story';
const SELECTOR = { language: LANGUAGE, scheme: 'file' };

// One server and the messages to and from it.
class Connection {
  constructor(program, words, onNotice, onEnd) {
    this.waiting = new Map();
    this.last = 0;
    this.rest = Buffer.alloc(0);
    this.onNotice = onNotice;
    this.open = true;
    this.process = spawn(program, words);
    this.process.stdout.on('data', (bytes) => this.take(bytes));
    this.process.stdin.on('error', () => {});
    const end = (why) => {
      if (!this.open) return;
      this.open = false;
      for (const { reject } of this.waiting.values()) reject(new Error(String(why)));
      this.waiting.clear();
      onEnd(why);
    };
    this.process.on('error', end);
    this.process.on('exit', end);
  }

  send(message) {
    if (!this.open) return;
    const body = Buffer.from(JSON.stringify({ jsonrpc: '2.0', ...message }), 'utf8');
    this.process.stdin.write(`Content-Length: ${body.length}\r\n\r\n`);
    this.process.stdin.write(body);
  }

  notify(method, params) {
    this.send({ method, params });
  }

  request(method, params, token) {
    if (!this.open) return Promise.reject(new Error('the server has ended'));
    const id = ++this.last;
    const answer = new Promise((resolve, reject) => this.waiting.set(id, { resolve, reject }));
    this.send({ id, method, params });
    if (token) token.onCancellationRequested(() => this.notify('$/cancelRequest', { id }));
    return answer;
  }

  take(bytes) {
    this.rest = Buffer.concat([this.rest, bytes]);
    for (;;) {
      const end = this.rest.indexOf('\r\n\r\n');
      if (end < 0) return;
      const length = Number(/content-length: *(\d+)/i.exec(this.rest.toString('ascii', 0, end))[1]);
      if (this.rest.length < end + 4 + length) return;
      const body = this.rest.toString('utf8', end + 4, end + 4 + length);
      this.rest = this.rest.subarray(end + 4 + length);
      this.handle(JSON.parse(body));
    }
  }

  handle(message) {
    if (message.method) return this.onNotice(message.method, message.params);
    const waiting = this.waiting.get(message.id);
    if (!waiting) return;
    this.waiting.delete(message.id);
    if (message.error) waiting.reject(new Error(message.error.message));
    else waiting.resolve(message.result);
  }

  async close() {
    if (!this.open) return;
    await this.request('shutdown').catch(() => {});
    this.notify('exit');
    this.open = false;
  }
}

// --- from the protocol to the editor and back

const toPosition = (p) => new vscode.Position(p.line, p.character);
const toRange = (r) => new vscode.Range(toPosition(r.start), toPosition(r.end));
const toLocation = (l) => new vscode.Location(vscode.Uri.parse(l.uri), toRange(l.range));
const fromPosition = (p) => ({ line: p.line, character: p.character });
const uriOf = (document) => ({ uri: document.uri.toString() });
const placeIn = (document, position) => ({ textDocument: uriOf(document), position: fromPosition(position) });
// Kinds count from 1 in the protocol and from 0 in the editor.
const toKind = (kind) => kind - 1;

function toDiagnostic(d) {
  const found = new vscode.Diagnostic(toRange(d.range), d.message, d.severity - 1);
  found.source = d.source;
  found.code = d.code;
  return found;
}

function toSymbol(s) {
  const symbol = new vscode.DocumentSymbol(s.name, s.detail || '', toKind(s.kind), toRange(s.range), toRange(s.selectionRange));
  symbol.children = (s.children || []).map(toSymbol);
  return symbol;
}

function toCompletion(i) {
  const item = new vscode.CompletionItem(i.label, toKind(i.kind));
  item.detail = i.detail;
  item.documentation = i.documentation;
  item.sortText = i.sortText;
  item.filterText = i.filterText;
  item.insertText = i.textEdit.newText;
  item.range = toRange(i.textEdit.range);
  return item;
}

function toEdit(edit) {
  const all = new vscode.WorkspaceEdit();
  for (const [uri, changes] of Object.entries(edit.changes || {}))
    for (const change of changes) all.replace(vscode.Uri.parse(uri), toRange(change.range), change.newText);
  return all;
}

function register(ask, subscriptions) {
  const l = vscode.languages;
  const each = (list, make) => (list || []).map(make);
  subscriptions.push(
    l.registerCompletionItemProvider(SELECTOR, {
      provideCompletionItems: async (d, p, token) =>
        each((await ask('textDocument/completion', placeIn(d, p), token)).items, toCompletion),
    }, '"', ' '),
    l.registerHoverProvider(SELECTOR, {
      provideHover: async (d, p, token) => {
        const h = await ask('textDocument/hover', placeIn(d, p), token);
        return h && new vscode.Hover(new vscode.MarkdownString(h.contents.value), toRange(h.range));
      },
    }),
    l.registerDefinitionProvider(SELECTOR, {
      provideDefinition: async (d, p, token) => each(await ask('textDocument/definition', placeIn(d, p), token), toLocation),
    }),
    l.registerReferenceProvider(SELECTOR, {
      provideReferences: async (d, p, context, token) =>
        each(await ask('textDocument/references', { ...placeIn(d, p), context }, token), toLocation),
    }),
    l.registerDocumentHighlightProvider(SELECTOR, {
      provideDocumentHighlights: async (d, p, token) =>
        each(await ask('textDocument/documentHighlight', placeIn(d, p), token),
          (h) => new vscode.DocumentHighlight(toRange(h.range), toKind(h.kind))),
    }),
    l.registerRenameProvider(SELECTOR, {
      prepareRename: async (d, p, token) => {
        const r = await ask('textDocument/prepareRename', placeIn(d, p), token);
        if (!r) throw new Error('Hier steht nichts, was umbenannt werden kann.');
        return { range: toRange(r.range), placeholder: r.placeholder };
      },
      provideRenameEdits: async (d, p, newName, token) =>
        toEdit(await ask('textDocument/rename', { ...placeIn(d, p), newName }, token)),
    }),
    l.registerDocumentSymbolProvider(SELECTOR, {
      provideDocumentSymbols: async (d, token) =>
        each(await ask('textDocument/documentSymbol', { textDocument: uriOf(d) }, token), toSymbol),
    }),
    l.registerWorkspaceSymbolProvider({
      provideWorkspaceSymbols: async (query, token) =>
        each(await ask('workspace/symbol', { query }, token),
          (s) => new vscode.SymbolInformation(s.name, toKind(s.kind), s.containerName, toLocation(s.location))),
    }),
    l.registerDocumentFormattingEditProvider(SELECTOR, {
      provideDocumentFormattingEdits: async (d, options, token) =>
        each(await ask('textDocument/formatting', { textDocument: uriOf(d), options }, token),
          (e) => vscode.TextEdit.replace(toRange(e.range), e.newText)),
    }),
  );
}

// --- documents

const isStory = (document) => document.languageId === LANGUAGE && document.uri.scheme === 'file';

function follow(connection, subscriptions) {
  const opened = (d) => isStory(d) && connection.notify('textDocument/didOpen', {
    textDocument: { ...uriOf(d), languageId: LANGUAGE, version: d.version, text: d.getText() },
  });
  const w = vscode.workspace;
  subscriptions.push(
    w.onDidOpenTextDocument(opened),
    w.onDidCloseTextDocument((d) => isStory(d) && connection.notify('textDocument/didClose', { textDocument: uriOf(d) })),
    w.onDidSaveTextDocument((d) => isStory(d) && connection.notify('textDocument/didSave', { textDocument: uriOf(d) })),
    w.onDidChangeTextDocument((e) => isStory(e.document) && e.contentChanges.length > 0 &&
      connection.notify('textDocument/didChange', {
        textDocument: { ...uriOf(e.document), version: e.document.version },
        contentChanges: e.contentChanges.map((c) => ({
          range: { start: fromPosition(c.range.start), end: fromPosition(c.range.end) },
          text: c.text,
        })),
      })),
  );
  const watcher = w.createFileSystemWatcher('**/*.story');
  const changed = (uri) => connection.notify('workspace/didChangeWatchedFiles', { changes: [{ uri: uri.toString(), type: 2 }] });
  subscriptions.push(watcher, watcher.onDidChange(changed), watcher.onDidCreate(changed), watcher.onDidDelete(changed));
  w.textDocuments.forEach(opened);
}

let connection;

exports.activate = async function activate(context) {
  const settings = vscode.workspace.getConfiguration(LANGUAGE);
  const data = settings.get('data');
  const program = settings.get('program') || 'zentrox-story';
  const diagnostics = vscode.languages.createDiagnosticCollection(LANGUAGE);
  context.subscriptions.push(diagnostics);
  const onNotice = (method, params) => {
    if (method === 'textDocument/publishDiagnostics')
      diagnostics.set(vscode.Uri.parse(params.uri), params.diagnostics.map(toDiagnostic));
  };
  const onEnd = (why) => {
    diagnostics.clear();
    vscode.window.showErrorMessage(`zentrox-story lsp ist zu Ende (${why}). Liegt das Programm im Suchpfad?`);
  };
  connection = new Connection(program, data ? ['lsp', '--data', data] : ['lsp'], onNotice, onEnd);
  await connection.request('initialize', { processId: process.pid, rootUri: null, capabilities: {} });
  connection.notify('initialized', {});
  follow(connection, context.subscriptions);
  register((method, params, token) => connection.request(method, params, token), context.subscriptions);
};

exports.deactivate = function deactivate() {
  return connection && connection.close();
};
