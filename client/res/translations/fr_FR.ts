<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
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
