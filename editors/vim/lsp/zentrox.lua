-- For vim.lsp.enable('zentrox').
return {
  cmd = { 'zentrox-story', 'lsp' },
  filetypes = { 'zentrox' },
  root_dir = function(buffer, done)
    done(vim.fs.dirname(vim.api.nvim_buf_get_name(buffer)))
  end,
}
