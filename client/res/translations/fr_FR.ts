<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
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
