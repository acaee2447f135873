<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
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
