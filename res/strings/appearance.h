// Texts of the theme editor's appearance pages.
