<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en">
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>Inicjowanie</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>Grupa tymczasowa</translation>
    </message>
</context>
<context>
    <name>SingleController</name>
    <message>
        <source>The text is too long to paste.</source>
        <translation>Tekst jest zbyt długi, aby go wkleić.</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>Zrzut ekranu</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Zapisz plik</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Obraz (*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>Nie udało się zapisać obrazu.</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>Zrzut ekranu</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Zapisz plik</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Obraz (*.jpg *.png)</translation>
    </message>
</context>
</TS>
