<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
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
