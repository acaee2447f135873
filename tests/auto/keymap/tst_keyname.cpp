#include "keymap/KeyName.h"

#include <QTest>

// The names by which keys are bound.
class TestKeyName : public QObject
{
    Q_OBJECT

private slots:
    void names_data();
    void names();
};

void TestKeyName::names_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("name");
    QTest::newRow("letter") << static_cast<int>(Qt::Key_Q) << "Q";
    QTest::newRow("digit") << static_cast<int>(Qt::Key_1) << "1";
    QTest::newRow("space") << static_cast<int>(Qt::Key_Space) << "Space";
    QTest::newRow("escape") << static_cast<int>(Qt::Key_Escape) << "Esc";
    QTest::newRow("tab") << static_cast<int>(Qt::Key_Tab) << "Tab";
    QTest::newRow("function") << static_cast<int>(Qt::Key_F5) << "F5";
    QTest::newRow("arrow") << static_cast<int>(Qt::Key_Up) << "Up";
    QTest::newRow("cyrillic") << 0x426 << QString(QChar(0x426));
    QTest::newRow("shift") << static_cast<int>(Qt::Key_Shift) << "Shift";
    QTest::newRow("control") << static_cast<int>(Qt::Key_Control) << "Ctrl";
    QTest::newRow("alt") << static_cast<int>(Qt::Key_Alt) << "Alt";
    QTest::newRow("meta") << static_cast<int>(Qt::Key_Meta) << "Meta";
    QTest::newRow("no key") << 0 << "";
    QTest::newRow("unknown") << static_cast<int>(Qt::Key_unknown) << "";
    QTest::newRow("without a name") << static_cast<int>(Qt::Key_AltGr) << "";
    QTest::newRow("dead") << static_cast<int>(Qt::Key_Dead_Acute) << "";
}

void TestKeyName::names()
{
    QFETCH(int, key);
    QTEST(keyName(key), "name");
}

QTEST_APPLESS_MAIN(TestKeyName)
#include "tst_keyname.moc"
