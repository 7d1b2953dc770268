-- Neovim with what lies in editors/vim, and the real server: findings, help, and where a flag comes from.
local function fail(what)
  print(what)
  vim.cmd('cquit')
end
require('zentrox').setup()
vim.bo.filetype = ''
vim.bo.filetype = 'zentrox'
local attached = vim.wait(10000, function()
  local clients = (vim.lsp.get_clients or vim.lsp.get_active_clients)()
  return clients[1] ~= nil and clients[1].initialized
end)
if not attached then fail('the server does not come') end
vim.fn.search('ESEL_FERTIG')
local function ask(method)
  local answers = vim.lsp.buf_request_sync(0, method, vim.lsp.util.make_position_params(0, 'utf-16'), 10000)
  local _, answer = next(answers or {})
  return answer and answer.result
end
local help = ask('textDocument/hover')
if not help or not help.contents.value:find('gesetzt: %[hof.story:') then fail('no help') end
if #(ask('textDocument/definition') or {}) ~= 2 then fail('the flag is set nowhere') end
vim.api.nvim_buf_set_lines(0, 9, 9, false, { '    Starx' })
if not vim.wait(10000, function() return #vim.diagnostic.get(0) > 0 end) then fail('no findings') end
if not vim.diagnostic.get(0)[1].message:find('kein Befehl') then fail('another finding') end
vim.cmd('qall!')
