<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
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
