<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>DeviceKeyMapping</name>
    <message>
        <source>The current layout is not saved yet. Do you want to save the current keyboard layout</source>
        <translation>La disposizione tasti attuale non è ancora stata salvata. Vuoi salvarla?</translation>
    </message>
    <message>
        <source>There is no saved key layout yet</source>
        <translation>Nessuna disposizione tasti ancora salvata</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>Tutorial</source>
        <translation>Tutorial</translation>
    </message>
    <message>
        <source>Upload scheme</source>
        <translation>Carica schema</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Leaves the editor of the key mapping.</extracomment>
        <translation>Esci</translation>
    </message>
</context>
<context>
    <name>FunctionBar</name>
    <message>
        <source>Volume up</source>
        <translation>Volume +</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Volume -</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Riavvia</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
</context>
<context>
    <name>GroupController</name>
    <message>
        <source>The main control device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>Il dispositivo master %1 scade tra %2 min e il controllo di gruppo ne risentirà. Vuoi rinnovarlo?</translation>
    </message>
    <message>
        <source>The controlled device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>Il dispositivo controllato %1 scade tra %2 min e il controllo di gruppo ne risentirà. Vuoi rinnovarlo?</translation>
    </message>
    <message>
        <source>The master has expired for recycling, shall I reassign the master for you and start again?</source>
        <translation>Il dispositivo master è scaduto ed è stato ritirato. Vuoi assegnare un nuovo master e ricominciare?</translation>
    </message>
    <message>
        <source>Expired device (%1) removed</source>
        <extracomment>%1: name of the device.</extracomment>
        <translation>Dispositivo scaduto (%1) rimosso</translation>
    </message>
    <message>
        <source>The text is too long to paste.</source>
        <translation>Il testo è troppo lungo per essere incollato.</translation>
    </message>
    <message>
        <source>Save group</source>
        <translation>Salva</translation>
    </message>
</context>
<context>
    <name>GroupDialogBox</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Conferma</translation>
    </message>
</context>
<context>
    <name>HttpHelper</name>
    <message>
        <source>The request failed. Please try again later.</source>
        <extracomment>The service could not be reached, or gave no reason.</extracomment>
        <translation>La richiesta non è riuscita. Riprova più tardi.</translation>
    </message>
</context>
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
    <name>MainController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of the master device of a group whose picture is on its way.</extracomment>
        <translation>Connessione</translation>
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
    <name>OvUpdateDialog</name>
    <message>
        <source>Update</source>
        <extracomment>Title of the window that downloads a new version of the program.</extracomment>
        <translation>Aggiornamento</translation>
    </message>
    <message>
        <source>Downloading the new version, please wait...</source>
        <translation>Download della nuova versione in corso, attendi...</translation>
    </message>
    <message>
        <source>The new version is ready, install now?</source>
        <translation>La nuova versione è pronta. Installarla ora?</translation>
    </message>
    <message>
        <source>Install now</source>
        <translation>Installa ora</translation>
    </message>
    <message>
        <source>Installation is automatic when closing the app</source>
        <translation>Installa automaticamente alla chiusura dell’app</translation>
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
    <name>RemoveDeviceDialog</name>
    <message>
        <source>Are you sure to remove the device from the group?</source>
        <translation>Vuoi davvero rimuovere il dispositivo dal gruppo?</translation>
    </message>
</context>
<context>
    <name>SaveGroupDialog</name>
    <message>
        <source>Change the name</source>
        <translation>Cambia nome</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>Nome del gruppo</translation>
    </message>
    <message>
        <source>Please enter group name</source>
        <translation>Inserisci il nome del gruppo</translation>
    </message>
    <message>
        <source>This is a temporary group. Do you want to save this group?</source>
        <translation>Questo è un gruppo temporaneo. Vuoi salvarlo?</translation>
    </message>
    <message>
        <source>The name length should be greater than one character and less than 50 characters</source>
        <translation>Il nome deve avere da 1 a 50 caratteri</translation>
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
    <name>SubControlPage</name>
    <message>
        <source>Group control need to be more than 2 devices</source>
        <translation>Il controllo di gruppo richiede almeno 2 dispositivi</translation>
    </message>
    <message>
        <source>Total %1</source>
        <extracomment>How many devices a group has.</extracomment>
        <translation>Totale: %1</translation>
    </message>
    <message>
        <source>50/page</source>
        <extracomment>How many devices of a group a page shows.</extracomment>
        <translation>50/pagina</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Pagina precedente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Pagina successiva</translation>
    </message>
</context>
<context>
    <name>SubController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of a device of a group whose picture is on its way.</extracomment>
        <translation>Connessione</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <extracomment>Followed by a colon and the time after which a device is given back.</extracomment>
        <translation>Tempo rimanente</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>Set as master</source>
        <extracomment>Entry of the menu over a device of a group: it becomes the device whose input the others follow.</extracomment>
        <translation>Rendi master</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>Entry of the menu over a device of a group.</extracomment>
        <translation>Riavvia</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Entry of the menu over a device of a group: it leaves the group.</extracomment>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Single control</source>
        <extracomment>Entry of the menu over a device of a group: it opens in a window of its own.</extracomment>
        <translation>Controllo singolo</translation>
    </message>
</context>
<context>
    <name>TileText</name>
    <message>
        <source>%1d %2h %3min %4s</source>
        <extracomment>Time left: days, hours, minutes, seconds.</extracomment>
        <translation>%1 g %2 h %3 min %4 s</translation>
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
