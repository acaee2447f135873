<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>DeviceKeyMapping</name>
    <message>
        <source>The current layout is not saved yet. Do you want to save the current keyboard layout</source>
        <translation>Die aktuelle Tastenbelegung ist noch nicht gespeichert. Jetzt speichern?</translation>
    </message>
    <message>
        <source>There is no saved key layout yet</source>
        <translation>Noch keine Tastenbelegung gespeichert</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>Tutorial</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>Upload scheme</source>
        <translation>Schema hochladen</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Leaves the editor of the key mapping.</extracomment>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>FunctionBar</name>
    <message>
        <source>Volume up</source>
        <translation>Lauter</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Leiser</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Neustart</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
</context>
<context>
    <name>GroupController</name>
    <message>
        <source>The main control device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>Das Mastergerät %1 läuft in %2 Min. ab. Das beeinträchtigt die Gruppensteuerung. Möchtest du es verlängern?</translation>
    </message>
    <message>
        <source>The controlled device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>Das gesteuerte Gerät %1 läuft in %2 Min. ab. Das beeinträchtigt die Gruppensteuerung. Möchtest du es verlängern?</translation>
    </message>
    <message>
        <source>The master has expired for recycling, shall I reassign the master for you and start again?</source>
        <translation>Das Mastergerät ist abgelaufen und wurde zurückgenommen. Soll ein neuer Master zugewiesen und neu begonnen werden?</translation>
    </message>
    <message>
        <source>Expired device (%1) removed</source>
        <extracomment>%1: name of the device.</extracomment>
        <translation>Abgelaufenes Gerät (%1) entfernt</translation>
    </message>
    <message>
        <source>The text is too long to paste.</source>
        <translation>Der Text ist zu lang zum Einfügen.</translation>
    </message>
    <message>
        <source>Save group</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>GroupDialogBox</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
</context>
<context>
    <name>HttpHelper</name>
    <message>
        <source>The request failed. Please try again later.</source>
        <extracomment>The service could not be reached, or gave no reason.</extracomment>
        <translation>Die Anfrage ist fehlgeschlagen. Bitte versuche es später erneut.</translation>
    </message>
</context>
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
    <name>MainController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of the master device of a group whose picture is on its way.</extracomment>
        <translation>Verbinden</translation>
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
    <name>OvUpdateDialog</name>
    <message>
        <source>Update</source>
        <extracomment>Title of the window that downloads a new version of the program.</extracomment>
        <translation>Aktualisierung</translation>
    </message>
    <message>
        <source>Downloading the new version, please wait...</source>
        <translation>Die neue Version wird heruntergeladen, bitte warten...</translation>
    </message>
    <message>
        <source>The new version is ready, install now?</source>
        <translation>Die neue Version ist bereit. Jetzt installieren?</translation>
    </message>
    <message>
        <source>Install now</source>
        <translation>Jetzt installieren</translation>
    </message>
    <message>
        <source>Installation is automatic when closing the app</source>
        <translation>Beim Schließen der App automatisch installieren</translation>
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
    <name>RemoveDeviceDialog</name>
    <message>
        <source>Are you sure to remove the device from the group?</source>
        <translation>Möchtest du das Gerät wirklich aus der Gruppe entfernen?</translation>
    </message>
</context>
<context>
    <name>SaveGroupDialog</name>
    <message>
        <source>Change the name</source>
        <translation>Namen ändern</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>Gruppenname</translation>
    </message>
    <message>
        <source>Please enter group name</source>
        <translation>Gruppennamen eingeben</translation>
    </message>
    <message>
        <source>This is a temporary group. Do you want to save this group?</source>
        <translation>Dies ist eine temporäre Gruppe. Möchtest du sie speichern?</translation>
    </message>
    <message>
        <source>The name length should be greater than one character and less than 50 characters</source>
        <translation>Der Name muss 1 bis 50 Zeichen lang sein</translation>
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
    <name>SubControlPage</name>
    <message>
        <source>Group control need to be more than 2 devices</source>
        <translation>Für die Gruppensteuerung sind mindestens 2 Geräte nötig</translation>
    </message>
    <message>
        <source>Total %1</source>
        <extracomment>How many devices a group has.</extracomment>
        <translation>Gesamt: %1</translation>
    </message>
    <message>
        <source>50/page</source>
        <extracomment>How many devices of a group a page shows.</extracomment>
        <translation>50/Seite</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorherige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
</context>
<context>
    <name>SubController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of a device of a group whose picture is on its way.</extracomment>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <extracomment>Followed by a colon and the time after which a device is given back.</extracomment>
        <translation>Restzeit</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>Set as master</source>
        <extracomment>Entry of the menu over a device of a group: it becomes the device whose input the others follow.</extracomment>
        <translation>Als Master festlegen</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>Entry of the menu over a device of a group.</extracomment>
        <translation>Neu starten</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Entry of the menu over a device of a group: it leaves the group.</extracomment>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Single control</source>
        <extracomment>Entry of the menu over a device of a group: it opens in a window of its own.</extracomment>
        <translation>Einzelsteuerung</translation>
    </message>
</context>
<context>
    <name>TileText</name>
    <message>
        <source>%1d %2h %3min %4s</source>
        <extracomment>Time left: days, hours, minutes, seconds.</extracomment>
        <translation>%1 T %2 Std %3 Min %4 s</translation>
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
