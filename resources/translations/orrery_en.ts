<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Menus</name>
    <message id="makeMenuFile">
        <source>File</source>
        <extracomment>Menu title.</extracomment>
        <translation>File</translation>
    </message>
    <message id="makeMenuEdit">
        <source>Edit</source>
        <extracomment>Menu title.</extracomment>
        <translation>Edit</translation>
    </message>
    <message id="makeMenuPlanet">
        <source>Planet</source>
        <extracomment>Menu title.</extracomment>
        <translation>Planet</translation>
    </message>
    <message id="makeMenuScene">
        <source>Scene</source>
        <extracomment>Menu title.</extracomment>
        <translation>Scene</translation>
    </message>
    <message id="makeMenuWindow">
        <source>Window</source>
        <extracomment>Menu title.</extracomment>
        <translation>Window</translation>
    </message>
    <message id="makeMenuHelp">
        <source>Help</source>
        <extracomment>Menu title.</extracomment>
        <translation>Help</translation>
    </message>
    <message id="makeMenuAppAbout">
        <source>About %1</source>
        <extracomment>Menu item. %1 is the application's name.</extracomment>
        <translation>About %1</translation>
    </message>
    <message id="makeMenuAppPreferences">
        <source>Preferences…</source>
        <extracomment>Menu item: opens the Preferences sheet.</extracomment>
        <translation>Preferences…</translation>
    </message>
    <message id="makeMenuAppServices">
        <source>Services</source>
        <extracomment>Submenu title (desktop services).</extracomment>
        <translation>Services</translation>
    </message>
    <message id="makeMenuAppHide">
        <source>Hide %1</source>
        <extracomment>Menu item. %1 is the application's name.</extracomment>
        <translation>Hide %1</translation>
    </message>
    <message id="makeMenuAppHideothers">
        <source>Hide Others</source>
        <extracomment>Menu item: hides the other applications.</extracomment>
        <translation>Hide Others</translation>
    </message>
    <message id="makeMenuAppShowall">
        <source>Show All</source>
        <extracomment>Menu item: shows the hidden applications again.</extracomment>
        <translation>Show All</translation>
    </message>
    <message id="makeMenuAppQuit">
        <source>Quit %1</source>
        <extracomment>Menu item. %1 is the application's name.</extracomment>
        <translation>Quit %1</translation>
    </message>
    <message id="makeMenuFileNew">
        <source>New System</source>
        <extracomment>File menu: clears the current system of planets.</extracomment>
        <translation>New System</translation>
    </message>
    <message id="makeMenuFileOpen">
        <source>Open…</source>
        <extracomment>File menu: opens a system package (.kvx).</extracomment>
        <translation>Open…</translation>
    </message>
    <message id="makeMenuFileClose">
        <source>Close Window</source>
        <extracomment>File menu: closes the main window, which quits the program.</extracomment>
        <translation>Close Window</translation>
    </message>
    <message id="makeMenuFileSave">
        <source>Save</source>
        <extracomment>File menu.</extracomment>
        <translation>Save</translation>
    </message>
    <message id="makeMenuFileSaveAs">
        <source>Save As…</source>
        <extracomment>File menu.</extracomment>
        <translation>Save As…</translation>
    </message>
    <message id="makeMenuFileExport">
        <source>Export Picture…</source>
        <extracomment>File menu: writes a picture of the scene to an image file.</extracomment>
        <translation>Export Picture…</translation>
    </message>
    <message id="makeMenuFilePrintsetup">
        <source>Page Setup…</source>
        <extracomment>File menu.</extracomment>
        <translation>Page Setup…</translation>
    </message>
    <message id="makeMenuFilePrint">
        <source>Print…</source>
        <extracomment>File menu.</extracomment>
        <translation>Print…</translation>
    </message>
    <message id="makeMenuEditUndo">
        <source>Undo</source>
        <extracomment>Edit menu.</extracomment>
        <translation>Undo</translation>
    </message>
    <message id="makeMenuEditRedo">
        <source>Redo</source>
        <extracomment>Edit menu.</extracomment>
        <translation>Redo</translation>
    </message>
    <message id="makeMenuEditCut">
        <source>Cut</source>
        <extracomment>Edit menu.</extracomment>
        <translation>Cut</translation>
    </message>
    <message id="makeMenuEditCopy">
        <source>Copy</source>
        <extracomment>Edit menu.</extracomment>
        <translation>Copy</translation>
    </message>
    <message id="makeMenuEditPaste">
        <source>Paste</source>
        <extracomment>Edit menu.</extracomment>
        <translation>Paste</translation>
    </message>
    <message id="makeMenuEditPastematch">
        <source>Paste and Match Style</source>
        <extracomment>Edit menu.</extracomment>
        <translation>Paste and Match Style</translation>
    </message>
    <message id="makeMenuEditDelete">
        <source>Delete</source>
        <extracomment>Edit menu.</extracomment>
        <translation>Delete</translation>
    </message>
    <message id="makeMenuEditSelectall">
        <source>Select All</source>
        <extracomment>Edit menu.</extracomment>
        <translation>Select All</translation>
    </message>
    <message id="makeMenuEditFind">
        <source>Find</source>
        <extracomment>Edit menu: submenu title.</extracomment>
        <translation>Find</translation>
    </message>
    <message id="makeMenuEditSpelling">
        <source>Spelling and Grammar</source>
        <extracomment>Edit menu: submenu title.</extracomment>
        <translation>Spelling and Grammar</translation>
    </message>
    <message id="makeMenuEditSubstitute">
        <source>Substitutions</source>
        <extracomment>Edit menu: submenu title.</extracomment>
        <translation>Substitutions</translation>
    </message>
    <message id="makeMenuEditTransform">
        <source>Transformations</source>
        <extracomment>Edit menu: submenu title.</extracomment>
        <translation>Transformations</translation>
    </message>
    <message id="makeMenuEditSpeech">
        <source>Speech</source>
        <extracomment>Edit menu: submenu title.</extracomment>
        <translation>Speech</translation>
    </message>
    <message id="makeMenuEditFindFind">
        <source>Find…</source>
        <extracomment>Edit ▸ Find submenu.</extracomment>
        <translation>Find…</translation>
    </message>
    <message id="makeMenuEditFindReplace">
        <source>Find and Replace…</source>
        <extracomment>Edit ▸ Find submenu. Always greyed out: planets are renamed in their table row.</extracomment>
        <translation>Find and Replace…</translation>
    </message>
    <message id="makeMenuEditFindNext">
        <source>Find Next</source>
        <extracomment>Edit ▸ Find submenu.</extracomment>
        <translation>Find Next</translation>
    </message>
    <message id="makeMenuEditFindPrev">
        <source>Find Previous</source>
        <extracomment>Edit ▸ Find submenu.</extracomment>
        <translation>Find Previous</translation>
    </message>
    <message id="makeMenuEditFindUseselect">
        <source>Use Selection for Find</source>
        <extracomment>Edit ▸ Find submenu.</extracomment>
        <translation>Use Selection for Find</translation>
    </message>
    <message id="makeMenuEditFindJump">
        <source>Jump to Selection</source>
        <extracomment>Edit ▸ Find submenu: scrolls the planet table to the selected planet.</extracomment>
        <translation>Jump to Selection</translation>
    </message>
    <message id="makeMenuEditSpellShow">
        <source>Show Spelling and Grammar</source>
        <extracomment>Edit ▸ Spelling and Grammar submenu.</extracomment>
        <translation>Show Spelling and Grammar</translation>
    </message>
    <message id="makeMenuEditSpellCheckdoc">
        <source>Check Document Now</source>
        <extracomment>Edit ▸ Spelling and Grammar submenu.</extracomment>
        <translation>Check Document Now</translation>
    </message>
    <message id="makeMenuEditSpellCheckspell">
        <source>Check Spelling While Typing</source>
        <extracomment>Edit ▸ Spelling and Grammar submenu.</extracomment>
        <translation>Check Spelling While Typing</translation>
    </message>
    <message id="makeMenuEditSpellCheckgram">
        <source>Check Grammar With Spelling</source>
        <extracomment>Edit ▸ Spelling and Grammar submenu. The key is spelt so.</extracomment>
        <translation>Check Grammar With Spelling</translation>
    </message>
    <message id="makeMenuEditSpellCorrect">
        <source>Correct Spelling Automatically</source>
        <extracomment>Edit ▸ Spelling and Grammar submenu.</extracomment>
        <translation>Correct Spelling Automatically</translation>
    </message>
    <message id="makeMenuSubstShow">
        <source>Show Substitutions</source>
        <extracomment>Edit ▸ Substitutions submenu.</extracomment>
        <translation>Show Substitutions</translation>
    </message>
    <message id="makeMenuSubstSmartcopy">
        <source>Smart Copy/Paste</source>
        <extracomment>Edit ▸ Substitutions submenu.</extracomment>
        <translation>Smart Copy/Paste</translation>
    </message>
    <message id="makeMenuSubstSmartquo">
        <source>Smart Quotes</source>
        <extracomment>Edit ▸ Substitutions submenu. The key is spelt so.</extracomment>
        <translation>Smart Quotes</translation>
    </message>
    <message id="makeMenuSubstSmartdash">
        <source>Smart Dashes</source>
        <extracomment>Edit ▸ Substitutions submenu.</extracomment>
        <translation>Smart Dashes</translation>
    </message>
    <message id="makeMenuSubstSmartlinks">
        <source>Smart Links</source>
        <extracomment>Edit ▸ Substitutions submenu.</extracomment>
        <translation>Smart Links</translation>
    </message>
    <message id="makeMenuSubstData">
        <source>Data Detectors</source>
        <extracomment>Edit ▸ Substitutions submenu.</extracomment>
        <translation>Data Detectors</translation>
    </message>
    <message id="makeMenuSubstText">
        <source>Text Replacement</source>
        <extracomment>Edit ▸ Substitutions submenu.</extracomment>
        <translation>Text Replacement</translation>
    </message>
    <message id="makeMenuEditTransformUpp">
        <source>Make Upper Case</source>
        <extracomment>Edit ▸ Transformations submenu.</extracomment>
        <translation>Make Upper Case</translation>
    </message>
    <message id="makeMenuEditTransformLow">
        <source>Make Lower Case</source>
        <extracomment>Edit ▸ Transformations submenu.</extracomment>
        <translation>Make Lower Case</translation>
    </message>
    <message id="makeMenuEditTransformCap">
        <source>Capitalize</source>
        <extracomment>Edit ▸ Transformations submenu.</extracomment>
        <translation>Capitalize</translation>
    </message>
    <message id="makeMenuEditSpeechStart">
        <source>Start Speaking</source>
        <extracomment>Edit ▸ Speech submenu.</extracomment>
        <translation>Start Speaking</translation>
    </message>
    <message id="makeMenuEditSpeechStop">
        <source>Stop Speaking</source>
        <extracomment>Edit ▸ Speech submenu.</extracomment>
        <translation>Stop Speaking</translation>
    </message>
    <message id="makeMenuPlanetCreate">
        <source>Create Planet…</source>
        <extracomment>Planet menu: opens the sheet that asks for the new planet's name.</extracomment>
        <translation>Create Planet…</translation>
    </message>
    <message id="makeMenuPlanetDelete">
        <source>Delete Planet</source>
        <extracomment>Planet menu: deletes the planet selected in the table.</extracomment>
        <translation>Delete Planet</translation>
    </message>
    <message id="makeMenuSceneHideAxes">
        <source>Hide Axes</source>
        <extracomment>Scene menu, a checkable item: checked while the axis cross is hidden.</extracomment>
        <translation>Hide Axes</translation>
    </message>
    <message id="makeMenuSceneColors">
        <source>Background</source>
        <extracomment>Scene menu: submenu of the six background colours of the document area.</extracomment>
        <translation>Background</translation>
    </message>
    <message id="makeMenuSceneColorTransparnet">
        <source>Transparent</source>
        <extracomment>Scene ▸ Background. The key is spelt so (letters transposed).</extracomment>
        <translation>Transparent</translation>
    </message>
    <message id="makeMenuSceneColorWhite">
        <source>White</source>
        <extracomment>Scene ▸ Background.</extracomment>
        <translation>White</translation>
    </message>
    <message id="makeMenuSceneColorBlack">
        <source>Black</source>
        <extracomment>Scene ▸ Background.</extracomment>
        <translation>Black</translation>
    </message>
    <message id="makeMenuSceneColorDarkNavyBlue">
        <source>Dark Navy Blue</source>
        <extracomment>Scene ▸ Background.</extracomment>
        <translation>Dark Navy Blue</translation>
    </message>
    <message id="makeMenuSceneColorDarkDarkNavyBlue">
        <source>Darker Navy Blue</source>
        <extracomment>Scene ▸ Background.</extracomment>
        <translation>Darker Navy Blue</translation>
    </message>
    <message id="makeMenuSceneColorDarkDarkDarkNavyBlue">
        <source>Darkest Navy Blue</source>
        <extracomment>Scene ▸ Background.</extracomment>
        <translation>Darkest Navy Blue</translation>
    </message>
    <message id="makeMenuWindowMinimize">
        <source>Minimize</source>
        <extracomment>Window menu.</extracomment>
        <translation>Minimize</translation>
    </message>
    <message id="makeMenuWindowZoom">
        <source>Zoom</source>
        <extracomment>Window menu.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message id="makeMenuWindowBringfront">
        <source>Bring All to Front</source>
        <extracomment>Window menu.</extracomment>
        <translation>Bring All to Front</translation>
    </message>
    <message id="makeMenuHelpUserguide">
        <source>User Guide…</source>
        <extracomment>Help menu: asks, then opens the user guide in the web browser.</extracomment>
        <translation>User Guide…</translation>
    </message>
    <message id="makeMenuHelpSupport">
        <source>Support…</source>
        <extracomment>Help menu: asks, then opens the support page that comes with the program in the web browser.</extracomment>
        <translation>Support…</translation>
    </message>
    <message id="makeMenuHelpAbout">
        <source>About %1</source>
        <extracomment>Help menu (Linux has no application menu). %1 is the application's name.</extracomment>
        <translation>About %1</translation>
    </message>
    <message id="makeMenuViewFullScreen">
        <source>Enter Full Screen</source>
        <extracomment>Menu item: shows the main window full screen.</extracomment>
        <translation>Enter Full Screen</translation>
    </message>
    <message id="makeMenuWindowGradation">
        <source>Style Library</source>
        <extracomment>Window menu: opens the window that shows every style as a swatch.</extracomment>
        <translation>Style Library</translation>
    </message>
    <message id="makeMenuWindowSearch">
        <source>Find Planet</source>
        <extracomment>Window menu: opens the window that finds a planet by part of its name.</extracomment>
        <translation>Find Planet</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="access userguide">
        <source>Do you want to open the user guide in your web browser?</source>
        <extracomment>Question before the user guide opens.</extracomment>
        <translation>Do you want to open the user guide in your web browser?</translation>
    </message>
    <message id="access website">
        <source>Do you want to open the support page in your web browser?</source>
        <extracomment>Question before the support page opens.</extracomment>
        <translation>Do you want to open the support page in your web browser?</translation>
    </message>
    <message id="yes">
        <source>Yes</source>
        <extracomment>First button of the help questions: goes on.</extracomment>
        <translation>Yes</translation>
    </message>
    <message id="cancel">
        <source>Cancel</source>
        <extracomment>Second button of the help questions.</extracomment>
        <translation>Cancel</translation>
    </message>
    <message id="aboutText">
        <source>Orrery %1 — compose planet systems and export pictures of them.</source>
        <extracomment>Text of the About box. %1 is the program's version.</extracomment>
        <translation>Orrery %1 — compose planet systems and export pictures of them.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message id="accessibleCloseButton">
        <source>Close</source>
        <extracomment>Accessible name of the title bar's close button.</extracomment>
        <translation>Close</translation>
    </message>
    <message id="accessibleMinimizeButton">
        <source>Minimize</source>
        <extracomment>Accessible name of the title bar's minimize button.</extracomment>
        <translation>Minimize</translation>
    </message>
    <message id="accessibleZoomButton">
        <source>Zoom</source>
        <extracomment>Accessible name of the title bar's zoom button.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message id="accessibleFullScreenButton">
        <source>Full screen</source>
        <extracomment>Accessible name of the title bar's full-screen button.</extracomment>
        <translation>Full screen</translation>
    </message>
    <message id="accessibleSceneView">
        <source>Scene</source>
        <extracomment>Accessible name of the 3D scene view.</extracomment>
        <translation>Scene</translation>
    </message>
    <message id="accessibleBackdrop">
        <source>Document area</source>
        <extracomment>Accessible name of the document area behind the scene (the exported picture).</extracomment>
        <translation>Document area</translation>
    </message>
    <message id="accessibleWidthField">
        <source>Document width</source>
        <extracomment>Accessible name of the document width field.</extracomment>
        <translation>Document width</translation>
    </message>
    <message id="accessibleHeightField">
        <source>Document height</source>
        <extracomment>Accessible name of the document height field.</extracomment>
        <translation>Document height</translation>
    </message>
    <message id="documentSizeLabel">
        <source>Document size</source>
        <extracomment>Label in front of the two document size fields (width × height, in pixels).</extracomment>
        <translation>Document size</translation>
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
        <translation>General</translation>
    </message>
    <message id="controlPreferencesTabName1">
        <source>Folders</source>
        <extracomment>Preferences: title of the second tab.</extracomment>
        <translation>Folders</translation>
    </message>
    <message id="controlPreferencesTabName2">
        <source>Exporting</source>
        <extracomment>Preferences: title of the third tab.</extracomment>
        <translation>Exporting</translation>
    </message>
    <message id="controlPreferencesGeneral1">
        <source>Center the window on the screen at startup</source>
        <extracomment>Preferences ▸ General: check box 1.</extracomment>
        <translation>Center the window on the screen at startup</translation>
    </message>
    <message id="controlPreferencesGeneral2">
        <source>Don’t show the introduction at startup</source>
        <extracomment>Preferences ▸ General: check box 2.</extracomment>
        <translation>Don’t show the introduction at startup</translation>
    </message>
    <message id="controlPreferencesGeneral3">
        <source>Delete planets without asking</source>
        <extracomment>Preferences ▸ General: check box 3.</extracomment>
        <translation>Delete planets without asking</translation>
    </message>
    <message id="controlPreferencesGeneral4">
        <source>Include the background color when exporting</source>
        <extracomment>Preferences ▸ General: check box 4.</extracomment>
        <translation>Include the background color when exporting</translation>
    </message>
    <message id="controlPreferencesGeneral5">
        <source>Start a new system without asking</source>
        <extracomment>Preferences ▸ General: check box 5.</extracomment>
        <translation>Start a new system without asking</translation>
    </message>
    <message id="controlPreferencesGeneral6">
        <source>Reserved option 6</source>
        <extracomment>Preferences ▸ General: check box 6. It is stored, but nothing in the program uses it yet.</extracomment>
        <translation>Reserved option 6</translation>
    </message>
    <message id="controlPreferencesGeneral7">
        <source>Reserved option 7</source>
        <extracomment>Preferences ▸ General: check box 7. It is stored, but nothing in the program uses it yet.</extracomment>
        <translation>Reserved option 7</translation>
    </message>
    <message id="controlPreferencesGeneral8">
        <source>Reserved option 8</source>
        <extracomment>Preferences ▸ General: check box 8. It is stored, but nothing in the program uses it yet.</extracomment>
        <translation>Reserved option 8</translation>
    </message>
    <message id="controlPreferencesGeneral9">
        <source>Reserved option 9</source>
        <extracomment>Preferences ▸ General: check box 9. It is stored, but nothing in the program uses it yet.</extracomment>
        <translation>Reserved option 9</translation>
    </message>
    <message id="controlPreferencesGeneral10">
        <source>Reserved option 10</source>
        <extracomment>Preferences ▸ General: check box 10. It is stored, but nothing in the program uses it yet.</extracomment>
        <translation>Reserved option 10</translation>
    </message>
    <message id="controlPreferencesGeneral11">
        <source>Reserved option 11</source>
        <extracomment>Preferences ▸ General: check box 11. It is stored, but nothing in the program uses it yet.</extracomment>
        <translation>Reserved option 11</translation>
    </message>
    <message id="controlPreferencesGeneral12">
        <source>Reserved option 12</source>
        <extracomment>Preferences ▸ General: check box 12. It is stored, but nothing in the program uses it yet.</extracomment>
        <translation>Reserved option 12</translation>
    </message>
    <message id="controlPreferencesOpenfolderTitle">
        <source>Open Folder</source>
        <extracomment>Preferences ▸ Folders: title of the box for the folder that Open starts in.</extracomment>
        <translation>Open Folder</translation>
    </message>
    <message id="controlPreferencesOpenfolderLabel">
        <source>Systems are opened from this folder:</source>
        <extracomment>Preferences ▸ Folders: label above the open folder.</extracomment>
        <translation>Systems are opened from this folder:</translation>
    </message>
    <message id="controlPreferencesOpenfolderDefault">
        <source>Use Documents</source>
        <extracomment>Preferences ▸ Folders: button that resets the open folder to the Documents folder.</extracomment>
        <translation>Use Documents</translation>
    </message>
    <message id="controlPreferencesOpenOther">
        <source>Choose the Open Folder</source>
        <extracomment>Title of the dialog that chooses another open folder.</extracomment>
        <translation>Choose the Open Folder</translation>
    </message>
    <message id="controlPreferencesExportfolderTitle">
        <source>Export Folder</source>
        <extracomment>Preferences ▸ Folders: title of the box for the folder that exports go to.</extracomment>
        <translation>Export Folder</translation>
    </message>
    <message id="controlPreferencesExportfolderLabel">
        <source>Pictures and saved systems go to this folder:</source>
        <extracomment>Preferences ▸ Folders: label above the export folder. Save As starts here too.</extracomment>
        <translation>Pictures and saved systems go to this folder:</translation>
    </message>
    <message id="controlPreferencesExportfolderDefault">
        <source>Use Documents</source>
        <extracomment>Preferences ▸ Folders: button that resets the export folder to the Documents folder.</extracomment>
        <translation>Use Documents</translation>
    </message>
    <message id="controlPreferencesExportOther">
        <source>Choose the Export Folder</source>
        <extracomment>Title of the dialog that chooses another export folder.</extracomment>
        <translation>Choose the Export Folder</translation>
    </message>
    <message id="preferencesOther">
        <source>Other…</source>
        <extracomment>Second item of each folder menu: chooses another folder.</extracomment>
        <translation>Other…</translation>
    </message>
    <message id="controlPreferencesExportingBox">
        <source>Exporting</source>
        <extracomment>Preferences ▸ Exporting: box title.</extracomment>
        <translation>Exporting</translation>
    </message>
    <message id="controlPreferencesExportingLabel1">
        <source>Default format:</source>
        <extracomment>Preferences ▸ Exporting: label of the image format menu.</extracomment>
        <translation>Default format:</translation>
    </message>
    <message id="controlPreferencesExportingLabel2">
        <source>Compression:</source>
        <extracomment>Preferences ▸ Exporting: label of the compression slider (JPEG and JPEG 2000).</extracomment>
        <translation>Compression:</translation>
    </message>
    <message id="controlPreferencesExportingSelection">
        <source>Default image format for exported pictures</source>
        <extracomment>Preferences ▸ Exporting: describes the image format menu (tool tip).</extracomment>
        <translation>Default image format for exported pictures</translation>
    </message>
    <message id="controlPreferencesSomeLabel">
        <source>Some changes take effect the next time the program starts.</source>
        <extracomment>Preferences: note at the bottom of the sheet.</extracomment>
        <translation>Some changes take effect the next time the program starts.</translation>
    </message>
    <message id="controlPreferencesClose1">
        <source>Close</source>
        <extracomment>Preferences: closes the sheet without storing the changes.</extracomment>
        <translation>Close</translation>
    </message>
    <message id="controlPreferencesSave1">
        <source>Save</source>
        <extracomment>Preferences: stores the changes and closes the sheet.</extracomment>
        <translation>Save</translation>
    </message>
</context>
<context>
    <name>Planets</name>
    <message id="deletePlanetMsg">
        <source>Do you want to delete the planet “%1”?</source>
        <extracomment>Question before a planet is deleted. %1 is the planet's name.</extracomment>
        <translation>Do you want to delete the planet “%1”?</translation>
    </message>
    <message id="deletePlanetInformative">
        <source>The planet is removed from the table and from the scene.</source>
        <extracomment>Informative text of the delete question.</extracomment>
        <translation>The planet is removed from the table and from the scene.</translation>
    </message>
    <message id="deletePlanetYes">
        <source>Delete</source>
        <extracomment>First button of the delete question.</extracomment>
        <translation>Delete</translation>
    </message>
    <message id="deletePlanetNo">
        <source>Cancel</source>
        <extracomment>Second button of the delete question.</extracomment>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message id="createNewSystemMsg">
        <source>Do you want to start a new system?</source>
        <extracomment>Question of File ▸ New System.</extracomment>
        <translation>Do you want to start a new system?</translation>
    </message>
    <message id="createNewSystemInformative">
        <source>All planets of the current system are removed, and the camera and the light return to their defaults. Changes you have not saved are lost.</source>
        <extracomment>Informative text of the New System question.</extracomment>
        <translation>All planets of the current system are removed, and the camera and the light return to their defaults. Changes you have not saved are lost.</translation>
    </message>
    <message id="createNewSystemYes">
        <source>New System</source>
        <extracomment>First button of the New System question.</extracomment>
        <translation>New System</translation>
    </message>
    <message id="createNewSystemCancel">
        <source>Cancel</source>
        <extracomment>Second button of the New System question.</extracomment>
        <translation>Cancel</translation>
    </message>
    <message id="saveDocumentFile">
        <source>Untitled System</source>
        <extracomment>Name suggested in the Save As dialog (the .kvx extension is added).</extracomment>
        <translation>Untitled System</translation>
    </message>
    <message id="saveDocumentWindow">
        <source>Choose where %1 saves the system.</source>
        <extracomment>Message of the Save As dialog. %1 is the application's name.</extracomment>
        <translation>Choose where %1 saves the system.</translation>
    </message>
    <message id="saveDocumentMessage">
        <source>Save System – %1</source>
        <extracomment>Title of the Save As dialog. %1 is the application's name.</extracomment>
        <translation>Save System – %1</translation>
    </message>
    <message id="saveDocumentLabel">
        <source>Saving the system…</source>
        <extracomment>Progress sheet while a system is saved.</extracomment>
        <translation>Saving the system…</translation>
    </message>
    <message id="openDocTitle">
        <source>Open System</source>
        <extracomment>Title of the Open dialog.</extracomment>
        <translation>Open System</translation>
    </message>
    <message id="openDocMessage">
        <source>Choose a system package (.kvx) to open.</source>
        <extracomment>Message of the Open dialog.</extracomment>
        <translation>Choose a system package (.kvx) to open.</translation>
    </message>
    <message id="openDocMessageLabel">
        <source>Opening the system…</source>
        <extracomment>Progress sheet while a system is opened.</extracomment>
        <translation>Opening the system…</translation>
    </message>
</context>
<context>
    <name>Export</name>
    <message id="exportImageSelectingExportFormat">
        <source>Choose the format of the exported picture.</source>
        <extracomment>Question sheet that starts the export; holds the format menu and the include-background check box.</extracomment>
        <translation>Choose the format of the exported picture.</translation>
    </message>
    <message id="exportImageNext">
        <source>Continue</source>
        <extracomment>First button of the format question: goes on to the save dialog.</extracomment>
        <translation>Continue</translation>
    </message>
    <message id="exportImageCancel">
        <source>Cancel</source>
        <extracomment>Second button of the format question.</extracomment>
        <translation>Cancel</translation>
    </message>
    <message id="controlAccessory1Label1">
        <source>Format:</source>
        <extracomment>Label of the image format menu in the format question.</extracomment>
        <translation>Format:</translation>
    </message>
    <message id="exportImageTitle">
        <source>Export Picture</source>
        <extracomment>Title of the export save dialog.</extracomment>
        <translation>Export Picture</translation>
    </message>
    <message id="exportImageSelectFilePath">
        <source>Choose where to save the picture.</source>
        <extracomment>Message of the export save dialog.</extracomment>
        <translation>Choose where to save the picture.</translation>
    </message>
    <message id="exportImageUntitleFileName">
        <source>Untitled Picture</source>
        <extracomment>Name suggested in the export save dialog (the extension is added).</extracomment>
        <translation>Untitled Picture</translation>
    </message>
    <message id="exportImageSavingNewImage">
        <source>Exporting the picture…</source>
        <extracomment>Progress sheet while the picture is written.</extracomment>
        <translation>Exporting the picture…</translation>
    </message>
</context>
<context>
    <name>Print</name>
    <message id="printErrorNSPrintOperation">
        <source>%1 could not prepare the print job.</source>
        <extracomment>Alert when no print job can be made. %1 is the application's name.</extracomment>
        <translation>%1 could not prepare the print job.</translation>
    </message>
</context>
<context>
    <name>Introduction</name>
    <message id="introductionDescript1">
        <source>Welcome to %1! Here you compose a small system of planets in a 3D scene, dress each planet, and export a picture of it. This short tour shows you around.</source>
        <extracomment>Introduction tour, page 1 (picture: the program). %1 is the application's name.</extracomment>
        <translation>Welcome to %1! Here you compose a small system of planets in a 3D scene, dress each planet, and export a picture of it. This short tour shows you around.</translation>
    </message>
    <message id="introductionDescript2">
        <source>Create a planet with the Create Planet button or Planet ▸ Create Planet, and give it a name. It appears as a new row of the table and as a sphere at the center of the scene.</source>
        <extracomment>Introduction tour, page 2 (picture: creating a planet).</extracomment>
        <translation>Create a planet with the Create Planet button or Planet ▸ Create Planet, and give it a name. It appears as a new row of the table and as a sphere at the center of the scene.</translation>
    </message>
    <message id="introductionDescript3">
        <source>The scene has three axes: X runs to the right, Y runs up and Z points toward you. Scene ▸ Hide Axes hides the axis cross.</source>
        <extracomment>Introduction tour, page 3 (picture: the three axes).</extracomment>
        <translation>The scene has three axes: X runs to the right, Y runs up and Z points toward you. Scene ▸ Hide Axes hides the axis cross.</translation>
    </message>
    <message id="introductionDescript4">
        <source>The document area is the picture you export. Type its width and height into the Document size fields and press Return.</source>
        <extracomment>Introduction tour, page 4 (picture: the document size).</extracomment>
        <translation>The document area is the picture you export. Type its width and height into the Document size fields and press Return.</translation>
    </message>
    <message id="introductionDescript5">
        <source>Drag a planet in the scene to move it; its new position appears in the table. You can also type x, y and z into its row.</source>
        <extracomment>Introduction tour, page 5 (picture: moving a planet).</extracomment>
        <translation>Drag a planet in the scene to move it; its new position appears in the table. You can also type x, y and z into its row.</translation>
    </message>
    <message id="introductionDescript6">
        <source>Choose a surface in the Surface column to wrap a planet in one of 48 surface images.</source>
        <extracomment>Introduction tour, page 6 (picture: surfaces).</extracomment>
        <translation>Choose a surface in the Surface column to wrap a planet in one of 48 surface images.</translation>
    </message>
    <message id="introductionDescript7">
        <source>Choose a style in the Style column to paint the planet with a color gradient. Color and style show once the planet has a surface.</source>
        <extracomment>Introduction tour, page 7 (picture: styles).</extracomment>
        <translation>Choose a style in the Style column to paint the planet with a color gradient. Color and style show once the planet has a surface.</translation>
    </message>
    <message id="introductionDescript8">
        <source>The camera button opens the camera settings, where you move the camera to look at your system from another place.</source>
        <extracomment>Introduction tour, page 8 (picture: the camera).</extracomment>
        <translation>The camera button opens the camera settings, where you move the camera to look at your system from another place.</translation>
    </message>
    <message id="introductionDescript9">
        <source>The light button opens the light settings, where you place the light and choose the color it shines in.</source>
        <extracomment>Introduction tour, page 9 (picture: the light).</extracomment>
        <translation>The light button opens the light settings, where you place the light and choose the color it shines in.</translation>
    </message>
    <message id="introductionDescript10">
        <source>File ▸ Export Picture writes the scene as a BMP, GIF, JPEG, JPEG 2000, PNG or TIFF file, over the background color if you like.</source>
        <extracomment>Introduction tour, page 10 (picture: exporting).</extracomment>
        <translation>File ▸ Export Picture writes the scene as a BMP, GIF, JPEG, JPEG 2000, PNG or TIFF file, over the background color if you like.</translation>
    </message>
    <message id="introductionDescript11">
        <source>File ▸ Save keeps your system as a package that File ▸ Open brings back later.</source>
        <extracomment>Introduction tour, page 11 (picture: saving).</extracomment>
        <translation>File ▸ Save keeps your system as a package that File ▸ Open brings back later.</translation>
    </message>
    <message id="introductionDescript12">
        <source>The Help menu leads to the user guide and to the support website. Enjoy building your systems!</source>
        <extracomment>Introduction tour, page 12 (picture: help).</extracomment>
        <translation>The Help menu leads to the user guide and to the support website. Enjoy building your systems!</translation>
    </message>
    <message id="controlIntroductionDont">
        <source>Don’t show this introduction again</source>
        <extracomment>Introduction tour: check box that switches the tour off for later starts.</extracomment>
        <translation>Don’t show this introduction again</translation>
    </message>
</context>
<context>
    <name>SecondaryWindows</name>
    <message id="gradationWindowTitle">
        <source>Style Library</source>
        <extracomment>Title of the window that shows every style as a numbered swatch.</extracomment>
        <translation>Style Library</translation>
    </message>
    <message id="gradientNumber">
        <source>Style %1</source>
        <extracomment>Caption of a swatch in the style library. %1 is the style's number.</extracomment>
        <translation>Style %1</translation>
    </message>
    <message id="searchWindowTitle">
        <source>Find Planet</source>
        <extracomment>Title of the window that finds a planet by part of its name.</extracomment>
        <translation>Find Planet</translation>
    </message>
    <message id="searchFieldPlaceholder">
        <source>Part of a planet name</source>
        <extracomment>Placeholder of the search field.</extracomment>
        <translation>Part of a planet name</translation>
    </message>
    <message id="searchNoMatch">
        <source>No planet matches</source>
        <extracomment>Shown when no planet's name contains the search text.</extracomment>
        <translation>No planet matches</translation>
    </message>
    <message id="accessiblePlanetTable">
        <source>Planets</source>
        <extracomment>Name of the planet table for screen readers.</extracomment>
        <translation>Planets</translation>
    </message>
    <message id="saveChangesMsg">
        <source>Do you want to save the changes you made to “%1”?</source>
        <extracomment>Question before unsaved changes would be lost; %1 is the system's name.</extracomment>
        <translation>Do you want to save the changes you made to “%1”?</translation>
    </message>
    <message id="saveChangesInformative">
        <source>Your changes will be lost if you don’t save them.</source>
        <extracomment>Informative text of the unsaved-changes question.</extracomment>
        <translation>Your changes will be lost if you don’t save them.</translation>
    </message>
    <message id="saveChangesSave">
        <source>Save</source>
        <extracomment>First button of the unsaved-changes question.</extracomment>
        <translation>Save</translation>
    </message>
    <message id="saveChangesDiscard">
        <source>Don’t Save</source>
        <extracomment>Second button of the unsaved-changes question.</extracomment>
        <translation>Don’t Save</translation>
    </message>
    <message id="saveChangesCancel">
        <source>Cancel</source>
        <extracomment>Last button of the unsaved-changes question.</extracomment>
        <translation>Cancel</translation>
    </message>
    <message id="compressionPercent">
        <source>%1%</source>
        <extracomment>Beside a compression slider: its value in per cent. %1 is the number (0 to 100).</extracomment>
        <translation>%1%</translation>
    </message>
    <message id="alertOK">
        <source>OK</source>
        <extracomment>The one button of an alert that only informs.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="searchClear">
        <source>Clear</source>
        <extracomment>The button that empties the search field.</extracomment>
        <translation>Clear</translation>
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
        <translation>Shown</translation>
    </message>
    <message id="styleColumn">
        <source>Style</source>
        <extracomment>Planet table: column title.</extracomment>
        <translation>Style</translation>
    </message>
    <message id="surfaceColumn">
        <source>Surface</source>
        <extracomment>Planet table: column title.</extracomment>
        <translation>Surface</translation>
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
        <translation>Color</translation>
    </message>
    <message id="selectOne">
        <source>- Select one -</source>
        <extracomment>First item of the style and surface menus: no style, no surface.</extracomment>
        <translation>- Select one -</translation>
    </message>
    <message id="invalidValueStatus">
        <source>That value is not valid; nothing was changed.</source>
        <extracomment>Status label shown for 3 seconds after an invalid cell value.</extracomment>
        <translation>That value is not valid; nothing was changed.</translation>
    </message>
    <message id="createPlanetButton">
        <source>Create Planet</source>
        <extracomment>Button above the planet table.</extracomment>
        <translation>Create Planet</translation>
    </message>
    <message id="deletePlanetButton">
        <source>Delete Planet</source>
        <extracomment>Button above the planet table.</extracomment>
        <translation>Delete Planet</translation>
    </message>
    <message id="allButton">
        <source>Show All</source>
        <extracomment>Check box above the planet table: shows or hides every planet.</extracomment>
        <translation>Show All</translation>
    </message>
    <message id="exportButton">
        <source>Export…</source>
        <extracomment>Button of the main window: exports a picture.</extracomment>
        <translation>Export…</translation>
    </message>
    <message id="cameraButton">
        <source>Camera</source>
        <extracomment>Button that opens the camera settings.</extracomment>
        <translation>Camera</translation>
    </message>
    <message id="lightButton">
        <source>Light</source>
        <extracomment>Button that opens the light settings.</extracomment>
        <translation>Light</translation>
    </message>
    <message id="createPlanetTitle">
        <source>New Planet</source>
        <extracomment>Title of the sheet that creates a planet.</extracomment>
        <translation>New Planet</translation>
    </message>
    <message id="createPlanetNameLabel">
        <source>Name:</source>
        <extracomment>Label of the name field of the planet sheet.</extracomment>
        <translation>Name:</translation>
    </message>
    <message id="createPlanetCreate">
        <source>Create</source>
        <extracomment>Planet sheet: creates the planet.</extracomment>
        <translation>Create</translation>
    </message>
    <message id="createPlanetCancel">
        <source>Cancel</source>
        <extracomment>Planet sheet: closes without creating a planet.</extracomment>
        <translation>Cancel</translation>
    </message>
    <message id="cameraXfovLabel">
        <source>Horizontal field of view:</source>
        <extracomment>Camera settings: label, in degrees (30 to 90).</extracomment>
        <translation>Horizontal field of view:</translation>
    </message>
    <message id="cameraYfovLabel">
        <source>Vertical field of view:</source>
        <extracomment>Camera settings: label, in degrees (30 to 90).</extracomment>
        <translation>Vertical field of view:</translation>
    </message>
    <message id="cameraPositionLabel">
        <source>Position (x, y, z):</source>
        <extracomment>Camera settings: label of the three position fields.</extracomment>
        <translation>Position (x, y, z):</translation>
    </message>
    <message id="cameraOrtho">
        <source>Use orthographic scale</source>
        <extracomment>Camera settings: check box.</extracomment>
        <translation>Use orthographic scale</translation>
    </message>
    <message id="cameraAdjustZ">
        <source>Adjust z range automatically</source>
        <extracomment>Camera settings: check box.</extracomment>
        <translation>Adjust z range automatically</translation>
    </message>
    <message id="cameraDefault">
        <source>Reset</source>
        <extracomment>Camera settings: puts the camera back where it starts.</extracomment>
        <translation>Reset</translation>
    </message>
    <message id="lightColorLabel">
        <source>Color:</source>
        <extracomment>Light settings: label of the colour well.</extracomment>
        <translation>Color:</translation>
    </message>
    <message id="lightPositionLabel">
        <source>Position (x, y, z):</source>
        <extracomment>Light settings: label of the three position fields.</extracomment>
        <translation>Position (x, y, z):</translation>
    </message>
    <message id="lightDefault">
        <source>Reset</source>
        <extracomment>Light settings: puts the light back where it starts, in white.</extracomment>
        <translation>Reset</translation>
    </message>
    <message id="exportIncludeBackground">
        <source>Include background color</source>
        <extracomment>Format question: lays the picture over the scene's background colour.</extracomment>
        <translation>Include background color</translation>
    </message>
    <message id="exportCompressionLabel">
        <source>Compression:</source>
        <extracomment>Export save dialog: label of the compression slider (JPEG and JPEG 2000).</extracomment>
        <translation>Compression:</translation>
    </message>
    <message id="introductionTitle">
        <source>Introduction</source>
        <extracomment>Title of the introduction tour window.</extracomment>
        <translation>Introduction</translation>
    </message>
    <message id="introductionBack">
        <source>Back</source>
        <extracomment>Introduction tour: previous page.</extracomment>
        <translation>Back</translation>
    </message>
    <message id="introductionForward">
        <source>Next</source>
        <extracomment>Introduction tour: next page.</extracomment>
        <translation>Next</translation>
    </message>
    <message id="preferencesTitle">
        <source>Preferences</source>
        <extracomment>Title of the Preferences sheet.</extracomment>
        <translation>Preferences</translation>
    </message>
    <message id="saveFailedMsg">
        <source>The system could not be saved.</source>
        <extracomment>Alert when a save fails; the reason follows as informative text. What was on disk is kept.</extracomment>
        <translation>The system could not be saved.</translation>
    </message>
    <message id="openFailedMsg">
        <source>The system could not be opened.</source>
        <extracomment>Alert when a package cannot be read; the current system is kept.</extracomment>
        <translation>The system could not be opened.</translation>
    </message>
    <message id="exportFailedMsg">
        <source>The picture could not be exported.</source>
        <extracomment>Alert when a picture cannot be written; the reason follows as informative text.</extracomment>
        <translation>The picture could not be exported.</translation>
    </message>
    <message id="userguidePageAddress">
        <source>https://orrery.example.org/guide</source>
        <extracomment>Address of the user guide. Defined once here so that a packager can change it.</extracomment>
        <translation>https://orrery.example.org/guide</translation>
    </message>
    <message id="saveChangesSaveAs">
        <source>Save As…</source>
        <extracomment>First button of the unsaved-changes question when the system is no package yet.</extracomment>
        <translation>Save As…</translation>
    </message>
    <message id="replaceFileMsg">
        <source>“%1” already exists. Do you want to replace it?</source>
        <extracomment>Question before a save writes over an existing file or package; %1 is its name.</extracomment>
        <translation>“%1” already exists. Do you want to replace it?</translation>
    </message>
    <message id="replaceFileInformative">
        <source>It is in the folder “%1”. Replacing it overwrites what it holds.</source>
        <extracomment>Informative text of the replace question; %1 is the folder.</extracomment>
        <translation>It is in the folder “%1”. Replacing it overwrites what it holds.</translation>
    </message>
    <message id="replaceFileReplace">
        <source>Replace</source>
        <extracomment>First button of the replace question.</extracomment>
        <translation>Replace</translation>
    </message>
    <message id="replaceFileCancel">
        <source>Cancel</source>
        <extracomment>Last button of the replace question.</extracomment>
        <translation>Cancel</translation>
    </message>
    <message id="documentShownScaled">
        <source>Shown at %1%</source>
        <extracomment>Beside the document size when the window cannot show the picture at its size; %1 is the scale in per cent.</extracomment>
        <translation>Shown at %1%</translation>
    </message>
    <message id="undoStepTitle">
        <source>Undo %1</source>
        <extracomment>Edit menu item; %1 names the change it takes back.</extracomment>
        <translation>Undo %1</translation>
    </message>
    <message id="redoStepTitle">
        <source>Redo %1</source>
        <extracomment>Edit menu item; %1 names the change it does again.</extracomment>
        <translation>Redo %1</translation>
    </message>
    <message id="stepName">
        <source>Name</source>
        <extracomment>Name of a change in Undo and Redo: a planet's name.</extracomment>
        <translation>Name</translation>
    </message>
    <message id="stepShown">
        <source>Visibility</source>
        <extracomment>Name of a change in Undo and Redo: a planet shown or hidden.</extracomment>
        <translation>Visibility</translation>
    </message>
    <message id="stepStyle">
        <source>Style</source>
        <extracomment>Name of a change in Undo and Redo: a planet's style.</extracomment>
        <translation>Style</translation>
    </message>
    <message id="stepSurface">
        <source>Surface</source>
        <extracomment>Name of a change in Undo and Redo: a planet's surface.</extracomment>
        <translation>Surface</translation>
    </message>
    <message id="stepX">
        <source>X Position</source>
        <extracomment>Name of a change in Undo and Redo.</extracomment>
        <translation>X Position</translation>
    </message>
    <message id="stepY">
        <source>Y Position</source>
        <extracomment>Name of a change in Undo and Redo.</extracomment>
        <translation>Y Position</translation>
    </message>
    <message id="stepZ">
        <source>Z Position</source>
        <extracomment>Name of a change in Undo and Redo.</extracomment>
        <translation>Z Position</translation>
    </message>
    <message id="stepRadius">
        <source>Radius</source>
        <extracomment>Name of a change in Undo and Redo: a planet's radius.</extracomment>
        <translation>Radius</translation>
    </message>
    <message id="stepColor">
        <source>Colour</source>
        <extracomment>Name of a change in Undo and Redo: a planet's colour.</extracomment>
        <translation>Colour</translation>
    </message>
    <message id="stepMove">
        <source>Move Planet</source>
        <extracomment>Name of a change in Undo and Redo: a planet dragged in the scene.</extracomment>
        <translation>Move Planet</translation>
    </message>
    <message id="stepCreate">
        <source>Create Planet</source>
        <extracomment>Name of a change in Undo and Redo.</extracomment>
        <translation>Create Planet</translation>
    </message>
    <message id="stepDelete">
        <source>Delete Planet</source>
        <extracomment>Name of a change in Undo and Redo.</extracomment>
        <translation>Delete Planet</translation>
    </message>
    <message id="stepShowAll">
        <source>Show All</source>
        <extracomment>Name of a change in Undo and Redo: every planet shown or hidden.</extracomment>
        <translation>Show All</translation>
    </message>
    <message id="stepCamera">
        <source>Camera</source>
        <extracomment>Name of a change in Undo and Redo.</extracomment>
        <translation>Camera</translation>
    </message>
    <message id="stepLight">
        <source>Light</source>
        <extracomment>Name of a change in Undo and Redo.</extracomment>
        <translation>Light</translation>
    </message>
    <message id="stepBackground">
        <source>Background</source>
        <extracomment>Name of a change in Undo and Redo: the background colour.</extracomment>
        <translation>Background</translation>
    </message>
    <message id="stepSize">
        <source>Document Size</source>
        <extracomment>Name of a change in Undo and Redo: the picture's size.</extracomment>
        <translation>Document Size</translation>
    </message>
    <message id="noOpenGLMsg">
        <source>The scene cannot be drawn on this display.</source>
        <extracomment>Alert at start when the display offers no usable OpenGL; the program then ends.</extracomment>
        <translation>The scene cannot be drawn on this display.</translation>
    </message>
    <message id="noOpenGLInformative">
        <source>Orrery needs %1. Pictures can still be made from the command line with “orrery render”.</source>
        <extracomment>Informative text of that alert; %1 says what is missing.</extracomment>
        <translation>Orrery needs %1. Pictures can still be made from the command line with “orrery render”.</translation>
    </message>
    <message id="sheetTitleCreatePlanet">
        <source>New Planet</source>
        <extracomment>Name of the planet creation sheet for screen readers.</extracomment>
        <translation>New Planet</translation>
    </message>
    <message id="sheetTitlePreferences">
        <source>Preferences</source>
        <extracomment>Name of the Preferences sheet for screen readers.</extracomment>
        <translation>Preferences</translation>
    </message>
    <message id="makeMenuFileExportAnimation">
        <source>Export Animation...</source>
        <extracomment>File menu item: the turning system as an animation.</extracomment>
        <translation>Export Animation...</translation>
    </message>
    <message id="animationSheetTitle">
        <source>Export an animation of the turning system</source>
        <extracomment>Animation sheet: its name for screen readers.</extracomment>
        <translation>Export an animation of the turning system</translation>
    </message>
    <message id="animationFormatLabel">
        <source>Format:</source>
        <extracomment>Animation sheet: label of the format pop-up.</extracomment>
        <translation>Format:</translation>
    </message>
    <message id="animationFormatGif">
        <source>Animated GIF</source>
        <extracomment>Animation format.</extracomment>
        <translation>Animated GIF</translation>
    </message>
    <message id="animationFormatWebp">
        <source>Animated WebP</source>
        <extracomment>Animation format.</extracomment>
        <translation>Animated WebP</translation>
    </message>
    <message id="animationFormatWebm">
        <source>WebM video with transparency</source>
        <extracomment>Animation format: VP9 video with an alpha channel.</extracomment>
        <translation>WebM video with transparency</translation>
    </message>
    <message id="animationFormatMp4">
        <source>MP4 video</source>
        <extracomment>Animation format: H.264 video, laid over the background.</extracomment>
        <translation>MP4 video</translation>
    </message>
    <message id="animationFormatSheet">
        <source>Sprite sheet (PNG and JSON)</source>
        <extracomment>Animation format: every frame in one picture, with an atlas for game engines.</extracomment>
        <translation>Sprite sheet (PNG and JSON)</translation>
    </message>
    <message id="animationFormatFrames">
        <source>PNG frames in a folder</source>
        <extracomment>Animation format: one picture per frame.</extracomment>
        <translation>PNG frames in a folder</translation>
    </message>
    <message id="animationFramesLabel">
        <source>Frames per loop:</source>
        <extracomment>Animation sheet: how many frames one loop has.</extracomment>
        <translation>Frames per loop:</translation>
    </message>
    <message id="animationFpsLabel">
        <source>Frames per second:</source>
        <extracomment>Animation sheet: playback rate.</extracomment>
        <translation>Frames per second:</translation>
    </message>
    <message id="animationSpinLabel">
        <source>Turning:</source>
        <extracomment>Animation sheet: label of the spin pop-up.</extracomment>
        <translation>Turning:</translation>
    </message>
    <message id="animationSpinSame">
        <source>Every planet turns once</source>
        <extracomment>Spin choice: all planets turn once per loop.</extracomment>
        <translation>Every planet turns once</translation>
    </message>
    <message id="animationSpinBySize">
        <source>Smaller planets turn faster</source>
        <extracomment>Spin choice: the larger a planet, the slower it turns.</extracomment>
        <translation>Smaller planets turn faster</translation>
    </message>
    <message id="animationLightOrbit">
        <source>The light circles the scene</source>
        <extracomment>Animation sheet: the light goes once around the scene per loop.</extracomment>
        <translation>The light circles the scene</translation>
    </message>
    <message id="animationScaleLabel">
        <source>Size scale:</source>
        <extracomment>Animation sheet: the picture's size times this factor.</extracomment>
        <translation>Size scale:</translation>
    </message>
    <message id="animationQualityLabel">
        <source>Quality:</source>
        <extracomment>Animation sheet: quality of WebP and video (100 is lossless WebP).</extracomment>
        <translation>Quality:</translation>
    </message>
    <message id="animationExport">
        <source>Export...</source>
        <extracomment>Animation sheet: goes on to the save panel.</extracomment>
        <translation>Export...</translation>
    </message>
    <message id="animationCancel">
        <source>Cancel</source>
        <extracomment>Animation sheet and its progress sheet: stops without writing anything.</extracomment>
        <translation>Cancel</translation>
    </message>
    <message id="animationPreviewName">
        <source>Preview of the turning system</source>
        <extracomment>Animation sheet: the turning preview, for screen readers.</extracomment>
        <translation>Preview of the turning system</translation>
    </message>
    <message id="animationSaveTitle">
        <source>Export Animation</source>
        <extracomment>Save panel title for an animation.</extracomment>
        <translation>Export Animation</translation>
    </message>
    <message id="animationSaveMessage">
        <source>Choose where the animation goes.</source>
        <extracomment>Save panel message for an animation.</extracomment>
        <translation>Choose where the animation goes.</translation>
    </message>
    <message id="animationUntitled">
        <source>Turning system</source>
        <extracomment>Suggested file name of an animation.</extracomment>
        <translation>Turning system</translation>
    </message>
    <message id="animationFolderTitle">
        <source>Choose the folder for the frames</source>
        <extracomment>Folder panel title for PNG frames.</extracomment>
        <translation>Choose the folder for the frames</translation>
    </message>
    <message id="animationWriting">
        <source>Writing the animation...</source>
        <extracomment>Progress sheet of the animation export.</extracomment>
        <translation>Writing the animation...</translation>
    </message>
    <message id="animationProgress">
        <source>Frame %1 of %2</source>
        <extracomment>Progress sheet: frames done of all.</extracomment>
        <translation>Frame %1 of %2</translation>
    </message>
    <message id="animationFailed">
        <source>The animation could not be exported.</source>
        <extracomment>Alert after a failed animation export.</extracomment>
        <translation>The animation could not be exported.</translation>
    </message>
    <message id="animationPaletteLabel">
        <source>GIF colours:</source>
        <extracomment>Animation sheet: how GIF frames get their palettes.</extracomment>
        <translation>GIF colours:</translation>
    </message>
    <message id="animationPaletteFrame">
        <source>One palette for each frame</source>
        <extracomment>GIF palette choice: each frame its own 256 colours.</extracomment>
        <translation>One palette for each frame</translation>
    </message>
    <message id="animationPaletteLoop">
        <source>One palette for the whole loop</source>
        <extracomment>GIF palette choice: the same 256 colours in every frame (steadier, slower).</extracomment>
        <translation>One palette for the whole loop</translation>
    </message>
    <message id="makeMenuFileExportPlanets">
        <source>Export Planets…</source>
        <extracomment>File menu: writes the planet table to a .tsv or .csv file for spreadsheets.</extracomment>
        <translation>Export Planets…</translation>
    </message>
    <message id="makeMenuFileImportPlanets">
        <source>Import Planets…</source>
        <extracomment>File menu: adds the planets of a .tsv or .csv file.</extracomment>
        <translation>Import Planets…</translation>
    </message>
    <message id="exportPlanetsTitle">
        <source>Export Planets</source>
        <extracomment>Title of the save panel of Export Planets.</extracomment>
        <translation>Export Planets</translation>
    </message>
    <message id="exportPlanetsMessage">
        <source>Save the planets as a table for spreadsheets: .tsv (tabs) or .csv (commas).</source>
        <extracomment>Message of the save panel of Export Planets.</extracomment>
        <translation>Save the planets as a table for spreadsheets: .tsv (tabs) or .csv (commas).</translation>
    </message>
    <message id="exportPlanetsFile">
        <source>Planets</source>
        <extracomment>Suggested file name of Export Planets.</extracomment>
        <translation>Planets</translation>
    </message>
    <message id="importPlanetsTitle">
        <source>Import Planets</source>
        <extracomment>Title of the open panel of Import Planets.</extracomment>
        <translation>Import Planets</translation>
    </message>
    <message id="importPlanetsMessage">
        <source>Choose a table of planets (.tsv or .csv); its planets are added.</source>
        <extracomment>Message of the open panel of Import Planets.</extracomment>
        <translation>Choose a table of planets (.tsv or .csv); its planets are added.</translation>
    </message>
    <message id="exportPlanetsFailedMsg">
        <source>The planets could not be exported.</source>
        <extracomment>Alert after a failed Export Planets; the reason follows.</extracomment>
        <translation>The planets could not be exported.</translation>
    </message>
    <message id="importPlanetsFailedMsg">
        <source>The planets could not be imported.</source>
        <extracomment>Alert after a failed Import Planets; the reason follows.</extracomment>
        <translation>The planets could not be imported.</translation>
    </message>
    <message id="rowsRefusedStatus">
        <source>Rows refused: %1</source>
        <extracomment>Status label after a paste or import. %1 lists each refused row's number and the column that failed, such as 3 (radius).</extracomment>
        <translation>Rows refused: %1</translation>
    </message>
    <message id="makeMenuFileExportScene">
        <source>Export Scene…</source>
        <extracomment>File menu: writes the scene as a glTF file (.glb) for 3D programs.</extracomment>
        <translation>Export Scene…</translation>
    </message>
    <message id="exportSceneTitle">
        <source>Export Scene</source>
        <extracomment>Title of the save panel of Export Scene.</extracomment>
        <translation>Export Scene</translation>
    </message>
    <message id="exportSceneMessage">
        <source>Save the scene for 3D programs as glTF (.glb): the planets, the camera and the light.</source>
        <extracomment>Message of the save panel of Export Scene.</extracomment>
        <translation>Save the scene for 3D programs as glTF (.glb): the planets, the camera and the light.</translation>
    </message>
    <message id="exportSceneSaving">
        <source>Saving the scene…</source>
        <extracomment>Progress sheet while the scene is written.</extracomment>
        <translation>Saving the scene…</translation>
    </message>
    <message id="exportSceneFailedMsg">
        <source>The scene could not be exported.</source>
        <extracomment>Alert after a failed Export Scene; the reason follows.</extracomment>
        <translation>The scene could not be exported.</translation>
    </message>
</context>
</TS>
