# Pages with controls of their own: values (portable) and pages (Win32).
