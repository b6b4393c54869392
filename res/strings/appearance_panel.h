// Texts of the appearance pages that borrow the theme editor's image panel, and their dialogs.
