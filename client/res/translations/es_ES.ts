<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>DeviceKeyMapping</name>
    <message>
        <source>The current layout is not saved yet. Do you want to save the current keyboard layout</source>
        <translation>La disposición de teclas actual aún no se ha guardado. ¿Quieres guardarla?</translation>
    </message>
    <message>
        <source>There is no saved key layout yet</source>
        <translation>Aún no hay ninguna disposición de teclas guardada</translation>
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
        <translation>Subir esquema</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Leaves the editor of the key mapping.</extracomment>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>FunctionBar</name>
    <message>
        <source>Volume up</source>
        <translation>Volumen +</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Volumen -</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
</context>
<context>
    <name>GroupController</name>
    <message>
        <source>The main control device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>El dispositivo maestro %1 caduca en %2 min, lo que afectará al control de grupo. ¿Quieres renovarlo?</translation>
    </message>
    <message>
        <source>The controlled device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>El dispositivo controlado %1 caduca en %2 min, lo que afectará al control de grupo. ¿Quieres renovarlo?</translation>
    </message>
    <message>
        <source>The master has expired for recycling, shall I reassign the master for you and start again?</source>
        <translation>El dispositivo maestro ha caducado y se ha retirado. ¿Quieres asignar otro maestro y empezar de nuevo?</translation>
    </message>
    <message>
        <source>Expired device (%1) removed</source>
        <extracomment>%1: name of the device.</extracomment>
        <translation>Dispositivo caducado (%1) quitado</translation>
    </message>
    <message>
        <source>The text is too long to paste.</source>
        <translation>El texto es demasiado largo para pegarlo.</translation>
    </message>
    <message>
        <source>Save group</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>GroupDialogBox</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmar</translation>
    </message>
</context>
<context>
    <name>HttpHelper</name>
    <message>
        <source>The request failed. Please try again later.</source>
        <extracomment>The service could not be reached, or gave no reason.</extracomment>
        <translation>La solicitud ha fallado. Inténtalo de nuevo más tarde.</translation>
    </message>
</context>
<context>
    <name>KeyMapControls</name>
    <message>
        <source>Please Select Auxiliary Key</source>
        <translation>Selecciona una tecla auxiliar</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Clic</translation>
    </message>
    <message>
        <source>keyboard walking</source>
        <translation>Joystick de marcha</translation>
    </message>
    <message>
        <source>crosshair</source>
        <translation>Punto de mira</translation>
    </message>
    <message>
        <source>Key prompts</source>
        <translation>Indicadores de teclas</translation>
    </message>
    <message>
        <source>Button transparency</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>Key size</source>
        <translation>Tamaño de tecla</translation>
    </message>
    <message>
        <source>Show buttons when entering the game</source>
        <translation>Mostrar las teclas al entrar en el juego</translation>
    </message>
    <message>
        <source>Show notes when entering the game</source>
        <translation>Mostrar las notas al entrar en el juego</translation>
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
        <translation>Cargando el tutorial</translation>
    </message>
    <message>
        <source>The tutorial could not be loaded.</source>
        <translation>No se pudo cargar el tutorial.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
</context>
<context>
    <name>KeyboardMapEditor</name>
    <message>
        <source>Not using the scheme</source>
        <translation>No usar esquema</translation>
    </message>
    <message>
        <source>Key Preset</source>
        <translation>Preajuste de teclas</translation>
    </message>
    <message>
        <source>Add scheme</source>
        <translation>Añadir esquema</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>The sharing code has copied successfully</source>
        <translation>Código para compartir copiado</translation>
    </message>
    <message>
        <source>The sharing code is %1, and can be sent to your friend to be uploaded for use</source>
        <translation>El código para compartir es %1. Envíaselo a un amigo para que lo suba y lo use</translation>
    </message>
</context>
<context>
    <name>KeyboardMapMgr</name>
    <message>
        <source>This Key Binding is Already in Use</source>
        <translation>Esta tecla ya está asignada</translation>
    </message>
    <message>
        <source>Operated successfully</source>
        <translation>Operación realizada</translation>
    </message>
</context>
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>Iniciando</translation>
    </message>
</context>
<context>
    <name>MainController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of the master device of a group whose picture is on its way.</extracomment>
        <translation>Conectando</translation>
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
    <name>OvAuxiliaryKeyEditor</name>
    <message>
        <source>Add Button Notes</source>
        <translation>Añadir nota a la tecla</translation>
    </message>
    <message>
        <source>Mouse Sensitivity</source>
        <translation>Sensibilidad del ratón</translation>
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
    <name>OvUpdateDialog</name>
    <message>
        <source>Update</source>
        <extracomment>Title of the window that downloads a new version of the program.</extracomment>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>Downloading the new version, please wait...</source>
        <translation>Descargando la nueva versión, espera un momento...</translation>
    </message>
    <message>
        <source>The new version is ready, install now?</source>
        <translation>La nueva versión está lista. ¿Instalarla ahora?</translation>
    </message>
    <message>
        <source>Install now</source>
        <translation>Instalar ahora</translation>
    </message>
    <message>
        <source>Installation is automatic when closing the app</source>
        <translation>Instalar automáticamente al cerrar la aplicación</translation>
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
    <name>RemoveDeviceDialog</name>
    <message>
        <source>Are you sure to remove the device from the group?</source>
        <translation>¿Seguro que quieres quitar el dispositivo del grupo?</translation>
    </message>
</context>
<context>
    <name>SaveGroupDialog</name>
    <message>
        <source>Change the name</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>Nombre del grupo</translation>
    </message>
    <message>
        <source>Please enter group name</source>
        <translation>Introduce el nombre del grupo</translation>
    </message>
    <message>
        <source>This is a temporary group. Do you want to save this group?</source>
        <translation>Este es un grupo temporal. ¿Quieres guardarlo?</translation>
    </message>
    <message>
        <source>The name length should be greater than one character and less than 50 characters</source>
        <translation>El nombre debe tener entre 1 y 50 caracteres</translation>
    </message>
</context>
<context>
    <name>SchemeBox</name>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Compartir</translation>
    </message>
    <message>
        <source>Create a copy</source>
        <translation>Crear una copia</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>SchemeImporter</name>
    <message>
        <source>Operated successfully</source>
        <translation>Operación realizada</translation>
    </message>
</context>
<context>
    <name>ShareConfigDlg</name>
    <message>
        <source>Upload keyboard layout</source>
        <translation>Subir disposición de teclas</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Enter your scheme sharing code</source>
        <translation>Introduce el código del esquema</translation>
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
    <name>SubControlPage</name>
    <message>
        <source>Group control need to be more than 2 devices</source>
        <translation>El control de grupo requiere al menos 2 dispositivos</translation>
    </message>
    <message>
        <source>Total %1</source>
        <extracomment>How many devices a group has.</extracomment>
        <translation>Total: %1</translation>
    </message>
    <message>
        <source>50/page</source>
        <extracomment>How many devices of a group a page shows.</extracomment>
        <translation>50/página</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página siguiente</translation>
    </message>
</context>
<context>
    <name>SubController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of a device of a group whose picture is on its way.</extracomment>
        <translation>Conectando</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <extracomment>Followed by a colon and the time after which a device is given back.</extracomment>
        <translation>Tiempo restante</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>Set as master</source>
        <extracomment>Entry of the menu over a device of a group: it becomes the device whose input the others follow.</extracomment>
        <translation>Usar como maestro</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>Entry of the menu over a device of a group.</extracomment>
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Entry of the menu over a device of a group: it leaves the group.</extracomment>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Single control</source>
        <extracomment>Entry of the menu over a device of a group: it opens in a window of its own.</extracomment>
        <translation>Control individual</translation>
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
