// Texts of shared editors: pickers, grid, file browser, background dialogs.
// Drawn in a thumbnail cell while the grid's parent prepares the item. It has no number of its
// own in language modules made for the device, which then show the English text.
CV_STRING(IDS_GRID_LOADING, 3201, L"Loading...")
