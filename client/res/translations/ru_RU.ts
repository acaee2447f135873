<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>DeviceKeyMapping</name>
    <message>
        <source>The current layout is not saved yet. Do you want to save the current keyboard layout</source>
        <translation>Текущая раскладка ещё не сохранена. Сохранить её?</translation>
    </message>
    <message>
        <source>There is no saved key layout yet</source>
        <translation>Сохранённых раскладок пока нет</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>Tutorial</source>
        <translation>Обучение</translation>
    </message>
    <message>
        <source>Upload scheme</source>
        <translation>Загрузить схему</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Leaves the editor of the key mapping.</extracomment>
        <translation>Выйти</translation>
    </message>
</context>
<context>
    <name>FunctionBar</name>
    <message>
        <source>Volume up</source>
        <translation>Громче</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Тише</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Перезапуск</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Домой</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Меню</translation>
    </message>
</context>
<context>
    <name>GroupController</name>
    <message>
        <source>The main control device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>Срок ведущего устройства %1 истечёт через %2 мин, это повлияет на групповое управление. Продлить?</translation>
    </message>
    <message>
        <source>The controlled device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>Срок ведомого устройства %1 истечёт через %2 мин, это повлияет на групповое управление. Продлить?</translation>
    </message>
    <message>
        <source>The master has expired for recycling, shall I reassign the master for you and start again?</source>
        <translation>Срок ведущего устройства истёк, оно возвращено. Назначить новое ведущее и начать заново?</translation>
    </message>
    <message>
        <source>Expired device (%1) removed</source>
        <extracomment>%1: name of the device.</extracomment>
        <translation>Устройство с истёкшим сроком (%1) удалено</translation>
    </message>
    <message>
        <source>The text is too long to paste.</source>
        <translation>Текст слишком длинный для вставки.</translation>
    </message>
    <message>
        <source>Save group</source>
        <translation>Сохранить</translation>
    </message>
</context>
<context>
    <name>GroupDialogBox</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Подтвердить</translation>
    </message>
</context>
<context>
    <name>HttpHelper</name>
    <message>
        <source>The request failed. Please try again later.</source>
        <extracomment>The service could not be reached, or gave no reason.</extracomment>
        <translation>Не удалось выполнить запрос. Повторите попытку позже.</translation>
    </message>
</context>
<context>
    <name>KeyMapControls</name>
    <message>
        <source>Please Select Auxiliary Key</source>
        <translation>Выберите тип клавиши</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Нажатие</translation>
    </message>
    <message>
        <source>keyboard walking</source>
        <translation>Джойстик ходьбы</translation>
    </message>
    <message>
        <source>crosshair</source>
        <translation>Прицел</translation>
    </message>
    <message>
        <source>Key prompts</source>
        <translation>Подсказки клавиш</translation>
    </message>
    <message>
        <source>Button transparency</source>
        <translation>Непрозрачность</translation>
    </message>
    <message>
        <source>Key size</source>
        <translation>Размер клавиш</translation>
    </message>
    <message>
        <source>Show buttons when entering the game</source>
        <translation>Показывать клавиши при входе в игру</translation>
    </message>
    <message>
        <source>Show notes when entering the game</source>
        <translation>Показывать заметки при входе в игру</translation>
    </message>
</context>
<context>
    <name>KeyMapGuide</name>
    <message>
        <source>Tutorial</source>
        <translation>Обучение</translation>
    </message>
    <message>
        <source>Loading the tutorial</source>
        <translation>Загрузка обучения</translation>
    </message>
    <message>
        <source>The tutorial could not be loaded.</source>
        <translation>Не удалось загрузить обучение.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
</context>
<context>
    <name>KeyboardMapEditor</name>
    <message>
        <source>Not using the scheme</source>
        <translation>Не использовать схему</translation>
    </message>
    <message>
        <source>Key Preset</source>
        <translation>Набор клавиш</translation>
    </message>
    <message>
        <source>Add scheme</source>
        <translation>Добавить схему</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>The sharing code has copied successfully</source>
        <translation>Код схемы скопирован</translation>
    </message>
    <message>
        <source>The sharing code is %1, and can be sent to your friend to be uploaded for use</source>
        <translation>Код схемы: %1. Отправьте его другу, чтобы он мог загрузить и использовать её</translation>
    </message>
</context>
<context>
    <name>KeyboardMapMgr</name>
    <message>
        <source>This Key Binding is Already in Use</source>
        <translation>Эта клавиша уже используется</translation>
    </message>
    <message>
        <source>Operated successfully</source>
        <translation>Операция выполнена</translation>
    </message>
</context>
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>Инициализация</translation>
    </message>
</context>
<context>
    <name>MainController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of the master device of a group whose picture is on its way.</extracomment>
        <translation>Подключение</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Home page</source>
        <translation>Главный экран</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>Увеличить громкость</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Уменьшить громкость</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>Снимок экрана</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>Повернуть экран</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>Настройка клавиш</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>Применить назначение клавиш одним щелчком</translation>
    </message>
</context>
<context>
    <name>OvAuxiliaryKeyEditor</name>
    <message>
        <source>Add Button Notes</source>
        <translation>Добавить заметку</translation>
    </message>
    <message>
        <source>Mouse Sensitivity</source>
        <translation>Чувствительность мыши</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>Временная группа</translation>
    </message>
</context>
<context>
    <name>OvMaskTipsDialog</name>
    <message>
        <source>Hints</source>
        <translation>Уведомление</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Подтвердить</translation>
    </message>
</context>
<context>
    <name>OvUpdateDialog</name>
    <message>
        <source>Update</source>
        <extracomment>Title of the window that downloads a new version of the program.</extracomment>
        <translation>Обновление</translation>
    </message>
    <message>
        <source>Downloading the new version, please wait...</source>
        <translation>Новая версия загружается, подождите...</translation>
    </message>
    <message>
        <source>The new version is ready, install now?</source>
        <translation>Новая версия готова. Установить сейчас?</translation>
    </message>
    <message>
        <source>Install now</source>
        <translation>Установить сейчас</translation>
    </message>
    <message>
        <source>Installation is automatic when closing the app</source>
        <translation>Установить автоматически при закрытии приложения</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Подтвердить</translation>
    </message>
</context>
<context>
    <name>QualityBox</name>
    <message>
        <source>Auto</source>
        <translation>Авто</translation>
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
        <translation>Удалить устройство из группы?</translation>
    </message>
</context>
<context>
    <name>SaveGroupDialog</name>
    <message>
        <source>Change the name</source>
        <translation>Изменение названия</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>Название группы</translation>
    </message>
    <message>
        <source>Please enter group name</source>
        <translation>Введите название группы</translation>
    </message>
    <message>
        <source>This is a temporary group. Do you want to save this group?</source>
        <translation>Это временная группа. Сохранить её?</translation>
    </message>
    <message>
        <source>The name length should be greater than one character and less than 50 characters</source>
        <translation>Название должно содержать от 1 до 50 символов</translation>
    </message>
</context>
<context>
    <name>SchemeBox</name>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Поделиться</translation>
    </message>
    <message>
        <source>Create a copy</source>
        <translation>Создать копию</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
</context>
<context>
    <name>SchemeImporter</name>
    <message>
        <source>Operated successfully</source>
        <translation>Операция выполнена</translation>
    </message>
</context>
<context>
    <name>ShareConfigDlg</name>
    <message>
        <source>Upload keyboard layout</source>
        <translation>Загрузить раскладку</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Уведомление</translation>
    </message>
    <message>
        <source>Enter your scheme sharing code</source>
        <translation>Введите код схемы</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Подтвердить</translation>
    </message>
</context>
<context>
    <name>SingleController</name>
    <message>
        <source>The text is too long to paste.</source>
        <translation>Текст слишком длинный для вставки.</translation>
    </message>
</context>
<context>
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>Долгое бездействие: включён режим ожидания</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>(Режим ожидания экономит трафик, приложения на устройстве продолжают работать)</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>(После выхода из устройства приложения на нём продолжат работать)</translation>
    </message>
</context>
<context>
    <name>SubControlPage</name>
    <message>
        <source>Group control need to be more than 2 devices</source>
        <translation>Для группового управления нужно не менее 2 устройств</translation>
    </message>
    <message>
        <source>Total %1</source>
        <extracomment>How many devices a group has.</extracomment>
        <translation>Всего: %1</translation>
    </message>
    <message>
        <source>50/page</source>
        <extracomment>How many devices of a group a page shows.</extracomment>
        <translation>50/стр.</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Предыдущая страница</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Следующая страница</translation>
    </message>
</context>
<context>
    <name>SubController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of a device of a group whose picture is on its way.</extracomment>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <extracomment>Followed by a colon and the time after which a device is given back.</extracomment>
        <translation>Осталось времени</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>Set as master</source>
        <extracomment>Entry of the menu over a device of a group: it becomes the device whose input the others follow.</extracomment>
        <translation>Сделать ведущим</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>Entry of the menu over a device of a group.</extracomment>
        <translation>Перезапустить</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Entry of the menu over a device of a group: it leaves the group.</extracomment>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Single control</source>
        <extracomment>Entry of the menu over a device of a group: it opens in a window of its own.</extracomment>
        <translation>Открыть отдельно</translation>
    </message>
</context>
<context>
    <name>TileText</name>
    <message>
        <source>%1d %2h %3min %4s</source>
        <extracomment>Time left: days, hours, minutes, seconds.</extracomment>
        <translation>%1 д %2 ч %3 мин %4 с</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>Снимок экрана</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Сохранить файл</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Изображение (*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>Не удалось сохранить изображение.</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>Снимок экрана</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Сохранить файл</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Изображение (*.jpg *.png)</translation>
    </message>
</context>
</TS>
