<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>Iniciando</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Home page</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>Subir volumen</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Bajar volumen</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>Captura de pantalla</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>Girar pantalla</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>Editar teclas</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>Aplicar asignación de teclas con un clic</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>Grupo temporal</translation>
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
        <translation>Cerrar</translation>
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
        <translation>El texto es demasiado largo para pegarlo.</translation>
    </message>
</context>
<context>
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>Sin actividad durante mucho tiempo: modo de reposo activado</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>(El modo de reposo reduce el consumo de datos y las aplicaciones del dispositivo siguen funcionando)</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>(Al salir del dispositivo, sus aplicaciones siguen funcionando)</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>Captura de pantalla</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Guardar archivo</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Imagen (*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>No se pudo guardar la imagen.</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>Captura de pantalla</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Guardar archivo</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Imagen (*.jpg *.png)</translation>
    </message>
</context>
</TS>
