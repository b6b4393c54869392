// Texts of shared editors: pickers, grid, file browser, background dialogs.
