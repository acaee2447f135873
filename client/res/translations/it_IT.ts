<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>Inizializzazione in corso</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Home page</source>
        <translation>Schermata Home</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>Alza volume</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Abbassa volume</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>Schermata</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>Ruota schermo</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>Modifica tasti</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>Applica l’assegnazione dei tasti con un clic</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>Gruppo temporaneo</translation>
    </message>
</context>
<context>
    <name>OvMaskTipsDialog</name>
    <message>
        <source>Hints</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Conferma</translation>
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
        <translation>Il testo è troppo lungo per essere incollato.</translation>
    </message>
</context>
<context>
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>Inattività prolungata: modalità standby attivata</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>(La modalità standby riduce il consumo di dati e le app sul dispositivo restano in esecuzione)</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>(Dopo l’uscita dal dispositivo, le app restano in esecuzione)</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>Schermata</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Salva file</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Immagine (*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>Impossibile salvare l’immagine.</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>Schermata</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Salva file</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Immagine (*.jpg *.png)</translation>
    </message>
</context>
</TS>
