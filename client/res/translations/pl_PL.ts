<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en">
<context>
    <name>DeviceKeyMapping</name>
    <message>
        <source>The current layout is not saved yet. Do you want to save the current keyboard layout</source>
        <translation>Bieżący układ klawiszy nie został jeszcze zapisany. Czy chcesz go zapisać?</translation>
    </message>
    <message>
        <source>There is no saved key layout yet</source>
        <translation>Nie ma jeszcze zapisanego układu klawiszy</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>Tutorial</source>
        <translation>Samouczek</translation>
    </message>
    <message>
        <source>Upload scheme</source>
        <translation>Prześlij schemat</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Leaves the editor of the key mapping.</extracomment>
        <translation>Wyjdź</translation>
    </message>
</context>
<context>
    <name>FunctionBar</name>
    <message>
        <source>Volume up</source>
        <translation>Głośniej</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Ciszej</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Restart</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Ekran główny</translation>
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
        <translation>Urządzenie główne %1 wygaśnie za %2 min, co wpłynie na sterowanie grupowe. Czy chcesz je przedłużyć?</translation>
    </message>
    <message>
        <source>The controlled device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>Urządzenie sterowane %1 wygaśnie za %2 min, co wpłynie na sterowanie grupowe. Czy chcesz je przedłużyć?</translation>
    </message>
    <message>
        <source>The master has expired for recycling, shall I reassign the master for you and start again?</source>
        <translation>Urządzenie główne wygasło i zostało odebrane. Czy wyznaczyć nowe urządzenie główne i zacząć ponownie?</translation>
    </message>
    <message>
        <source>Expired device (%1) removed</source>
        <extracomment>%1: name of the device.</extracomment>
        <translation>Usunięto wygasłe urządzenie (%1)</translation>
    </message>
    <message>
        <source>The text is too long to paste.</source>
        <translation>Tekst jest zbyt długi, aby go wkleić.</translation>
    </message>
    <message>
        <source>Save group</source>
        <translation>Zapisz grupę</translation>
    </message>
</context>
<context>
    <name>GroupDialogBox</name>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Potwierdź</translation>
    </message>
</context>
<context>
    <name>HttpHelper</name>
    <message>
        <source>The request failed. Please try again later.</source>
        <extracomment>The service could not be reached, or gave no reason.</extracomment>
        <translation>Żądanie nie powiodło się. Spróbuj ponownie później.</translation>
    </message>
</context>
<context>
    <name>KeyMapControls</name>
    <message>
        <source>Please Select Auxiliary Key</source>
        <translation>Wybierz klawisz pomocniczy</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Kliknięcie</translation>
    </message>
    <message>
        <source>keyboard walking</source>
        <translation>Joystick ruchu</translation>
    </message>
    <message>
        <source>crosshair</source>
        <translation>Celownik</translation>
    </message>
    <message>
        <source>Key prompts</source>
        <translation>Podpowiedzi klawiszy</translation>
    </message>
    <message>
        <source>Button transparency</source>
        <translation>Krycie klawiszy</translation>
    </message>
    <message>
        <source>Key size</source>
        <translation>Rozmiar klawiszy</translation>
    </message>
    <message>
        <source>Show buttons when entering the game</source>
        <translation>Pokaż klawisze po wejściu do gry</translation>
    </message>
    <message>
        <source>Show notes when entering the game</source>
        <translation>Pokaż notatki po wejściu do gry</translation>
    </message>
</context>
<context>
    <name>KeyMapGuide</name>
    <message>
        <source>Tutorial</source>
        <translation>Samouczek</translation>
    </message>
    <message>
        <source>Loading the tutorial</source>
        <translation>Wczytywanie samouczka</translation>
    </message>
    <message>
        <source>The tutorial could not be loaded.</source>
        <translation>Nie udało się wczytać samouczka.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Spróbuj ponownie</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
</context>
<context>
    <name>KeyboardMapEditor</name>
    <message>
        <source>Not using the scheme</source>
        <translation>Bez schematu</translation>
    </message>
    <message>
        <source>Key Preset</source>
        <translation>Zestaw klawiszy</translation>
    </message>
    <message>
        <source>Add scheme</source>
        <translation>Dodaj schemat</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Odśwież</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetuj</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>The sharing code has copied successfully</source>
        <translation>Kod udostępniania skopiowany</translation>
    </message>
    <message>
        <source>The sharing code is %1, and can be sent to your friend to be uploaded for use</source>
        <translation>Kod udostępniania to %1. Wyślij go znajomemu, aby mógł go wczytać i używać</translation>
    </message>
</context>
<context>
    <name>KeyboardMapMgr</name>
    <message>
        <source>This Key Binding is Already in Use</source>
        <translation>Ten klawisz jest już używany</translation>
    </message>
    <message>
        <source>Operated successfully</source>
        <translation>Operacja zakończona pomyślnie</translation>
    </message>
</context>
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>Inicjowanie</translation>
    </message>
</context>
<context>
    <name>MainController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of the master device of a group whose picture is on its way.</extracomment>
        <translation>Łączenie</translation>
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
    <name>OvAuxiliaryKeyEditor</name>
    <message>
        <source>Add Button Notes</source>
        <translation>Dodaj notatkę klawisza</translation>
    </message>
    <message>
        <source>Mouse Sensitivity</source>
        <translation>Czułość myszy</translation>
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
    <name>OvUpdateDialog</name>
    <message>
        <source>Update</source>
        <extracomment>Title of the window that downloads a new version of the program.</extracomment>
        <translation>Aktualizacja</translation>
    </message>
    <message>
        <source>Downloading the new version, please wait...</source>
        <translation>Pobieranie nowej wersji, proszę czekać...</translation>
    </message>
    <message>
        <source>The new version is ready, install now?</source>
        <translation>Nowa wersja jest gotowa. Zainstalować teraz?</translation>
    </message>
    <message>
        <source>Install now</source>
        <translation>Zainstaluj teraz</translation>
    </message>
    <message>
        <source>Installation is automatic when closing the app</source>
        <translation>Zainstaluj automatycznie po zamknięciu aplikacji</translation>
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
    <name>RemoveDeviceDialog</name>
    <message>
        <source>Are you sure to remove the device from the group?</source>
        <translation>Czy na pewno usunąć urządzenie z grupy?</translation>
    </message>
</context>
<context>
    <name>SaveGroupDialog</name>
    <message>
        <source>Change the name</source>
        <translation>Zmień nazwę</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>Nazwa grupy</translation>
    </message>
    <message>
        <source>Please enter group name</source>
        <translation>Wpisz nazwę grupy</translation>
    </message>
    <message>
        <source>This is a temporary group. Do you want to save this group?</source>
        <translation>To jest grupa tymczasowa. Czy chcesz ją zapisać?</translation>
    </message>
    <message>
        <source>The name length should be greater than one character and less than 50 characters</source>
        <translation>Nazwa musi mieć od 1 do 50 znaków</translation>
    </message>
</context>
<context>
    <name>SchemeBox</name>
    <message>
        <source>Rename</source>
        <translation>Zmień nazwę</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Udostępnij</translation>
    </message>
    <message>
        <source>Create a copy</source>
        <translation>Utwórz kopię</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
</context>
<context>
    <name>SchemeImporter</name>
    <message>
        <source>Operated successfully</source>
        <translation>Operacja zakończona pomyślnie</translation>
    </message>
</context>
<context>
    <name>ShareConfigDlg</name>
    <message>
        <source>Upload keyboard layout</source>
        <translation>Prześlij układ klawiszy</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Informacja</translation>
    </message>
    <message>
        <source>Enter your scheme sharing code</source>
        <translation>Wpisz kod udostępniania schematu</translation>
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
    <name>SubControlPage</name>
    <message>
        <source>Group control need to be more than 2 devices</source>
        <translation>Sterowanie grupowe wymaga co najmniej 2 urządzeń</translation>
    </message>
    <message>
        <source>Total %1</source>
        <extracomment>How many devices a group has.</extracomment>
        <translation>Razem: %1</translation>
    </message>
    <message>
        <source>50/page</source>
        <extracomment>How many devices of a group a page shows.</extracomment>
        <translation>50/stronę</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Poprzednia strona</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Następna strona</translation>
    </message>
</context>
<context>
    <name>SubController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of a device of a group whose picture is on its way.</extracomment>
        <translation>Łączenie</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <extracomment>Followed by a colon and the time after which a device is given back.</extracomment>
        <translation>Pozostały czas</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>Set as master</source>
        <extracomment>Entry of the menu over a device of a group: it becomes the device whose input the others follow.</extracomment>
        <translation>Ustaw jako główne</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>Entry of the menu over a device of a group.</extracomment>
        <translation>Uruchom ponownie</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Entry of the menu over a device of a group: it leaves the group.</extracomment>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Single control</source>
        <extracomment>Entry of the menu over a device of a group: it opens in a window of its own.</extracomment>
        <translation>Steruj osobno</translation>
    </message>
</context>
<context>
    <name>TileText</name>
    <message>
        <source>%1d %2h %3min %4s</source>
        <extracomment>Time left: days, hours, minutes, seconds.</extracomment>
        <translation>%1 d %2 h %3 min %4 s</translation>
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
