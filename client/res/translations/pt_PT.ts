<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en">
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>A inicializar</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>Grupo temporário</translation>
    </message>
</context>
<context>
    <name>SingleController</name>
    <message>
        <source>The text is too long to paste.</source>
        <translation>O texto é demasiado longo para colar.</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>Captura de ecrã</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Guardar ficheiro</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Imagem (*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>Não foi possível guardar a imagem.</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>Captura de ecrã</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Guardar ficheiro</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Imagem (*.jpg *.png)</translation>
    </message>
</context>
</TS>
