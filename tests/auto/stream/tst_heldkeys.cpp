#include "stream/HeldKeys.h"

#include <QTest>

class tst_HeldKeys : public QObject
{
    Q_OBJECT

private slots:
    void releasedKeyIsForgotten();
    void keyThatComesUpAsAnother();
    void keysWithoutScanCodeAreApart();
    void repeatedPressIsOneKey();
    void releaseAll();
};

void tst_HeldKeys::releasedKeyIsForgotten()
{
    HeldKeys keys;
    keys.press(10, 2);
    QCOMPARE(keys.release(10, 2), QVector<int>());
    QCOMPARE(keys.releaseAll(), QVector<int>());
}

// '!' goes down with Shift; when Shift is let go first, the same key comes up as '1'.
void tst_HeldKeys::keyThatComesUpAsAnother()
{
    HeldKeys keys;
    keys.press(10, 0x10002);
    QCOMPARE(keys.release(10, 2), QVector<int>{0x10002});
    QCOMPARE(keys.releaseAll(), QVector<int>());
}

void tst_HeldKeys::keysWithoutScanCodeAreApart()
{
    HeldKeys keys;
    keys.press(0, 2);
    keys.press(0, 3);
    QCOMPARE(keys.release(0, 4), QVector<int>());
    QCOMPARE(keys.release(0, 2), QVector<int>());
    QCOMPARE(keys.releaseAll(), QVector<int>{3});
}

void tst_HeldKeys::repeatedPressIsOneKey()
{
    HeldKeys keys;
    keys.press(10, 2);
    keys.press(10, 2);
    QCOMPARE(keys.releaseAll(), QVector<int>{2});
}

void tst_HeldKeys::releaseAll()
{
    HeldKeys keys;
    keys.press(10, 2);
    keys.press(11, 3);
    QCOMPARE(keys.releaseAll(), (QVector<int>{2, 3}));
    QCOMPARE(keys.releaseAll(), QVector<int>());
}

QTEST_APPLESS_MAIN(tst_HeldKeys)

#include "tst_heldkeys.moc"
