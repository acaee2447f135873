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
    <name>MenuBar</name>
    <message>
        <source>Home page</source>
        <translation>Ekran główny</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>Zwiększ głośność</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Zmniejsz głośność</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>Zrzut ekranu</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>Obróć ekran</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>Edycja klawiszy</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>Zastosuj przypisanie klawiszy jednym kliknięciem</translation>
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
    <name>OvMaskTipsDialog</name>
    <message>
        <source>Hints</source>
        <translation>Informacja</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Potwierdź</translation>
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
        <translation>Tekst jest zbyt długi, aby go wkleić.</translation>
    </message>
</context>
<context>
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>Długi brak aktywności: włączono tryb wstrzymania</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>(Tryb wstrzymania zmniejsza zużycie danych, a aplikacje na urządzeniu nadal działają)</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>Opuść urządzenie</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>(Po opuszczeniu urządzenia aplikacje na nim nadal działają)</translation>
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
