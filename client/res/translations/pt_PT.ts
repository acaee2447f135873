<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en">
<context>
    <name>DeviceKeyMapping</name>
    <message>
        <source>The current layout is not saved yet. Do you want to save the current keyboard layout</source>
        <translation>A disposição de teclas atual ainda não foi guardada. Pretende guardá-la?</translation>
    </message>
    <message>
        <source>There is no saved key layout yet</source>
        <translation>Ainda não há disposições de teclas guardadas</translation>
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
        <translation>Carregar esquema</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Leaves the editor of the key mapping.</extracomment>
        <translation>Sair</translation>
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
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Início</translation>
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
        <translation>O dispositivo principal %1 expira dentro de %2 min, o que afetará o controlo de grupo. Pretende renová-lo?</translation>
    </message>
    <message>
        <source>The controlled device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>O dispositivo controlado %1 expira dentro de %2 min, o que afetará o controlo de grupo. Pretende renová-lo?</translation>
    </message>
    <message>
        <source>The master has expired for recycling, shall I reassign the master for you and start again?</source>
        <translation>O dispositivo principal expirou e foi recolhido. Pretende atribuir um novo principal e recomeçar?</translation>
    </message>
    <message>
        <source>Expired device (%1) removed</source>
        <extracomment>%1: name of the device.</extracomment>
        <translation>Dispositivo expirado (%1) removido</translation>
    </message>
    <message>
        <source>The text is too long to paste.</source>
        <translation>O texto é demasiado longo para colar.</translation>
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
        <translation>O pedido falhou. Tente novamente mais tarde.</translation>
    </message>
</context>
<context>
    <name>KeyMapControls</name>
    <message>
        <source>Please Select Auxiliary Key</source>
        <translation>Selecione uma tecla auxiliar</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Clique</translation>
    </message>
    <message>
        <source>keyboard walking</source>
        <translation>Joystick de andar</translation>
    </message>
    <message>
        <source>crosshair</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Key prompts</source>
        <translation>Indicações das teclas</translation>
    </message>
    <message>
        <source>Button transparency</source>
        <translation>Opacidade</translation>
    </message>
    <message>
        <source>Key size</source>
        <translation>Tamanho da tecla</translation>
    </message>
    <message>
        <source>Show buttons when entering the game</source>
        <translation>Mostrar as teclas ao entrar no jogo</translation>
    </message>
    <message>
        <source>Show notes when entering the game</source>
        <translation>Mostrar as notas ao entrar no jogo</translation>
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
        <translation>A carregar o tutorial</translation>
    </message>
    <message>
        <source>The tutorial could not be loaded.</source>
        <translation>Não foi possível carregar o tutorial.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
</context>
<context>
    <name>KeyboardMapEditor</name>
    <message>
        <source>Not using the scheme</source>
        <translation>Não usar esquema</translation>
    </message>
    <message>
        <source>Key Preset</source>
        <translation>Predefinição de teclas</translation>
    </message>
    <message>
        <source>Add scheme</source>
        <translation>Adicionar esquema</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Repor</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>The sharing code has copied successfully</source>
        <translation>Código de partilha copiado</translation>
    </message>
    <message>
        <source>The sharing code is %1, and can be sent to your friend to be uploaded for use</source>
        <translation>O código de partilha é %1. Envie-o a um amigo para que o carregue e use</translation>
    </message>
</context>
<context>
    <name>KeyboardMapMgr</name>
    <message>
        <source>This Key Binding is Already in Use</source>
        <translation>Esta tecla já está atribuída</translation>
    </message>
    <message>
        <source>Operated successfully</source>
        <translation>Operação concluída</translation>
    </message>
</context>
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>A inicializar</translation>
    </message>
</context>
<context>
    <name>MainController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of the master device of a group whose picture is on its way.</extracomment>
        <translation>A ligar</translation>
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
    <name>OvAuxiliaryKeyEditor</name>
    <message>
        <source>Add Button Notes</source>
        <translation>Adicionar nota à tecla</translation>
    </message>
    <message>
        <source>Mouse Sensitivity</source>
        <translation>Sensibilidade do rato</translation>
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
    <name>OvUpdateDialog</name>
    <message>
        <source>Update</source>
        <extracomment>Title of the window that downloads a new version of the program.</extracomment>
        <translation>Atualização</translation>
    </message>
    <message>
        <source>Downloading the new version, please wait...</source>
        <translation>A transferir a nova versão, aguarde...</translation>
    </message>
    <message>
        <source>The new version is ready, install now?</source>
        <translation>A nova versão está pronta. Instalar agora?</translation>
    </message>
    <message>
        <source>Install now</source>
        <translation>Instalar agora</translation>
    </message>
    <message>
        <source>Installation is automatic when closing the app</source>
        <translation>Instalar automaticamente ao fechar a aplicação</translation>
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
        <translation>Tem a certeza de que pretende remover o dispositivo do grupo?</translation>
    </message>
</context>
<context>
    <name>SaveGroupDialog</name>
    <message>
        <source>Change the name</source>
        <translation>Mudar o nome</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>Nome do grupo</translation>
    </message>
    <message>
        <source>Please enter group name</source>
        <translation>Introduza o nome do grupo</translation>
    </message>
    <message>
        <source>This is a temporary group. Do you want to save this group?</source>
        <translation>Este é um grupo temporário. Pretende guardá-lo?</translation>
    </message>
    <message>
        <source>The name length should be greater than one character and less than 50 characters</source>
        <translation>O nome deve ter entre 1 e 50 caracteres</translation>
    </message>
</context>
<context>
    <name>SchemeBox</name>
    <message>
        <source>Rename</source>
        <translation>Mudar o nome</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Partilhar</translation>
    </message>
    <message>
        <source>Create a copy</source>
        <translation>Criar uma cópia</translation>
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
        <translation>Operação concluída</translation>
    </message>
</context>
<context>
    <name>ShareConfigDlg</name>
    <message>
        <source>Upload keyboard layout</source>
        <translation>Carregar disposição de teclas</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Enter your scheme sharing code</source>
        <translation>Introduza o código do esquema</translation>
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
    <name>SubControlPage</name>
    <message>
        <source>Group control need to be more than 2 devices</source>
        <translation>O controlo de grupo requer pelo menos 2 dispositivos</translation>
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
        <translation>Página seguinte</translation>
    </message>
</context>
<context>
    <name>SubController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of a device of a group whose picture is on its way.</extracomment>
        <translation>A ligar</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <extracomment>Followed by a colon and the time after which a device is given back.</extracomment>
        <translation>Tempo restante</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>Set as master</source>
        <extracomment>Entry of the menu over a device of a group: it becomes the device whose input the others follow.</extracomment>
        <translation>Tornar principal</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>Entry of the menu over a device of a group.</extracomment>
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Entry of the menu over a device of a group: it leaves the group.</extracomment>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Single control</source>
        <extracomment>Entry of the menu over a device of a group: it opens in a window of its own.</extracomment>
        <translation>Controlo individual</translation>
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
