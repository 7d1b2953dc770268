-- The language server of stories in Neovim: require('zentrox').setup(). From 0.11 on vim.lsp.enable('zentrox') does it
-- as well.
local M = {}

-- A story's sources lie beside each other.
local function start(options)
  local directory = vim.fn.fnamemodify(vim.api.nvim_buf_get_name(0), ':p:h')
  local config = vim.tbl_extend('force', { name = 'zentrox-story', cmd = { 'zentrox-story', 'lsp' }, root_dir = directory }, options)
  if vim.lsp.start then
    return vim.lsp.start(config)
  end
  M.clients = M.clients or {}
  M.clients[directory] = M.clients[directory] or vim.lsp.start_client(config)
  vim.lsp.buf_attach_client(0, M.clients[directory])
end

function M.setup(options)
  vim.api.nvim_create_autocmd('FileType', {
    pattern = 'zentrox',
    callback = function() start(options or {}) end,
  })
end

return M
