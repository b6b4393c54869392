// Texts of the behaviour pages of the main window.
