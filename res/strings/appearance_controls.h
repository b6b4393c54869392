// Texts of the appearance pages with controls of their own, and their dialogs.
