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
    <name>MenuBar</name>
    <message>
        <source>Home page</source>
        <translation>Ecrã principal</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>Aumentar volume</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Diminuir volume</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>Captura de ecrã</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>Rodar ecrã</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>Editar teclas</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>Aplicar atribuição de teclas com um clique</translation>
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
    <name>OvMaskTipsDialog</name>
    <message>
        <source>Hints</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmar</translation>
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
        <translation>O texto é demasiado longo para colar.</translation>
    </message>
</context>
<context>
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>Sem atividade há muito tempo: modo de espera ativado</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>(O modo de espera reduz o consumo de dados e as aplicações no dispositivo continuam em execução)</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>(Depois de sair do dispositivo, as suas aplicações continuam em execução)</translation>
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
