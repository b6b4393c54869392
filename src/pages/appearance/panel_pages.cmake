# Pages that borrow the theme editor's image panel: values (portable) and pages (Win32).
