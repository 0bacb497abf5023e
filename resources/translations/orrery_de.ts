<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Menus</name>
    <message id="makeMenuFile">
        <source>File</source>
        <extracomment>Menu title.</extracomment>
        <translation>Datei</translation>
    </message>
    <message id="makeMenuEdit">
        <source>Edit</source>
        <extracomment>Menu title.</extracomment>
        <translation>Bearbeiten</translation>
    </message>
    <message id="makeMenuPlanet">
        <source>Planet</source>
        <extracomment>Menu title.</extracomment>
        <translation>Planet</translation>
    </message>
    <message id="makeMenuScene">
        <source>Scene</source>
        <extracomment>Menu title.</extracomment>
        <translation>Szene</translation>
    </message>
    <message id="makeMenuWindow">
        <source>Window</source>
        <extracomment>Menu title.</extracomment>
        <translation>Fenster</translation>
    </message>
    <message id="makeMenuHelp">
        <source>Help</source>
        <extracomment>Menu title.</extracomment>
        <translation>Hilfe</translation>
    </message>
    <message id="makeMenuAppAbout">
        <source>About %1</source>
        <extracomment>Menu item. %1 is the application's name.</extracomment>
        <translation>Über %1</translation>
    </message>
    <message id="makeMenuAppPreferences">
        <source>Preferences…</source>
        <extracomment>Menu item: opens the Preferences sheet.</extracomment>
        <translation>Einstellungen …</translation>
    </message>
    <message id="makeMenuAppServices">
        <source>Services</source>
        <extracomment>Submenu title (desktop services).</extracomment>
        <translation>Dienste</translation>
    </message>
    <message id="makeMenuAppHide">
        <source>Hide %1</source>
        <extracomment>Menu item. %1 is the application's name.</extracomment>
        <translation>%1 ausblenden</translation>
    </message>
    <message id="makeMenuAppHideothers">
        <source>Hide Others</source>
        <extracomment>Menu item: hides the other applications.</extracomment>
        <translation>Andere ausblenden</translation>
    </message>
    <message id="makeMenuAppShowall">
        <source>Show All</source>
        <extracomment>Menu item: shows the hidden applications again.</extracomment>
        <translation>Alle einblenden</translation>
    </message>
    <message id="makeMenuAppQuit">
        <source>Quit %1</source>
        <extracomment>Menu item. %1 is the application's name.</extracomment>
        <translation>%1 beenden</translation>
    </message>
    <message id="makeMenuFileNew">
        <source>New System</source>
        <extracomment>File menu: clears the current system of planets.</extracomment>
        <translation>Neues System</translation>
    </message>
    <message id="makeMenuFileOpen">
        <source>Open…</source>
        <extracomment>File menu: opens a system package (.kvx).</extracomment>
        <translation>Öffnen …</translation>
    </message>
    <message id="makeMenuFileClose">
        <source>Close Window</source>
        <extracomment>File menu: closes the main window, which quits the program.</extracomment>
        <translation>Fenster schließen</translation>
    </message>
    <message id="makeMenuFileSave">
        <source>Save</source>
        <extracomment>File menu.</extracomment>
        <translation>Speichern</translation>
    </message>
    <message id="makeMenuFileSaveAs">
        <source>Save As…</source>
        <extracomment>File menu.</extracomment>
        <translation>Speichern unter …</translation>
    </message>
    <message id="makeMenuFileExport">
        <source>Export Picture…</source>
        <extracomment>File menu: writes a picture of the scene to an image file.</extracomment>
        <translation>Bild exportieren …</translation>
    </message>
    <message id="makeMenuFilePrintsetup">
        <source>Page Setup…</source>
        <extracomment>File menu.</extracomment>
        <translation>Seite einrichten …</translation>
    </message>
    <message id="makeMenuFilePrint">
        <source>Print…</source>
        <extracomment>File menu.</extracomment>
        <translation>Drucken …</translation>
    </message>
    <message id="makeMenuEditUndo">
        <source>Undo</source>
        <extracomment>Edit menu.</extracomment>
        <translation>Rückgängig</translation>
    </message>
    <message id="makeMenuEditRedo">
        <source>Redo</source>
        <extracomment>Edit menu.</extracomment>
        <translation>Wiederholen</translation>
    </message>
    <message id="makeMenuEditCut">
        <source>Cut</source>
        <extracomment>Edit menu.</extracomment>
        <translation>Ausschneiden</translation>
    </message>
    <message id="makeMenuEditCopy">
        <source>Copy</source>
        <extracomment>Edit menu.</extracomment>
        <translation>Kopieren</translation>
    </message>
    <message id="makeMenuEditPaste">
        <source>Paste</source>
        <extracomment>Edit menu.</extracomment>
        <translation>Einfügen</translation>
    </message>
    <message id="makeMenuEditPastematch">
        <source>Paste and Match Style</source>
        <extracomment>Edit menu.</extracomment>
        <translation>Einfügen und Stil anpassen</translation>
    </message>
    <message id="makeMenuEditDelete">
        <source>Delete</source>
        <extracomment>Edit menu.</extracomment>
        <translation>Löschen</translation>
    </message>
    <message id="makeMenuEditSelectall">
        <source>Select All</source>
        <extracomment>Edit menu.</extracomment>
        <translation>Alles auswählen</translation>
    </message>
    <message id="makeMenuEditFind">
        <source>Find</source>
        <extracomment>Edit menu: submenu title.</extracomment>
        <translation>Suchen</translation>
    </message>
    <message id="makeMenuEditSpelling">
        <source>Spelling and Grammar</source>
        <extracomment>Edit menu: submenu title.</extracomment>
        <translation>Rechtschreibung und Grammatik</translation>
    </message>
    <message id="makeMenuEditSubstitute">
        <source>Substitutions</source>
        <extracomment>Edit menu: submenu title.</extracomment>
        <translation>Ersetzungen</translation>
    </message>
    <message id="makeMenuEditTransform">
        <source>Transformations</source>
        <extracomment>Edit menu: submenu title.</extracomment>
        <translation>Umwandlungen</translation>
    </message>
    <message id="makeMenuEditSpeech">
        <source>Speech</source>
        <extracomment>Edit menu: submenu title.</extracomment>
        <translation>Sprachausgabe</translation>
    </message>
    <message id="makeMenuEditFindFind">
        <source>Find…</source>
        <extracomment>Edit ▸ Find submenu.</extracomment>
        <translation>Suchen …</translation>
    </message>
    <message id="makeMenuEditFindReplace">
        <source>Find and Replace…</source>
        <extracomment>Edit ▸ Find submenu. Always greyed out: planets are renamed in their table row.</extracomment>
        <translation>Suchen und ersetzen …</translation>
    </message>
    <message id="makeMenuEditFindNext">
        <source>Find Next</source>
        <extracomment>Edit ▸ Find submenu.</extracomment>
        <translation>Weitersuchen</translation>
    </message>
    <message id="makeMenuEditFindPrev">
        <source>Find Previous</source>
        <extracomment>Edit ▸ Find submenu.</extracomment>
        <translation>Rückwärts suchen</translation>
    </message>
    <message id="makeMenuEditFindUseselect">
        <source>Use Selection for Find</source>
        <extracomment>Edit ▸ Find submenu.</extracomment>
        <translation>Auswahl suchen</translation>
    </message>
    <message id="makeMenuEditFindJump">
        <source>Jump to Selection</source>
        <extracomment>Edit ▸ Find submenu: scrolls the planet table to the selected planet.</extracomment>
        <translation>Zur Auswahl springen</translation>
    </message>
    <message id="makeMenuEditSpellShow">
        <source>Show Spelling and Grammar</source>
        <extracomment>Edit ▸ Spelling and Grammar submenu.</extracomment>
        <translation>Rechtschreibung und Grammatik einblenden</translation>
    </message>
    <message id="makeMenuEditSpellCheckdoc">
        <source>Check Document Now</source>
        <extracomment>Edit ▸ Spelling and Grammar submenu.</extracomment>
        <translation>Dokument jetzt prüfen</translation>
    </message>
    <message id="makeMenuEditSpellCheckspell">
        <source>Check Spelling While Typing</source>
        <extracomment>Edit ▸ Spelling and Grammar submenu.</extracomment>
        <translation>Rechtschreibung während der Eingabe prüfen</translation>
    </message>
    <message id="makeMenuEditSpellCheckgram">
        <source>Check Grammar With Spelling</source>
        <extracomment>Edit ▸ Spelling and Grammar submenu. The key is spelt so.</extracomment>
        <translation>Grammatik mit Rechtschreibung prüfen</translation>
    </message>
    <message id="makeMenuEditSpellCorrect">
        <source>Correct Spelling Automatically</source>
        <extracomment>Edit ▸ Spelling and Grammar submenu.</extracomment>
        <translation>Rechtschreibung automatisch korrigieren</translation>
    </message>
    <message id="makeMenuSubstShow">
        <source>Show Substitutions</source>
        <extracomment>Edit ▸ Substitutions submenu.</extracomment>
        <translation>Ersetzungen einblenden</translation>
    </message>
    <message id="makeMenuSubstSmartcopy">
        <source>Smart Copy/Paste</source>
        <extracomment>Edit ▸ Substitutions submenu.</extracomment>
        <translation>Intelligentes Kopieren/Einfügen</translation>
    </message>
    <message id="makeMenuSubstSmartquo">
        <source>Smart Quotes</source>
        <extracomment>Edit ▸ Substitutions submenu. The key is spelt so.</extracomment>
        <translation>Intelligente Anführungszeichen</translation>
    </message>
    <message id="makeMenuSubstSmartdash">
        <source>Smart Dashes</source>
        <extracomment>Edit ▸ Substitutions submenu.</extracomment>
        <translation>Intelligente Gedankenstriche</translation>
    </message>
    <message id="makeMenuSubstSmartlinks">
        <source>Smart Links</source>
        <extracomment>Edit ▸ Substitutions submenu.</extracomment>
        <translation>Intelligente Links</translation>
    </message>
    <message id="makeMenuSubstData">
        <source>Data Detectors</source>
        <extracomment>Edit ▸ Substitutions submenu.</extracomment>
        <translation>Datenerkennung</translation>
    </message>
    <message id="makeMenuSubstText">
        <source>Text Replacement</source>
        <extracomment>Edit ▸ Substitutions submenu.</extracomment>
        <translation>Textersetzung</translation>
    </message>
    <message id="makeMenuEditTransformUpp">
        <source>Make Upper Case</source>
        <extracomment>Edit ▸ Transformations submenu.</extracomment>
        <translation>In Großbuchstaben</translation>
    </message>
    <message id="makeMenuEditTransformLow">
        <source>Make Lower Case</source>
        <extracomment>Edit ▸ Transformations submenu.</extracomment>
        <translation>In Kleinbuchstaben</translation>
    </message>
    <message id="makeMenuEditTransformCap">
        <source>Capitalize</source>
        <extracomment>Edit ▸ Transformations submenu.</extracomment>
        <translation>Wortanfänge groß</translation>
    </message>
    <message id="makeMenuEditSpeechStart">
        <source>Start Speaking</source>
        <extracomment>Edit ▸ Speech submenu.</extracomment>
        <translation>Sprachausgabe starten</translation>
    </message>
    <message id="makeMenuEditSpeechStop">
        <source>Stop Speaking</source>
        <extracomment>Edit ▸ Speech submenu.</extracomment>
        <translation>Sprachausgabe beenden</translation>
    </message>
    <message id="makeMenuPlanetCreate">
        <source>Create Planet…</source>
        <extracomment>Planet menu: opens the sheet that asks for the new planet's name.</extracomment>
        <translation>Planet erstellen …</translation>
    </message>
    <message id="makeMenuPlanetDelete">
        <source>Delete Planet</source>
        <extracomment>Planet menu: deletes the planet selected in the table.</extracomment>
        <translation>Planet löschen</translation>
    </message>
    <message id="makeMenuSceneHideAxes">
        <source>Hide Axes</source>
        <extracomment>Scene menu, a checkable item: checked while the axis cross is hidden.</extracomment>
        <translation>Achsen ausblenden</translation>
    </message>
    <message id="makeMenuSceneColors">
        <source>Background</source>
        <extracomment>Scene menu: submenu of the six background colours of the document area.</extracomment>
        <translation>Hintergrund</translation>
    </message>
    <message id="makeMenuSceneColorTransparnet">
        <source>Transparent</source>
        <extracomment>Scene ▸ Background. The key is spelt so (letters transposed).</extracomment>
        <translation>Transparent</translation>
    </message>
    <message id="makeMenuSceneColorWhite">
        <source>White</source>
        <extracomment>Scene ▸ Background.</extracomment>
        <translation>Weiß</translation>
    </message>
    <message id="makeMenuSceneColorBlack">
        <source>Black</source>
        <extracomment>Scene ▸ Background.</extracomment>
        <translation>Schwarz</translation>
    </message>
    <message id="makeMenuSceneColorDarkNavyBlue">
        <source>Dark Navy Blue</source>
        <extracomment>Scene ▸ Background.</extracomment>
        <translation>Dunkles Marineblau</translation>
    </message>
    <message id="makeMenuSceneColorDarkDarkNavyBlue">
        <source>Darker Navy Blue</source>
        <extracomment>Scene ▸ Background.</extracomment>
        <translation>Dunkleres Marineblau</translation>
    </message>
    <message id="makeMenuSceneColorDarkDarkDarkNavyBlue">
        <source>Darkest Navy Blue</source>
        <extracomment>Scene ▸ Background.</extracomment>
        <translation>Dunkelstes Marineblau</translation>
    </message>
    <message id="makeMenuWindowMinimize">
        <source>Minimize</source>
        <extracomment>Window menu.</extracomment>
        <translation>Minimieren</translation>
    </message>
    <message id="makeMenuWindowZoom">
        <source>Zoom</source>
        <extracomment>Window menu.</extracomment>
        <translation>Zoomen</translation>
    </message>
    <message id="makeMenuWindowBringfront">
        <source>Bring All to Front</source>
        <extracomment>Window menu.</extracomment>
        <translation>Alle nach vorne bringen</translation>
    </message>
    <message id="makeMenuHelpUserguide">
        <source>User Guide…</source>
        <extracomment>Help menu: asks, then opens the user guide in the web browser.</extracomment>
        <translation>Benutzerhandbuch …</translation>
    </message>
    <message id="makeMenuHelpSupport">
        <source>Support…</source>
        <extracomment>Help menu: asks, then opens the support page that comes with the program in the web browser.</extracomment>
        <translation>Support …</translation>
    </message>
    <message id="makeMenuHelpAbout">
        <source>About %1</source>
        <extracomment>Help menu (Linux has no application menu). %1 is the application's name.</extracomment>
        <translation>Über %1</translation>
    </message>
    <message id="makeMenuViewFullScreen">
        <source>Enter Full Screen</source>
        <extracomment>Menu item: shows the main window full screen.</extracomment>
        <translation>Vollbild</translation>
    </message>
    <message id="makeMenuWindowGradation">
        <source>Style Library</source>
        <extracomment>Window menu: opens the window that shows every style as a swatch.</extracomment>
        <translation>Stilbibliothek</translation>
    </message>
    <message id="makeMenuWindowSearch">
        <source>Find Planet</source>
        <extracomment>Window menu: opens the window that finds a planet by part of its name.</extracomment>
        <translation>Planet suchen</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="access userguide">
        <source>Do you want to open the user guide in your web browser?</source>
        <extracomment>Question before the user guide opens.</extracomment>
        <translation>Möchten Sie das Benutzerhandbuch in Ihrem Webbrowser öffnen?</translation>
    </message>
    <message id="access website">
        <source>Do you want to open the support page in your web browser?</source>
        <extracomment>Question before the support page opens.</extracomment>
        <translation>Möchten Sie die Support-Seite in Ihrem Webbrowser öffnen?</translation>
    </message>
    <message id="yes">
        <source>Yes</source>
        <extracomment>First button of the help questions: goes on.</extracomment>
        <translation>Ja</translation>
    </message>
    <message id="cancel">
        <source>Cancel</source>
        <extracomment>Second button of the help questions.</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message id="aboutText">
        <source>Orrery %1 — compose planet systems and export pictures of them.</source>
        <extracomment>Text of the About box. %1 is the program's version.</extracomment>
        <translation>Orrery %1 – Planetensysteme zusammenstellen und Bilder davon exportieren.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message id="accessibleCloseButton">
        <source>Close</source>
        <extracomment>Accessible name of the title bar's close button.</extracomment>
        <translation>Schließen</translation>
    </message>
    <message id="accessibleMinimizeButton">
        <source>Minimize</source>
        <extracomment>Accessible name of the title bar's minimize button.</extracomment>
        <translation>Minimieren</translation>
    </message>
    <message id="accessibleZoomButton">
        <source>Zoom</source>
        <extracomment>Accessible name of the title bar's zoom button.</extracomment>
        <translation>Zoomen</translation>
    </message>
    <message id="accessibleFullScreenButton">
        <source>Full screen</source>
        <extracomment>Accessible name of the title bar's full-screen button.</extracomment>
        <translation>Vollbild</translation>
    </message>
    <message id="accessibleSceneView">
        <source>Scene</source>
        <extracomment>Accessible name of the 3D scene view.</extracomment>
        <translation>Szene</translation>
    </message>
    <message id="accessibleBackdrop">
        <source>Document area</source>
        <extracomment>Accessible name of the document area behind the scene (the exported picture).</extracomment>
        <translation>Dokumentbereich</translation>
    </message>
    <message id="accessibleWidthField">
        <source>Document width</source>
        <extracomment>Accessible name of the document width field.</extracomment>
        <translation>Dokumentbreite</translation>
    </message>
    <message id="accessibleHeightField">
        <source>Document height</source>
        <extracomment>Accessible name of the document height field.</extracomment>
        <translation>Dokumenthöhe</translation>
    </message>
    <message id="documentSizeLabel">
        <source>Document size</source>
        <extracomment>Label in front of the two document size fields (width × height, in pixels).</extracomment>
        <translation>Dokumentgröße</translation>
    </message>
    <message id="documentSizeTimes">
        <source>×</source>
        <extracomment>Between the document width and height fields.</extracomment>
        <translation>×</translation>
    </message>
    <message id="unsavedMarker">
        <source>*</source>
        <extracomment>Marks the window title while the system has unsaved changes.</extracomment>
        <translation>*</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message id="controlPreferencesTabName0">
        <source>General</source>
        <extracomment>Preferences: title of the first tab.</extracomment>
        <translation>Allgemein</translation>
    </message>
    <message id="controlPreferencesTabName1">
        <source>Folders</source>
        <extracomment>Preferences: title of the second tab.</extracomment>
        <translation>Ordner</translation>
    </message>
    <message id="controlPreferencesTabName2">
        <source>Exporting</source>
        <extracomment>Preferences: title of the third tab.</extracomment>
        <translation>Export</translation>
    </message>
    <message id="controlPreferencesGeneral1">
        <source>Center the window on the screen at startup</source>
        <extracomment>Preferences ▸ General: check box 1.</extracomment>
        <translation>Fenster beim Start auf dem Bildschirm zentrieren</translation>
    </message>
    <message id="controlPreferencesGeneral2">
        <source>Don’t show the introduction at startup</source>
        <extracomment>Preferences ▸ General: check box 2.</extracomment>
        <translation>Einführung beim Start nicht zeigen</translation>
    </message>
    <message id="controlPreferencesGeneral3">
        <source>Delete planets without asking</source>
        <extracomment>Preferences ▸ General: check box 3.</extracomment>
        <translation>Planeten ohne Rückfrage löschen</translation>
    </message>
    <message id="controlPreferencesGeneral4">
        <source>Include the background color when exporting</source>
        <extracomment>Preferences ▸ General: check box 4.</extracomment>
        <translation>Beim Exportieren die Hintergrundfarbe einbeziehen</translation>
    </message>
    <message id="controlPreferencesGeneral5">
        <source>Start a new system without asking</source>
        <extracomment>Preferences ▸ General: check box 5.</extracomment>
        <translation>Neues System ohne Rückfrage beginnen</translation>
    </message>
    <message id="controlPreferencesGeneral6">
        <source>Reserved option 6</source>
        <extracomment>Preferences ▸ General: check box 6. It is stored, but nothing in the program uses it yet.</extracomment>
        <translation>Reservierte Option 6</translation>
    </message>
    <message id="controlPreferencesGeneral7">
        <source>Reserved option 7</source>
        <extracomment>Preferences ▸ General: check box 7. It is stored, but nothing in the program uses it yet.</extracomment>
        <translation>Reservierte Option 7</translation>
    </message>
    <message id="controlPreferencesGeneral8">
        <source>Reserved option 8</source>
        <extracomment>Preferences ▸ General: check box 8. It is stored, but nothing in the program uses it yet.</extracomment>
        <translation>Reservierte Option 8</translation>
    </message>
    <message id="controlPreferencesGeneral9">
        <source>Reserved option 9</source>
        <extracomment>Preferences ▸ General: check box 9. It is stored, but nothing in the program uses it yet.</extracomment>
        <translation>Reservierte Option 9</translation>
    </message>
    <message id="controlPreferencesGeneral10">
        <source>Reserved option 10</source>
        <extracomment>Preferences ▸ General: check box 10. It is stored, but nothing in the program uses it yet.</extracomment>
        <translation>Reservierte Option 10</translation>
    </message>
    <message id="controlPreferencesGeneral11">
        <source>Reserved option 11</source>
        <extracomment>Preferences ▸ General: check box 11. It is stored, but nothing in the program uses it yet.</extracomment>
        <translation>Reservierte Option 11</translation>
    </message>
    <message id="controlPreferencesGeneral12">
        <source>Reserved option 12</source>
        <extracomment>Preferences ▸ General: check box 12. It is stored, but nothing in the program uses it yet.</extracomment>
        <translation>Reservierte Option 12</translation>
    </message>
    <message id="controlPreferencesOpenfolderTitle">
        <source>Open Folder</source>
        <extracomment>Preferences ▸ Folders: title of the box for the folder that Open starts in.</extracomment>
        <translation>Ordner zum Öffnen</translation>
    </message>
    <message id="controlPreferencesOpenfolderLabel">
        <source>Systems are opened from this folder:</source>
        <extracomment>Preferences ▸ Folders: label above the open folder.</extracomment>
        <translation>Systeme werden aus diesem Ordner geöffnet:</translation>
    </message>
    <message id="controlPreferencesOpenfolderDefault">
        <source>Use Documents</source>
        <extracomment>Preferences ▸ Folders: button that resets the open folder to the Documents folder.</extracomment>
        <translation>Dokumente verwenden</translation>
    </message>
    <message id="controlPreferencesOpenOther">
        <source>Choose the Open Folder</source>
        <extracomment>Title of the dialog that chooses another open folder.</extracomment>
        <translation>Ordner zum Öffnen wählen</translation>
    </message>
    <message id="controlPreferencesExportfolderTitle">
        <source>Export Folder</source>
        <extracomment>Preferences ▸ Folders: title of the box for the folder that exports go to.</extracomment>
        <translation>Exportordner</translation>
    </message>
    <message id="controlPreferencesExportfolderLabel">
        <source>Pictures and saved systems go to this folder:</source>
        <extracomment>Preferences ▸ Folders: label above the export folder. Save As starts here too.</extracomment>
        <translation>Bilder und gespeicherte Systeme kommen in diesen Ordner:</translation>
    </message>
    <message id="controlPreferencesExportfolderDefault">
        <source>Use Documents</source>
        <extracomment>Preferences ▸ Folders: button that resets the export folder to the Documents folder.</extracomment>
        <translation>Dokumente verwenden</translation>
    </message>
    <message id="controlPreferencesExportOther">
        <source>Choose the Export Folder</source>
        <extracomment>Title of the dialog that chooses another export folder.</extracomment>
        <translation>Exportordner wählen</translation>
    </message>
    <message id="preferencesOther">
        <source>Other…</source>
        <extracomment>Second item of each folder menu: chooses another folder.</extracomment>
        <translation>Andere …</translation>
    </message>
    <message id="controlPreferencesExportingBox">
        <source>Exporting</source>
        <extracomment>Preferences ▸ Exporting: box title.</extracomment>
        <translation>Export</translation>
    </message>
    <message id="controlPreferencesExportingLabel1">
        <source>Default format:</source>
        <extracomment>Preferences ▸ Exporting: label of the image format menu.</extracomment>
        <translation>Standardformat:</translation>
    </message>
    <message id="controlPreferencesExportingLabel2">
        <source>Compression:</source>
        <extracomment>Preferences ▸ Exporting: label of the compression slider (JPEG and JPEG 2000).</extracomment>
        <translation>Komprimierung:</translation>
    </message>
    <message id="controlPreferencesExportingSelection">
        <source>Default image format for exported pictures</source>
        <extracomment>Preferences ▸ Exporting: describes the image format menu (tool tip).</extracomment>
        <translation>Standard-Bildformat für exportierte Bilder</translation>
    </message>
    <message id="controlPreferencesSomeLabel">
        <source>Some changes take effect the next time the program starts.</source>
        <extracomment>Preferences: note at the bottom of the sheet.</extracomment>
        <translation>Einige Änderungen werden erst beim nächsten Programmstart wirksam.</translation>
    </message>
    <message id="controlPreferencesClose1">
        <source>Close</source>
        <extracomment>Preferences: closes the sheet without storing the changes.</extracomment>
        <translation>Schließen</translation>
    </message>
    <message id="controlPreferencesSave1">
        <source>Save</source>
        <extracomment>Preferences: stores the changes and closes the sheet.</extracomment>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>Planets</name>
    <message id="deletePlanetMsg">
        <source>Do you want to delete the planet “%1”?</source>
        <extracomment>Question before a planet is deleted. %1 is the planet's name.</extracomment>
        <translation>Möchten Sie den Planeten „%1“ löschen?</translation>
    </message>
    <message id="deletePlanetInformative">
        <source>The planet is removed from the table and from the scene.</source>
        <extracomment>Informative text of the delete question.</extracomment>
        <translation>Der Planet wird aus der Tabelle und aus der Szene entfernt.</translation>
    </message>
    <message id="deletePlanetYes">
        <source>Delete</source>
        <extracomment>First button of the delete question.</extracomment>
        <translation>Löschen</translation>
    </message>
    <message id="deletePlanetNo">
        <source>Cancel</source>
        <extracomment>Second button of the delete question.</extracomment>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message id="createNewSystemMsg">
        <source>Do you want to start a new system?</source>
        <extracomment>Question of File ▸ New System.</extracomment>
        <translation>Möchten Sie ein neues System beginnen?</translation>
    </message>
    <message id="createNewSystemInformative">
        <source>All planets of the current system are removed, and the camera and the light return to their defaults. Changes you have not saved are lost.</source>
        <extracomment>Informative text of the New System question.</extracomment>
        <translation>Alle Planeten des aktuellen Systems werden entfernt, Kamera und Licht kehren zu ihren Standardwerten zurück. Nicht gespeicherte Änderungen gehen verloren.</translation>
    </message>
    <message id="createNewSystemYes">
        <source>New System</source>
        <extracomment>First button of the New System question.</extracomment>
        <translation>Neues System</translation>
    </message>
    <message id="createNewSystemCancel">
        <source>Cancel</source>
        <extracomment>Second button of the New System question.</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message id="saveDocumentFile">
        <source>Untitled System</source>
        <extracomment>Name suggested in the Save As dialog (the .kvx extension is added).</extracomment>
        <translation>Unbenanntes System</translation>
    </message>
    <message id="saveDocumentWindow">
        <source>Choose where %1 saves the system.</source>
        <extracomment>Message of the Save As dialog. %1 is the application's name.</extracomment>
        <translation>Wählen Sie, wo %1 das System speichert.</translation>
    </message>
    <message id="saveDocumentMessage">
        <source>Save System – %1</source>
        <extracomment>Title of the Save As dialog. %1 is the application's name.</extracomment>
        <translation>System speichern – %1</translation>
    </message>
    <message id="saveDocumentLabel">
        <source>Saving the system…</source>
        <extracomment>Progress sheet while a system is saved.</extracomment>
        <translation>Das System wird gespeichert …</translation>
    </message>
    <message id="openDocTitle">
        <source>Open System</source>
        <extracomment>Title of the Open dialog.</extracomment>
        <translation>System öffnen</translation>
    </message>
    <message id="openDocMessage">
        <source>Choose a system package (.kvx) to open.</source>
        <extracomment>Message of the Open dialog.</extracomment>
        <translation>Wählen Sie ein Systempaket (.kvx) zum Öffnen.</translation>
    </message>
    <message id="openDocMessageLabel">
        <source>Opening the system…</source>
        <extracomment>Progress sheet while a system is opened.</extracomment>
        <translation>Das System wird geöffnet …</translation>
    </message>
</context>
<context>
    <name>Export</name>
    <message id="exportImageSelectingExportFormat">
        <source>Choose the format of the exported picture.</source>
        <extracomment>Question sheet that starts the export; holds the format menu and the include-background check box.</extracomment>
        <translation>Wählen Sie das Format des exportierten Bildes.</translation>
    </message>
    <message id="exportImageNext">
        <source>Continue</source>
        <extracomment>First button of the format question: goes on to the save dialog.</extracomment>
        <translation>Weiter</translation>
    </message>
    <message id="exportImageCancel">
        <source>Cancel</source>
        <extracomment>Second button of the format question.</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message id="controlAccessory1Label1">
        <source>Format:</source>
        <extracomment>Label of the image format menu in the format question.</extracomment>
        <translation>Format:</translation>
    </message>
    <message id="exportImageTitle">
        <source>Export Picture</source>
        <extracomment>Title of the export save dialog.</extracomment>
        <translation>Bild exportieren</translation>
    </message>
    <message id="exportImageSelectFilePath">
        <source>Choose where to save the picture.</source>
        <extracomment>Message of the export save dialog.</extracomment>
        <translation>Wählen Sie, wo das Bild gespeichert wird.</translation>
    </message>
    <message id="exportImageUntitleFileName">
        <source>Untitled Picture</source>
        <extracomment>Name suggested in the export save dialog (the extension is added).</extracomment>
        <translation>Unbenanntes Bild</translation>
    </message>
    <message id="exportImageSavingNewImage">
        <source>Exporting the picture…</source>
        <extracomment>Progress sheet while the picture is written.</extracomment>
        <translation>Das Bild wird exportiert …</translation>
    </message>
</context>
<context>
    <name>Print</name>
    <message id="printErrorNSPrintOperation">
        <source>%1 could not prepare the print job.</source>
        <extracomment>Alert when no print job can be made. %1 is the application's name.</extracomment>
        <translation>%1 konnte den Druckauftrag nicht vorbereiten.</translation>
    </message>
</context>
<context>
    <name>Introduction</name>
    <message id="introductionDescript1">
        <source>Welcome to %1! Here you compose a small system of planets in a 3D scene, dress each planet, and export a picture of it. This short tour shows you around.</source>
        <extracomment>Introduction tour, page 1 (picture: the program). %1 is the application's name.</extracomment>
        <translation>Willkommen bei %1! Hier stellen Sie in einer 3D-Szene ein kleines Planetensystem zusammen, gestalten jeden Planeten und exportieren ein Bild davon. Dieser kurze Rundgang zeigt Ihnen, wie es geht.</translation>
    </message>
    <message id="introductionDescript2">
        <source>Create a planet with the Create Planet button or Planet ▸ Create Planet, and give it a name. It appears as a new row of the table and as a sphere at the center of the scene.</source>
        <extracomment>Introduction tour, page 2 (picture: creating a planet).</extracomment>
        <translation>Erstellen Sie einen Planeten mit der Taste „Planet erstellen“ oder mit Planet ▸ Planet erstellen, und geben Sie ihm einen Namen. Er erscheint als neue Zeile der Tabelle und als Kugel in der Mitte der Szene.</translation>
    </message>
    <message id="introductionDescript3">
        <source>The scene has three axes: X runs to the right, Y runs up and Z points toward you. Scene ▸ Hide Axes hides the axis cross.</source>
        <extracomment>Introduction tour, page 3 (picture: the three axes).</extracomment>
        <translation>Die Szene hat drei Achsen: X verläuft nach rechts, Y nach oben und Z zeigt auf Sie zu. Szene ▸ Achsen ausblenden blendet das Achsenkreuz aus.</translation>
    </message>
    <message id="introductionDescript4">
        <source>The document area is the picture you export. Type its width and height into the Document size fields and press Return.</source>
        <extracomment>Introduction tour, page 4 (picture: the document size).</extracomment>
        <translation>Der Dokumentbereich ist das Bild, das Sie exportieren. Tragen Sie Breite und Höhe in die Felder der Dokumentgröße ein und drücken Sie die Eingabetaste.</translation>
    </message>
    <message id="introductionDescript5">
        <source>Drag a planet in the scene to move it; its new position appears in the table. You can also type x, y and z into its row.</source>
        <extracomment>Introduction tour, page 5 (picture: moving a planet).</extracomment>
        <translation>Ziehen Sie einen Planeten in der Szene, um ihn zu verschieben; seine neue Position erscheint in der Tabelle. Sie können x, y und z auch in seine Zeile eintippen.</translation>
    </message>
    <message id="introductionDescript6">
        <source>Choose a surface in the Surface column to wrap a planet in one of 48 surface images.</source>
        <extracomment>Introduction tour, page 6 (picture: surfaces).</extracomment>
        <translation>Wählen Sie in der Spalte „Oberfläche“ eine Oberfläche, um einen Planeten mit einem von 48 Oberflächenbildern zu überziehen.</translation>
    </message>
    <message id="introductionDescript7">
        <source>Choose a style in the Style column to paint the planet with a color gradient. Color and style show once the planet has a surface.</source>
        <extracomment>Introduction tour, page 7 (picture: styles).</extracomment>
        <translation>Wählen Sie in der Spalte „Stil“ einen Stil, um den Planeten mit einem Farbverlauf zu bemalen. Farbe und Stil sind zu sehen, sobald der Planet eine Oberfläche hat.</translation>
    </message>
    <message id="introductionDescript8">
        <source>The camera button opens the camera settings, where you move the camera to look at your system from another place.</source>
        <extracomment>Introduction tour, page 8 (picture: the camera).</extracomment>
        <translation>Die Taste „Kamera“ öffnet die Kameraeinstellungen. Dort bewegen Sie die Kamera, um Ihr System von einem anderen Ort aus zu betrachten.</translation>
    </message>
    <message id="introductionDescript9">
        <source>The light button opens the light settings, where you place the light and choose the color it shines in.</source>
        <extracomment>Introduction tour, page 9 (picture: the light).</extracomment>
        <translation>Die Taste „Licht“ öffnet die Lichteinstellungen. Dort platzieren Sie das Licht und wählen die Farbe, in der es leuchtet.</translation>
    </message>
    <message id="introductionDescript10">
        <source>File ▸ Export Picture writes the scene as a BMP, GIF, JPEG, JPEG 2000, PNG or TIFF file, over the background color if you like.</source>
        <extracomment>Introduction tour, page 10 (picture: exporting).</extracomment>
        <translation>Datei ▸ Bild exportieren schreibt die Szene als BMP-, GIF-, JPEG-, JPEG-2000-, PNG- oder TIFF-Datei, auf Wunsch über der Hintergrundfarbe.</translation>
    </message>
    <message id="introductionDescript11">
        <source>File ▸ Save keeps your system as a package that File ▸ Open brings back later.</source>
        <extracomment>Introduction tour, page 11 (picture: saving).</extracomment>
        <translation>Datei ▸ Speichern sichert Ihr System als Paket, das Sie später mit Datei ▸ Öffnen wieder laden.</translation>
    </message>
    <message id="introductionDescript12">
        <source>The Help menu leads to the user guide and to the support website. Enjoy building your systems!</source>
        <extracomment>Introduction tour, page 12 (picture: help).</extracomment>
        <translation>Das Menü „Hilfe“ führt zum Benutzerhandbuch und zur Support-Website. Viel Spaß beim Bauen Ihrer Systeme!</translation>
    </message>
    <message id="controlIntroductionDont">
        <source>Don’t show this introduction again</source>
        <extracomment>Introduction tour: check box that switches the tour off for later starts.</extracomment>
        <translation>Diese Einführung nicht mehr zeigen</translation>
    </message>
</context>
<context>
    <name>SecondaryWindows</name>
    <message id="gradationWindowTitle">
        <source>Style Library</source>
        <extracomment>Title of the window that shows every style as a numbered swatch.</extracomment>
        <translation>Stilbibliothek</translation>
    </message>
    <message id="gradientNumber">
        <source>Style %1</source>
        <extracomment>Caption of a swatch in the style library. %1 is the style's number.</extracomment>
        <translation>Stil %1</translation>
    </message>
    <message id="searchWindowTitle">
        <source>Find Planet</source>
        <extracomment>Title of the window that finds a planet by part of its name.</extracomment>
        <translation>Planet suchen</translation>
    </message>
    <message id="searchFieldPlaceholder">
        <source>Part of a planet name</source>
        <extracomment>Placeholder of the search field.</extracomment>
        <translation>Teil eines Planetennamens</translation>
    </message>
    <message id="searchNoMatch">
        <source>No planet matches</source>
        <extracomment>Shown when no planet's name contains the search text.</extracomment>
        <translation>Kein Planet passt</translation>
    </message>
    <message id="accessiblePlanetTable">
        <source>Planets</source>
        <extracomment>Name of the planet table for screen readers.</extracomment>
        <translation>Planeten</translation>
    </message>
    <message id="saveChangesMsg">
        <source>Do you want to save the changes you made to “%1”?</source>
        <extracomment>Question before unsaved changes would be lost; %1 is the system's name.</extracomment>
        <translation>Möchten Sie die Änderungen an „%1“ speichern?</translation>
    </message>
    <message id="saveChangesInformative">
        <source>Your changes will be lost if you don’t save them.</source>
        <extracomment>Informative text of the unsaved-changes question.</extracomment>
        <translation>Ihre Änderungen gehen verloren, wenn Sie sie nicht speichern.</translation>
    </message>
    <message id="saveChangesSave">
        <source>Save</source>
        <extracomment>First button of the unsaved-changes question.</extracomment>
        <translation>Speichern</translation>
    </message>
    <message id="saveChangesDiscard">
        <source>Don’t Save</source>
        <extracomment>Second button of the unsaved-changes question.</extracomment>
        <translation>Nicht speichern</translation>
    </message>
    <message id="saveChangesCancel">
        <source>Cancel</source>
        <extracomment>Last button of the unsaved-changes question.</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message id="compressionPercent">
        <source>%1%</source>
        <extracomment>Beside a compression slider: its value in per cent. %1 is the number (0 to 100).</extracomment>
        <translation>%1 %</translation>
    </message>
    <message id="alertOK">
        <source>OK</source>
        <extracomment>The one button of an alert that only informs.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="searchClear">
        <source>Clear</source>
        <extracomment>The button that empties the search field.</extracomment>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>Window</name>
    <message id="nameColumn">
        <source>Name</source>
        <extracomment>Planet table: column title (looked up by the column identifier).</extracomment>
        <translation>Name</translation>
    </message>
    <message id="stateColumn">
        <source>Shown</source>
        <extracomment>Planet table: column title of the check box that shows or hides a planet.</extracomment>
        <translation>Sichtbar</translation>
    </message>
    <message id="styleColumn">
        <source>Style</source>
        <extracomment>Planet table: column title.</extracomment>
        <translation>Stil</translation>
    </message>
    <message id="surfaceColumn">
        <source>Surface</source>
        <extracomment>Planet table: column title.</extracomment>
        <translation>Oberfläche</translation>
    </message>
    <message id="xColumn">
        <source>X</source>
        <extracomment>Planet table: column title (position on the x axis).</extracomment>
        <translation>X</translation>
    </message>
    <message id="yColumn">
        <source>Y</source>
        <extracomment>Planet table: column title (position on the y axis).</extracomment>
        <translation>Y</translation>
    </message>
    <message id="zColumn">
        <source>Z</source>
        <extracomment>Planet table: column title (position on the z axis).</extracomment>
        <translation>Z</translation>
    </message>
    <message id="radiusColumn">
        <source>Radius</source>
        <extracomment>Planet table: column title.</extracomment>
        <translation>Radius</translation>
    </message>
    <message id="colorColumn">
        <source>Color</source>
        <extracomment>Planet table: column title.</extracomment>
        <translation>Farbe</translation>
    </message>
    <message id="selectOne">
        <source>- Select one -</source>
        <extracomment>First item of the style and surface menus: no style, no surface.</extracomment>
        <translation>- Bitte wählen -</translation>
    </message>
    <message id="invalidValueStatus">
        <source>That value is not valid; nothing was changed.</source>
        <extracomment>Status label shown for 3 seconds after an invalid cell value.</extracomment>
        <translation>Dieser Wert ist ungültig; es wurde nichts geändert.</translation>
    </message>
    <message id="createPlanetButton">
        <source>Create Planet</source>
        <extracomment>Button above the planet table.</extracomment>
        <translation>Planet erstellen</translation>
    </message>
    <message id="deletePlanetButton">
        <source>Delete Planet</source>
        <extracomment>Button above the planet table.</extracomment>
        <translation>Planet löschen</translation>
    </message>
    <message id="allButton">
        <source>Show All</source>
        <extracomment>Check box above the planet table: shows or hides every planet.</extracomment>
        <translation>Alle zeigen</translation>
    </message>
    <message id="exportButton">
        <source>Export…</source>
        <extracomment>Button of the main window: exports a picture.</extracomment>
        <translation>Exportieren …</translation>
    </message>
    <message id="cameraButton">
        <source>Camera</source>
        <extracomment>Button that opens the camera settings.</extracomment>
        <translation>Kamera</translation>
    </message>
    <message id="lightButton">
        <source>Light</source>
        <extracomment>Button that opens the light settings.</extracomment>
        <translation>Licht</translation>
    </message>
    <message id="createPlanetTitle">
        <source>New Planet</source>
        <extracomment>Title of the sheet that creates a planet.</extracomment>
        <translation>Neuer Planet</translation>
    </message>
    <message id="createPlanetNameLabel">
        <source>Name:</source>
        <extracomment>Label of the name field of the planet sheet.</extracomment>
        <translation>Name:</translation>
    </message>
    <message id="createPlanetCreate">
        <source>Create</source>
        <extracomment>Planet sheet: creates the planet.</extracomment>
        <translation>Erstellen</translation>
    </message>
    <message id="createPlanetCancel">
        <source>Cancel</source>
        <extracomment>Planet sheet: closes without creating a planet.</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message id="cameraXfovLabel">
        <source>Horizontal field of view:</source>
        <extracomment>Camera settings: label, in degrees (30 to 90).</extracomment>
        <translation>Horizontales Sichtfeld:</translation>
    </message>
    <message id="cameraYfovLabel">
        <source>Vertical field of view:</source>
        <extracomment>Camera settings: label, in degrees (30 to 90).</extracomment>
        <translation>Vertikales Sichtfeld:</translation>
    </message>
    <message id="cameraPositionLabel">
        <source>Position (x, y, z):</source>
        <extracomment>Camera settings: label of the three position fields.</extracomment>
        <translation>Position (x, y, z):</translation>
    </message>
    <message id="cameraOrtho">
        <source>Use orthographic scale</source>
        <extracomment>Camera settings: check box.</extracomment>
        <translation>Orthografischen Maßstab verwenden</translation>
    </message>
    <message id="cameraAdjustZ">
        <source>Adjust z range automatically</source>
        <extracomment>Camera settings: check box.</extracomment>
        <translation>Z-Bereich automatisch anpassen</translation>
    </message>
    <message id="cameraDefault">
        <source>Reset</source>
        <extracomment>Camera settings: puts the camera back where it starts.</extracomment>
        <translation>Zurücksetzen</translation>
    </message>
    <message id="lightColorLabel">
        <source>Color:</source>
        <extracomment>Light settings: label of the colour well.</extracomment>
        <translation>Farbe:</translation>
    </message>
    <message id="lightPositionLabel">
        <source>Position (x, y, z):</source>
        <extracomment>Light settings: label of the three position fields.</extracomment>
        <translation>Position (x, y, z):</translation>
    </message>
    <message id="lightDefault">
        <source>Reset</source>
        <extracomment>Light settings: puts the light back where it starts, in white.</extracomment>
        <translation>Zurücksetzen</translation>
    </message>
    <message id="exportIncludeBackground">
        <source>Include background color</source>
        <extracomment>Format question: lays the picture over the scene's background colour.</extracomment>
        <translation>Hintergrundfarbe einbeziehen</translation>
    </message>
    <message id="exportCompressionLabel">
        <source>Compression:</source>
        <extracomment>Export save dialog: label of the compression slider (JPEG and JPEG 2000).</extracomment>
        <translation>Komprimierung:</translation>
    </message>
    <message id="introductionTitle">
        <source>Introduction</source>
        <extracomment>Title of the introduction tour window.</extracomment>
        <translation>Einführung</translation>
    </message>
    <message id="introductionBack">
        <source>Back</source>
        <extracomment>Introduction tour: previous page.</extracomment>
        <translation>Zurück</translation>
    </message>
    <message id="introductionForward">
        <source>Next</source>
        <extracomment>Introduction tour: next page.</extracomment>
        <translation>Weiter</translation>
    </message>
    <message id="preferencesTitle">
        <source>Preferences</source>
        <extracomment>Title of the Preferences sheet.</extracomment>
        <translation>Einstellungen</translation>
    </message>
    <message id="saveFailedMsg">
        <source>The system could not be saved.</source>
        <extracomment>Alert when a save fails; the reason follows as informative text. What was on disk is kept.</extracomment>
        <translation>Das System konnte nicht gespeichert werden.</translation>
    </message>
    <message id="openFailedMsg">
        <source>The system could not be opened.</source>
        <extracomment>Alert when a package cannot be read; the current system is kept.</extracomment>
        <translation>Das System konnte nicht geöffnet werden.</translation>
    </message>
    <message id="exportFailedMsg">
        <source>The picture could not be exported.</source>
        <extracomment>Alert when a picture cannot be written; the reason follows as informative text.</extracomment>
        <translation>Das Bild konnte nicht exportiert werden.</translation>
    </message>
    <message id="userguidePageAddress">
        <source>https://orrery.example.org/guide</source>
        <extracomment>Address of the user guide. Defined once here so that a packager can change it.</extracomment>
        <translation>https://orrery.example.org/guide</translation>
    </message>
    <message id="saveChangesSaveAs">
        <source>Save As…</source>
        <extracomment>First button of the unsaved-changes question when the system is no package yet.</extracomment>
        <translation>Speichern unter …</translation>
    </message>
    <message id="replaceFileMsg">
        <source>“%1” already exists. Do you want to replace it?</source>
        <extracomment>Question before a save writes over an existing file or package; %1 is its name.</extracomment>
        <translation>„%1“ ist bereits vorhanden. Möchten Sie es ersetzen?</translation>
    </message>
    <message id="replaceFileInformative">
        <source>It is in the folder “%1”. Replacing it overwrites what it holds.</source>
        <extracomment>Informative text of the replace question; %1 is the folder.</extracomment>
        <translation>Es liegt im Ordner „%1“. Beim Ersetzen wird sein Inhalt überschrieben.</translation>
    </message>
    <message id="replaceFileReplace">
        <source>Replace</source>
        <extracomment>First button of the replace question.</extracomment>
        <translation>Ersetzen</translation>
    </message>
    <message id="replaceFileCancel">
        <source>Cancel</source>
        <extracomment>Last button of the replace question.</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message id="documentShownScaled">
        <source>Shown at %1%</source>
        <extracomment>Beside the document size when the window cannot show the picture at its size; %1 is the scale in per cent.</extracomment>
        <translation>Angezeigt mit %1 %</translation>
    </message>
    <message id="undoStepTitle">
        <source>Undo %1</source>
        <extracomment>Edit menu item; %1 names the change it takes back.</extracomment>
        <translation>Rückgängig: %1</translation>
    </message>
    <message id="redoStepTitle">
        <source>Redo %1</source>
        <extracomment>Edit menu item; %1 names the change it does again.</extracomment>
        <translation>Wiederholen: %1</translation>
    </message>
    <message id="stepName">
        <source>Name</source>
        <extracomment>Name of a change in Undo and Redo: a planet's name.</extracomment>
        <translation>Name</translation>
    </message>
    <message id="stepShown">
        <source>Visibility</source>
        <extracomment>Name of a change in Undo and Redo: a planet shown or hidden.</extracomment>
        <translation>Sichtbarkeit</translation>
    </message>
    <message id="stepStyle">
        <source>Style</source>
        <extracomment>Name of a change in Undo and Redo: a planet's style.</extracomment>
        <translation>Stil</translation>
    </message>
    <message id="stepSurface">
        <source>Surface</source>
        <extracomment>Name of a change in Undo and Redo: a planet's surface.</extracomment>
        <translation>Oberfläche</translation>
    </message>
    <message id="stepX">
        <source>X Position</source>
        <extracomment>Name of a change in Undo and Redo.</extracomment>
        <translation>X-Position</translation>
    </message>
    <message id="stepY">
        <source>Y Position</source>
        <extracomment>Name of a change in Undo and Redo.</extracomment>
        <translation>Y-Position</translation>
    </message>
    <message id="stepZ">
        <source>Z Position</source>
        <extracomment>Name of a change in Undo and Redo.</extracomment>
        <translation>Z-Position</translation>
    </message>
    <message id="stepRadius">
        <source>Radius</source>
        <extracomment>Name of a change in Undo and Redo: a planet's radius.</extracomment>
        <translation>Radius</translation>
    </message>
    <message id="stepColor">
        <source>Colour</source>
        <extracomment>Name of a change in Undo and Redo: a planet's colour.</extracomment>
        <translation>Farbe</translation>
    </message>
    <message id="stepMove">
        <source>Move Planet</source>
        <extracomment>Name of a change in Undo and Redo: a planet dragged in the scene.</extracomment>
        <translation>Planet verschieben</translation>
    </message>
    <message id="stepCreate">
        <source>Create Planet</source>
        <extracomment>Name of a change in Undo and Redo.</extracomment>
        <translation>Planet erstellen</translation>
    </message>
    <message id="stepDelete">
        <source>Delete Planet</source>
        <extracomment>Name of a change in Undo and Redo.</extracomment>
        <translation>Planet löschen</translation>
    </message>
    <message id="stepShowAll">
        <source>Show All</source>
        <extracomment>Name of a change in Undo and Redo: every planet shown or hidden.</extracomment>
        <translation>Alle zeigen</translation>
    </message>
    <message id="stepCamera">
        <source>Camera</source>
        <extracomment>Name of a change in Undo and Redo.</extracomment>
        <translation>Kamera</translation>
    </message>
    <message id="stepLight">
        <source>Light</source>
        <extracomment>Name of a change in Undo and Redo.</extracomment>
        <translation>Licht</translation>
    </message>
    <message id="stepBackground">
        <source>Background</source>
        <extracomment>Name of a change in Undo and Redo: the background colour.</extracomment>
        <translation>Hintergrund</translation>
    </message>
    <message id="stepSize">
        <source>Document Size</source>
        <extracomment>Name of a change in Undo and Redo: the picture's size.</extracomment>
        <translation>Dokumentgröße</translation>
    </message>
    <message id="noOpenGLMsg">
        <source>The scene cannot be drawn on this display.</source>
        <extracomment>Alert at start when the display offers no usable OpenGL; the program then ends.</extracomment>
        <translation>Die Szene kann auf diesem Bildschirm nicht gezeigt werden.</translation>
    </message>
    <message id="noOpenGLInformative">
        <source>Orrery needs %1. Pictures can still be made from the command line with “orrery render”.</source>
        <extracomment>Informative text of that alert; %1 says what is missing.</extracomment>
        <translation>Orrery braucht %1. Bilder lassen sich weiterhin auf der Befehlszeile mit „orrery render“ erzeugen.</translation>
    </message>
    <message id="sheetTitleCreatePlanet">
        <source>New Planet</source>
        <extracomment>Name of the planet creation sheet for screen readers.</extracomment>
        <translation>Neuer Planet</translation>
    </message>
    <message id="sheetTitlePreferences">
        <source>Preferences</source>
        <extracomment>Name of the Preferences sheet for screen readers.</extracomment>
        <translation>Einstellungen</translation>
    </message>
    <message id="makeMenuFileExportAnimation">
        <source>Export Animation...</source>
        <extracomment>File menu item: the turning system as an animation.</extracomment>
        <translation>Animation exportieren...</translation>
    </message>
    <message id="animationSheetTitle">
        <source>Export an animation of the turning system</source>
        <extracomment>Animation sheet: its name for screen readers.</extracomment>
        <translation>Animation des sich drehenden Systems exportieren</translation>
    </message>
    <message id="animationFormatLabel">
        <source>Format:</source>
        <extracomment>Animation sheet: label of the format pop-up.</extracomment>
        <translation>Format:</translation>
    </message>
    <message id="animationFormatGif">
        <source>Animated GIF</source>
        <extracomment>Animation format.</extracomment>
        <translation>Animiertes GIF</translation>
    </message>
    <message id="animationFormatWebp">
        <source>Animated WebP</source>
        <extracomment>Animation format.</extracomment>
        <translation>Animiertes WebP</translation>
    </message>
    <message id="animationFormatWebm">
        <source>WebM video with transparency</source>
        <extracomment>Animation format: VP9 video with an alpha channel.</extracomment>
        <translation>WebM-Video mit Transparenz</translation>
    </message>
    <message id="animationFormatMp4">
        <source>MP4 video</source>
        <extracomment>Animation format: H.264 video, laid over the background.</extracomment>
        <translation>MP4-Video</translation>
    </message>
    <message id="animationFormatSheet">
        <source>Sprite sheet (PNG and JSON)</source>
        <extracomment>Animation format: every frame in one picture, with an atlas for game engines.</extracomment>
        <translation>Sprite-Sheet (PNG und JSON)</translation>
    </message>
    <message id="animationFormatFrames">
        <source>PNG frames in a folder</source>
        <extracomment>Animation format: one picture per frame.</extracomment>
        <translation>PNG-Einzelbilder in einem Ordner</translation>
    </message>
    <message id="animationFramesLabel">
        <source>Frames per loop:</source>
        <extracomment>Animation sheet: how many frames one loop has.</extracomment>
        <translation>Bilder pro Umlauf:</translation>
    </message>
    <message id="animationFpsLabel">
        <source>Frames per second:</source>
        <extracomment>Animation sheet: playback rate.</extracomment>
        <translation>Bilder pro Sekunde:</translation>
    </message>
    <message id="animationSpinLabel">
        <source>Turning:</source>
        <extracomment>Animation sheet: label of the spin pop-up.</extracomment>
        <translation>Drehung:</translation>
    </message>
    <message id="animationSpinSame">
        <source>Every planet turns once</source>
        <extracomment>Spin choice: all planets turn once per loop.</extracomment>
        <translation>Jeder Planet dreht sich einmal</translation>
    </message>
    <message id="animationSpinBySize">
        <source>Smaller planets turn faster</source>
        <extracomment>Spin choice: the larger a planet, the slower it turns.</extracomment>
        <translation>Kleinere Planeten drehen sich schneller</translation>
    </message>
    <message id="animationLightOrbit">
        <source>The light circles the scene</source>
        <extracomment>Animation sheet: the light goes once around the scene per loop.</extracomment>
        <translation>Das Licht umkreist die Szene</translation>
    </message>
    <message id="animationScaleLabel">
        <source>Size scale:</source>
        <extracomment>Animation sheet: the picture's size times this factor.</extracomment>
        <translation>Größenfaktor:</translation>
    </message>
    <message id="animationQualityLabel">
        <source>Quality:</source>
        <extracomment>Animation sheet: quality of WebP and video (100 is lossless WebP).</extracomment>
        <translation>Qualität:</translation>
    </message>
    <message id="animationExport">
        <source>Export...</source>
        <extracomment>Animation sheet: goes on to the save panel.</extracomment>
        <translation>Exportieren...</translation>
    </message>
    <message id="animationCancel">
        <source>Cancel</source>
        <extracomment>Animation sheet and its progress sheet: stops without writing anything.</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message id="animationPreviewName">
        <source>Preview of the turning system</source>
        <extracomment>Animation sheet: the turning preview, for screen readers.</extracomment>
        <translation>Vorschau des sich drehenden Systems</translation>
    </message>
    <message id="animationSaveTitle">
        <source>Export Animation</source>
        <extracomment>Save panel title for an animation.</extracomment>
        <translation>Animation exportieren</translation>
    </message>
    <message id="animationSaveMessage">
        <source>Choose where the animation goes.</source>
        <extracomment>Save panel message for an animation.</extracomment>
        <translation>Wählen Sie, wohin die Animation geschrieben wird.</translation>
    </message>
    <message id="animationUntitled">
        <source>Turning system</source>
        <extracomment>Suggested file name of an animation.</extracomment>
        <translation>Drehendes System</translation>
    </message>
    <message id="animationFolderTitle">
        <source>Choose the folder for the frames</source>
        <extracomment>Folder panel title for PNG frames.</extracomment>
        <translation>Ordner für die Einzelbilder wählen</translation>
    </message>
    <message id="animationWriting">
        <source>Writing the animation...</source>
        <extracomment>Progress sheet of the animation export.</extracomment>
        <translation>Die Animation wird geschrieben...</translation>
    </message>
    <message id="animationProgress">
        <source>Frame %1 of %2</source>
        <extracomment>Progress sheet: frames done of all.</extracomment>
        <translation>Bild %1 von %2</translation>
    </message>
    <message id="animationFailed">
        <source>The animation could not be exported.</source>
        <extracomment>Alert after a failed animation export.</extracomment>
        <translation>Die Animation konnte nicht exportiert werden.</translation>
    </message>
    <message id="animationPaletteLabel">
        <source>GIF colours:</source>
        <extracomment>Animation sheet: how GIF frames get their palettes.</extracomment>
        <translation>GIF-Farben:</translation>
    </message>
    <message id="animationPaletteFrame">
        <source>One palette for each frame</source>
        <extracomment>GIF palette choice: each frame its own 256 colours.</extracomment>
        <translation>Eine Palette je Bild</translation>
    </message>
    <message id="animationPaletteLoop">
        <source>One palette for the whole loop</source>
        <extracomment>GIF palette choice: the same 256 colours in every frame (steadier, slower).</extracomment>
        <translation>Eine Palette für den ganzen Umlauf</translation>
    </message>
    <message id="makeMenuFileExportPlanets">
        <source>Export Planets…</source>
        <extracomment>File menu: writes the planet table to a .tsv or .csv file for spreadsheets.</extracomment>
        <translation>Planeten exportieren …</translation>
    </message>
    <message id="makeMenuFileImportPlanets">
        <source>Import Planets…</source>
        <extracomment>File menu: adds the planets of a .tsv or .csv file.</extracomment>
        <translation>Planeten importieren …</translation>
    </message>
    <message id="exportPlanetsTitle">
        <source>Export Planets</source>
        <extracomment>Title of the save panel of Export Planets.</extracomment>
        <translation>Planeten exportieren</translation>
    </message>
    <message id="exportPlanetsMessage">
        <source>Save the planets as a table for spreadsheets: .tsv (tabs) or .csv (commas).</source>
        <extracomment>Message of the save panel of Export Planets.</extracomment>
        <translation>Die Planeten als Tabelle für Tabellenkalkulationen sichern: .tsv (Tabulatoren) oder .csv (Kommas).</translation>
    </message>
    <message id="exportPlanetsFile">
        <source>Planets</source>
        <extracomment>Suggested file name of Export Planets.</extracomment>
        <translation>Planeten</translation>
    </message>
    <message id="importPlanetsTitle">
        <source>Import Planets</source>
        <extracomment>Title of the open panel of Import Planets.</extracomment>
        <translation>Planeten importieren</translation>
    </message>
    <message id="importPlanetsMessage">
        <source>Choose a table of planets (.tsv or .csv); its planets are added.</source>
        <extracomment>Message of the open panel of Import Planets.</extracomment>
        <translation>Eine Tabelle mit Planeten wählen (.tsv oder .csv); ihre Planeten werden hinzugefügt.</translation>
    </message>
    <message id="exportPlanetsFailedMsg">
        <source>The planets could not be exported.</source>
        <extracomment>Alert after a failed Export Planets; the reason follows.</extracomment>
        <translation>Die Planeten konnten nicht exportiert werden.</translation>
    </message>
    <message id="importPlanetsFailedMsg">
        <source>The planets could not be imported.</source>
        <extracomment>Alert after a failed Import Planets; the reason follows.</extracomment>
        <translation>Die Planeten konnten nicht importiert werden.</translation>
    </message>
    <message id="rowsRefusedStatus">
        <source>Rows refused: %1</source>
        <extracomment>Status label after a paste or import. %1 lists each refused row's number and the column that failed, such as 3 (radius).</extracomment>
        <translation>Abgelehnte Zeilen: %1</translation>
    </message>
    <message id="makeMenuFileExportScene">
        <source>Export Scene…</source>
        <extracomment>File menu: writes the scene as a glTF file (.glb) for 3D programs.</extracomment>
        <translation>Szene exportieren …</translation>
    </message>
    <message id="exportSceneTitle">
        <source>Export Scene</source>
        <extracomment>Title of the save panel of Export Scene.</extracomment>
        <translation>Szene exportieren</translation>
    </message>
    <message id="exportSceneMessage">
        <source>Save the scene for 3D programs as glTF (.glb): the planets, the camera and the light.</source>
        <extracomment>Message of the save panel of Export Scene.</extracomment>
        <translation>Die Szene für 3D-Programme als glTF (.glb) sichern: die Planeten, die Kamera und das Licht.</translation>
    </message>
    <message id="exportSceneSaving">
        <source>Saving the scene…</source>
        <extracomment>Progress sheet while the scene is written.</extracomment>
        <translation>Die Szene wird gesichert …</translation>
    </message>
    <message id="exportSceneFailedMsg">
        <source>The scene could not be exported.</source>
        <extracomment>Alert after a failed Export Scene; the reason follows.</extracomment>
        <translation>Die Szene konnte nicht exportiert werden.</translation>
    </message>
</context>
</TS>
