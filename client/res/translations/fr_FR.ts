<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>DeviceKeyMapping</name>
    <message>
        <source>The current layout is not saved yet. Do you want to save the current keyboard layout</source>
        <translation>La disposition actuelle n’est pas encore enregistrée. Voulez-vous l’enregistrer&#xa0;?</translation>
    </message>
    <message>
        <source>There is no saved key layout yet</source>
        <translation>Aucune disposition de touches enregistrée</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>Tutorial</source>
        <translation>Tutoriel</translation>
    </message>
    <message>
        <source>Upload scheme</source>
        <translation>Importer un schéma</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Leaves the editor of the key mapping.</extracomment>
        <translation>Quitter</translation>
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
        <translation>Redémarrer</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Accueil</translation>
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
        <translation>L’appareil maître %1 expire dans %2 min, ce qui perturbera le contrôle de groupe. Voulez-vous le renouveler&#xa0;?</translation>
    </message>
    <message>
        <source>The controlled device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>L’appareil contrôlé %1 expire dans %2 min, ce qui perturbera le contrôle de groupe. Voulez-vous le renouveler&#xa0;?</translation>
    </message>
    <message>
        <source>The master has expired for recycling, shall I reassign the master for you and start again?</source>
        <translation>L’appareil maître a expiré et a été récupéré. Voulez-vous désigner un nouveau maître et recommencer&#xa0;?</translation>
    </message>
    <message>
        <source>Expired device (%1) removed</source>
        <extracomment>%1: name of the device.</extracomment>
        <translation>Appareil expiré (%1) retiré</translation>
    </message>
    <message>
        <source>The text is too long to paste.</source>
        <translation>Le texte est trop long pour être collé.</translation>
    </message>
    <message>
        <source>Save group</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>GroupDialogBox</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmer</translation>
    </message>
</context>
<context>
    <name>HttpHelper</name>
    <message>
        <source>The request failed. Please try again later.</source>
        <extracomment>The service could not be reached, or gave no reason.</extracomment>
        <translation>La demande a échoué. Veuillez réessayer plus tard.</translation>
    </message>
</context>
<context>
    <name>KeyMapControls</name>
    <message>
        <source>Please Select Auxiliary Key</source>
        <translation>Choisissez une touche auxiliaire</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Clic</translation>
    </message>
    <message>
        <source>keyboard walking</source>
        <translation>Joystick de marche</translation>
    </message>
    <message>
        <source>crosshair</source>
        <translation>Viseur</translation>
    </message>
    <message>
        <source>Key prompts</source>
        <translation>Repères des touches</translation>
    </message>
    <message>
        <source>Button transparency</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Key size</source>
        <translation>Taille des touches</translation>
    </message>
    <message>
        <source>Show buttons when entering the game</source>
        <translation>Afficher les touches en entrant dans le jeu</translation>
    </message>
    <message>
        <source>Show notes when entering the game</source>
        <translation>Afficher les notes en entrant dans le jeu</translation>
    </message>
</context>
<context>
    <name>KeyMapGuide</name>
    <message>
        <source>Tutorial</source>
        <translation>Tutoriel</translation>
    </message>
    <message>
        <source>Loading the tutorial</source>
        <translation>Chargement du tutoriel</translation>
    </message>
    <message>
        <source>The tutorial could not be loaded.</source>
        <translation>Impossible de charger le tutoriel.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>KeyboardMapEditor</name>
    <message>
        <source>Not using the scheme</source>
        <translation>Aucun schéma</translation>
    </message>
    <message>
        <source>Key Preset</source>
        <translation>Préréglage des touches</translation>
    </message>
    <message>
        <source>Add scheme</source>
        <translation>Ajouter un schéma</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>The sharing code has copied successfully</source>
        <translation>Code de partage copié</translation>
    </message>
    <message>
        <source>The sharing code is %1, and can be sent to your friend to be uploaded for use</source>
        <translation>Le code de partage est %1. Envoyez-le à un ami pour qu’il l’importe et l’utilise</translation>
    </message>
</context>
<context>
    <name>KeyboardMapMgr</name>
    <message>
        <source>This Key Binding is Already in Use</source>
        <translation>Cette touche est déjà utilisée</translation>
    </message>
    <message>
        <source>Operated successfully</source>
        <translation>Opération réussie</translation>
    </message>
</context>
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>Initialisation</translation>
    </message>
</context>
<context>
    <name>MainController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of the master device of a group whose picture is on its way.</extracomment>
        <translation>Connexion</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Home page</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>Augmenter le volume</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Baisser le volume</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>Capture d’écran</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>Pivoter l’écran</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>Modifier les touches</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>Appliquer l’affectation des touches en un clic</translation>
    </message>
</context>
<context>
    <name>OvAuxiliaryKeyEditor</name>
    <message>
        <source>Add Button Notes</source>
        <translation>Ajouter une note</translation>
    </message>
    <message>
        <source>Mouse Sensitivity</source>
        <translation>Sensibilité de la souris</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>Groupe temporaire</translation>
    </message>
</context>
<context>
    <name>OvMaskTipsDialog</name>
    <message>
        <source>Hints</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmer</translation>
    </message>
</context>
<context>
    <name>OvUpdateDialog</name>
    <message>
        <source>Update</source>
        <extracomment>Title of the window that downloads a new version of the program.</extracomment>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>Downloading the new version, please wait...</source>
        <translation>Téléchargement de la nouvelle version, veuillez patienter...</translation>
    </message>
    <message>
        <source>The new version is ready, install now?</source>
        <translation>La nouvelle version est prête. L’installer maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>Install now</source>
        <translation>Installer maintenant</translation>
    </message>
    <message>
        <source>Installation is automatic when closing the app</source>
        <translation>Installer automatiquement à la fermeture de l’application</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmer</translation>
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
        <translation>Voulez-vous vraiment retirer l’appareil du groupe&#xa0;?</translation>
    </message>
</context>
<context>
    <name>SaveGroupDialog</name>
    <message>
        <source>Change the name</source>
        <translation>Changer le nom</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>Nom du groupe</translation>
    </message>
    <message>
        <source>Please enter group name</source>
        <translation>Saisissez le nom du groupe</translation>
    </message>
    <message>
        <source>This is a temporary group. Do you want to save this group?</source>
        <translation>Ce groupe est temporaire. Voulez-vous l’enregistrer&#xa0;?</translation>
    </message>
    <message>
        <source>The name length should be greater than one character and less than 50 characters</source>
        <translation>Le nom doit comporter de 1 à 50 caractères</translation>
    </message>
</context>
<context>
    <name>SchemeBox</name>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Partager</translation>
    </message>
    <message>
        <source>Create a copy</source>
        <translation>Créer une copie</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>SchemeImporter</name>
    <message>
        <source>Operated successfully</source>
        <translation>Opération réussie</translation>
    </message>
</context>
<context>
    <name>ShareConfigDlg</name>
    <message>
        <source>Upload keyboard layout</source>
        <translation>Importer une disposition</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Enter your scheme sharing code</source>
        <translation>Saisissez le code de partage du schéma</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmer</translation>
    </message>
</context>
<context>
    <name>SingleController</name>
    <message>
        <source>The text is too long to paste.</source>
        <translation>Le texte est trop long pour être collé.</translation>
    </message>
</context>
<context>
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>Longue période d’inactivité&#xa0;: le mode veille est activé</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>(Le mode veille réduit la consommation de données et les applications de l’appareil continuent de fonctionner)</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>Quitter l’appareil</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>(Après avoir quitté l’appareil, ses applications continuent de fonctionner)</translation>
    </message>
</context>
<context>
    <name>SubControlPage</name>
    <message>
        <source>Group control need to be more than 2 devices</source>
        <translation>Le contrôle de groupe nécessite au moins 2 appareils</translation>
    </message>
    <message>
        <source>Total %1</source>
        <extracomment>How many devices a group has.</extracomment>
        <translation>Total&#xa0;: %1</translation>
    </message>
    <message>
        <source>50/page</source>
        <extracomment>How many devices of a group a page shows.</extracomment>
        <translation>50/page</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
</context>
<context>
    <name>SubController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of a device of a group whose picture is on its way.</extracomment>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <extracomment>Followed by a colon and the time after which a device is given back.</extracomment>
        <translation>Temps restant</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>Set as master</source>
        <extracomment>Entry of the menu over a device of a group: it becomes the device whose input the others follow.</extracomment>
        <translation>Désigner maître</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>Entry of the menu over a device of a group.</extracomment>
        <translation>Redémarrer</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Entry of the menu over a device of a group: it leaves the group.</extracomment>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Single control</source>
        <extracomment>Entry of the menu over a device of a group: it opens in a window of its own.</extracomment>
        <translation>Contrôle individuel</translation>
    </message>
</context>
<context>
    <name>TileText</name>
    <message>
        <source>%1d %2h %3min %4s</source>
        <extracomment>Time left: days, hours, minutes, seconds.</extracomment>
        <translation>%1 j %2 h %3 min %4 s</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>Capture d’écran</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Enregistrer le fichier</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Image (*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>L’image n’a pas pu être enregistrée.</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>Capture d’écran</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Enregistrer le fichier</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Image (*.jpg *.png)</translation>
    </message>
</context>
</TS>
