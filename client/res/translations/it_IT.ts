<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>KeyMapControls</name>
    <message>
        <source>Please Select Auxiliary Key</source>
        <translation>Seleziona un tasto ausiliario</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Clic</translation>
    </message>
    <message>
        <source>keyboard walking</source>
        <translation>Joystick di movimento</translation>
    </message>
    <message>
        <source>crosshair</source>
        <translation>Mirino</translation>
    </message>
    <message>
        <source>Key prompts</source>
        <translation>Suggerimenti dei tasti</translation>
    </message>
    <message>
        <source>Button transparency</source>
        <translation>Opacità dei tasti</translation>
    </message>
    <message>
        <source>Key size</source>
        <translation>Dimensione tasti</translation>
    </message>
    <message>
        <source>Show buttons when entering the game</source>
        <translation>Mostra i tasti all’avvio del gioco</translation>
    </message>
    <message>
        <source>Show notes when entering the game</source>
        <translation>Mostra le note all’avvio del gioco</translation>
    </message>
</context>
<context>
    <name>KeyMapGuide</name>
    <message>
        <source>Tutorial</source>
        <translation>Tutorial</translation>
    </message>
    <message>
        <source>Loading the tutorial</source>
        <translation>Caricamento del tutorial</translation>
    </message>
    <message>
        <source>The tutorial could not be loaded.</source>
        <translation>Impossibile caricare il tutorial.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fine</translation>
    </message>
</context>
<context>
    <name>KeyboardMapEditor</name>
    <message>
        <source>Not using the scheme</source>
        <translation>Nessuno schema</translation>
    </message>
    <message>
        <source>Key Preset</source>
        <translation>Preset dei tasti</translation>
    </message>
    <message>
        <source>Add scheme</source>
        <translation>Aggiungi schema</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>The sharing code has copied successfully</source>
        <translation>Codice di condivisione copiato</translation>
    </message>
    <message>
        <source>The sharing code is %1, and can be sent to your friend to be uploaded for use</source>
        <translation>Il codice di condivisione è %1. Invialo a un amico perché lo carichi e lo usi</translation>
    </message>
</context>
<context>
    <name>KeyboardMapMgr</name>
    <message>
        <source>This Key Binding is Already in Use</source>
        <translation>Questo tasto è già assegnato</translation>
    </message>
    <message>
        <source>Operated successfully</source>
        <translation>Operazione riuscita</translation>
    </message>
</context>
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
    <name>OvAuxiliaryKeyEditor</name>
    <message>
        <source>Add Button Notes</source>
        <translation>Aggiungi nota al tasto</translation>
    </message>
    <message>
        <source>Mouse Sensitivity</source>
        <translation>Sensibilità mouse</translation>
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
    <name>SchemeBox</name>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Condividi</translation>
    </message>
    <message>
        <source>Create a copy</source>
        <translation>Crea una copia</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
</context>
<context>
    <name>SchemeImporter</name>
    <message>
        <source>Operated successfully</source>
        <translation>Operazione riuscita</translation>
    </message>
</context>
<context>
    <name>ShareConfigDlg</name>
    <message>
        <source>Upload keyboard layout</source>
        <translation>Carica disposizione tasti</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Enter your scheme sharing code</source>
        <translation>Inserisci il codice dello schema</translation>
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
