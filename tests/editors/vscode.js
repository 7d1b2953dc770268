// The extension against the real server, with a stand-in for the editor: node vscode.js SOURCES PROGRAM
'use strict';

const assert = require('assert');
const fs = require('fs');
const Module = require('module');
const path = require('path');

const [sources, program] = process.argv.slice(2);

// --- the editor, as far as the extension knows it

class Position { constructor(line, character) { Object.assign(this, { line, character }); } }
class Range { constructor(start, end) { Object.assign(this, { start, end }); } }
class Plain { constructor(...words) { this.words = words; } }
class Location { constructor(uri, range) { Object.assign(this, { uri, range }); } }
class DocumentSymbol { constructor(name, detail, kind) { Object.assign(this, { name, detail, kind, children: [] }); } }
class CompletionItem { constructor(label, kind) { Object.assign(this, { label, kind }); } }
class Diagnostic { constructor(range, message, severity) { Object.assign(this, { range, message, severity }); } }
class WorkspaceEdit {
  constructor() { this.changes = []; }
  replace(uri, range, text) { this.changes.push({ uri, range, text }); }
}
const uri = (text) => ({ scheme: text.slice(0, text.indexOf(':')), toString: () => text });
const handlers = {};
const providers = {};
const errors = [];
let findings = () => {};
const disposable = { dispose() {} };
const on = (name) => (handler) => { handlers[name] = handler; return disposable; };
const provide = (name) => (...words) => { providers[name] = words.find((w) => typeof w === 'object' && !w.language); return disposable; };

const text = fs.readFileSync(path.join(sources, 'demo/story/hof.story'), 'utf8');
const open = {
  uri: uri('file://' + path.join(sources, 'demo/story/hof.story').split('/').map(encodeURIComponent).join('/')),
  languageId: 'zentrox-story', version: 1, getText: () => text,
};
const vscode = {
  Position, Range, Location, DocumentSymbol, CompletionItem, Diagnostic, WorkspaceEdit,
  Hover: Plain, MarkdownString: Plain, DocumentHighlight: Plain, SymbolInformation: Plain,
  TextEdit: { replace: (range, newText) => ({ range, newText }) },
  Uri: { parse: uri },
  window: { showErrorMessage: (message) => errors.push(message) },
  languages: {
    createDiagnosticCollection: () => ({
      set: (where, list) => findings(where.toString(), list), clear() {}, dispose() {},
    }),
    registerCompletionItemProvider: provide('completion'), registerHoverProvider: provide('hover'),
    registerDefinitionProvider: provide('definition'), registerReferenceProvider: provide('reference'),
    registerDocumentHighlightProvider: provide('highlight'), registerRenameProvider: provide('rename'),
    registerDocumentSymbolProvider: provide('symbols'), registerWorkspaceSymbolProvider: provide('allSymbols'),
    registerDocumentFormattingEditProvider: provide('formatting'),
  },
  workspace: {
    textDocuments: [open],
    getConfiguration: () => ({ get: (name) => (name === 'program' ? program : '') }),
    onDidOpenTextDocument: on('open'), onDidCloseTextDocument: on('close'), onDidSaveTextDocument: on('save'),
    onDidChangeTextDocument: on('change'),
    createFileSystemWatcher: () => ({ onDidChange: on('fileChanged'), onDidCreate: on('x'), onDidDelete: on('y'), ...disposable }),
  },
};
const load = Module._load;
Module._load = (name, ...rest) => (name === 'vscode' ? vscode : load(name, ...rest));

// --- what it must do

const token = { onCancellationRequested() {} };
function at(mark, inside = 1) {
  const lines = text.slice(0, text.indexOf(mark) + inside).split('\n');
  return new Position(lines.length - 1, lines[lines.length - 1].length);
}
const told = (wanted) => new Promise((resolve) => {
  findings = (where, list) => { if (where === open.uri.toString() && wanted(list)) resolve(list); };
});

async function main() {
  const extension = require(path.join(sources, 'editors/vscode/extension.js'));
  const context = { subscriptions: [] };
  const first = told(() => true);
  await extension.activate(context);
  assert.deepStrictEqual((await first).filter((d) => d.severity === 0), []);

  const flag = at('ESEL_FERTIG');
  const help = await providers.hover.provideHover(open, flag, token);
  assert.match(help.words[0].words[0], /gesetzt: \[hof\.story:/);
  assert.strictEqual((await providers.definition.provideDefinition(open, flag, token)).length, 2);
  assert.ok((await providers.reference.provideReferences(open, flag, { includeDeclaration: true }, token)).length > 4);
  assert.ok((await providers.highlight.provideDocumentHighlights(open, flag, token)).length > 4);
  const offered = await providers.completion.provideCompletionItems(open, flag, token);
  assert.ok(offered.some((item) => item.insertText === 'HOF_GESEHEN' && item.range instanceof Range));
  assert.strictEqual((await providers.rename.prepareRename(open, flag, token)).placeholder, 'ESEL_FERTIG');
  await assert.rejects(providers.rename.prepareRename(open, at('Raum "Hof'), token));
  await assert.rejects(providers.rename.provideRenameEdits(open, flag, 'HOF_GESEHEN', token), /gibt es schon/);
  assert.ok((await providers.rename.provideRenameEdits(open, flag, 'X', token)).changes.length > 4);
  const rooms = await providers.symbols.provideDocumentSymbols(open, token);
  assert.ok(rooms.some((room) => room.name === 'Hof.lsd' && room.children.length > 3));
  assert.ok((await providers.allSymbols.provideWorkspaceSymbols('balduin', token)).length > 2);
  assert.deepStrictEqual(await providers.formatting.provideDocumentFormattingEdits(open, {}, token), []);

  const faulty = told((list) => list.some((d) => d.severity === 0));
  handlers.change({
    document: { ...open, version: 2 },
    contentChanges: [{ range: new Range(at('Raum "Hof', 0), at('Raum "Hof', 4)), text: 'Raun' }],
  });
  assert.strictEqual((await faulty)[0].code, 'wort');
  handlers.save(open);
  handlers.close(open);
  await extension.deactivate();
  assert.deepStrictEqual(errors, []);
}

main().then(() => process.exit(0), (error) => { console.error(error); process.exit(1); });
