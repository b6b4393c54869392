// Texts of theme catalogue, theme editor, import and export, overrides.
