<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>KeyMapControls</name>
    <message>
        <source>Please Select Auxiliary Key</source>
        <translation>Hilfstaste auswählen</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Tippen</translation>
    </message>
    <message>
        <source>keyboard walking</source>
        <translation>Lauf-Joystick</translation>
    </message>
    <message>
        <source>crosshair</source>
        <translation>Fadenkreuz</translation>
    </message>
    <message>
        <source>Key prompts</source>
        <translation>Tastenhinweise</translation>
    </message>
    <message>
        <source>Button transparency</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Key size</source>
        <translation>Tastengröße</translation>
    </message>
    <message>
        <source>Show buttons when entering the game</source>
        <translation>Tasten beim Spielstart anzeigen</translation>
    </message>
    <message>
        <source>Show notes when entering the game</source>
        <translation>Notizen beim Spielstart anzeigen</translation>
    </message>
</context>
<context>
    <name>KeyMapGuide</name>
    <message>
        <source>Tutorial</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>Loading the tutorial</source>
        <translation>Anleitung wird geladen</translation>
    </message>
    <message>
        <source>The tutorial could not be loaded.</source>
        <translation>Die Anleitung konnte nicht geladen werden.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>KeyboardMapEditor</name>
    <message>
        <source>Not using the scheme</source>
        <translation>Kein Schema verwenden</translation>
    </message>
    <message>
        <source>Key Preset</source>
        <translation>Tastenbelegung</translation>
    </message>
    <message>
        <source>Add scheme</source>
        <translation>Schema hinzufügen</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>The sharing code has copied successfully</source>
        <translation>Freigabecode kopiert</translation>
    </message>
    <message>
        <source>The sharing code is %1, and can be sent to your friend to be uploaded for use</source>
        <translation>Der Freigabecode lautet %1. Sende ihn an Freunde, damit sie ihn hochladen und nutzen können</translation>
    </message>
</context>
<context>
    <name>KeyboardMapMgr</name>
    <message>
        <source>This Key Binding is Already in Use</source>
        <translation>Diese Taste ist bereits belegt</translation>
    </message>
    <message>
        <source>Operated successfully</source>
        <translation>Aktion erfolgreich</translation>
    </message>
</context>
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>Wird initialisiert</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Home page</source>
        <translation>Startbildschirm</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>Lauter</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Leiser</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>Bildschirmfoto</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>Bildschirm drehen</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>Tastenbelegung bearbeiten</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>Tastenbelegung mit einem Klick anwenden</translation>
    </message>
</context>
<context>
    <name>OvAuxiliaryKeyEditor</name>
    <message>
        <source>Add Button Notes</source>
        <translation>Tastennotiz hinzufügen</translation>
    </message>
    <message>
        <source>Mouse Sensitivity</source>
        <translation>Mausempfindlichkeit</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>Temporäre Gruppe</translation>
    </message>
</context>
<context>
    <name>OvMaskTipsDialog</name>
    <message>
        <source>Hints</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
</context>
<context>
    <name>QualityBox</name>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>720P HQ</source>
        <translation>720P HQ</translation>
    </message>
    <message>
        <source>720P</source>
        <translation>720P</translation>
    </message>
    <message>
        <source>576P</source>
        <translation>576P</translation>
    </message>
    <message>
        <source>480P</source>
        <translation>480P</translation>
    </message>
    <message>
        <source>240P</source>
        <translation>240P</translation>
    </message>
</context>
<context>
    <name>SchemeBox</name>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Create a copy</source>
        <translation>Kopie erstellen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>SchemeImporter</name>
    <message>
        <source>Operated successfully</source>
        <translation>Aktion erfolgreich</translation>
    </message>
</context>
<context>
    <name>ShareConfigDlg</name>
    <message>
        <source>Upload keyboard layout</source>
        <translation>Tastenbelegung hochladen</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Enter your scheme sharing code</source>
        <translation>Freigabecode des Schemas eingeben</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
</context>
<context>
    <name>SingleController</name>
    <message>
        <source>The text is too long to paste.</source>
        <translation>Der Text ist zu lang zum Einfügen.</translation>
    </message>
</context>
<context>
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>Längere Zeit keine Eingabe: Der Ruhezustand ist aktiv</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>(Der Ruhezustand spart Datenvolumen, die Apps auf dem Gerät laufen weiter)</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>Gerät verlassen</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>(Nach dem Verlassen des Geräts laufen die Apps darauf weiter)</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>Bildschirmfoto</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Datei speichern</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Bild (*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>Das Bild konnte nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>Bildschirmfoto</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Datei speichern</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Bild (*.jpg *.png)</translation>
    </message>
</context>
</TS>
