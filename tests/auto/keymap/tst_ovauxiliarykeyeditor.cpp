#include "KeyMapFixture.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>

// The popup of a key's note.
class TestOvAuxiliaryKeyEditor : public KeyMapFixture
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { tearDown(); }

    void opensAtTheCorner();
    void closeDiscards();
    void confirmKeeps();
    void sensitivity();
    void clampsTheSensitivity();
    void closesWithTheEditor();

private:
    template <typename Widget>
    static Widget *child(OvAuxiliaryKey *key, const char *name)
    {
        return key->noteEditor()->findChild<Widget *>(name);
    }

    OvAuxiliaryClick *m_click = nullptr;
    OvAuxiliaryCrosshair *m_crosshair = nullptr;
};

void TestOvAuxiliaryKeyEditor::init()
{
    setUp();
    m_click = make<OvAuxiliaryClick>("Q");
    m_crosshair = make<OvAuxiliaryCrosshair>("R");
    m_manager->setRecording(true);
}

void TestOvAuxiliaryKeyEditor::opensAtTheCorner()
{
    m_click->placeAt({100, 100});
    m_click->findChild<QPushButton *>("noteButton")->click();
    QWidget *popup = m_click->noteEditor();
    QVERIFY(popup->isVisible());
    QCOMPARE(popup->pos(), m_view->mapToGlobal(QPoint(130, 130)));
    QStringList texts;
    for (const QLabel *label : popup->findChildren<QLabel *>())
        texts.append(label->text());
    QCOMPARE(texts, QStringList{"Add Button Notes"});
    QVERIFY(!child<QDoubleSpinBox>(m_click, "sensitivitySpin"));
    for (const char *name : {"closeButton", "confirmButton"}) {
        QCOMPARE(child<QPushButton>(m_click, name)->size(), QSize(20, 20));
        QVERIFY(!child<QPushButton>(m_click, name)->icon().pixmap(16, 16).isNull());
    }
    QCOMPARE(child<QLineEdit>(m_click, "noteEdit")->size(), QSize(100, 20));
    mouse(m_click, QEvent::MouseButtonPress, {5, 5}); // it follows the key
    mouse(m_click, QEvent::MouseMove, {45, 25});
    QCOMPARE(popup->pos(), m_view->mapToGlobal(QPoint(170, 150)));
    mouse(m_click, QEvent::MouseButtonRelease, {5, 5});
}

void TestOvAuxiliaryKeyEditor::closeDiscards()
{
    m_click->setNote("Jump");
    m_click->onNoteBtnClicked();
    auto *edit = child<QLineEdit>(m_click, "noteEdit");
    QCOMPARE(edit->text(), QString("Jump"));
    edit->setText("Duck");
    child<QPushButton>(m_click, "closeButton")->click();
    QVERIFY(!m_click->noteEditor()->isVisible());
    QCOMPARE(edit->text(), QString("Jump"));
    QCOMPARE(m_click->note(), QString("Jump"));
    m_click->onNoteBtnClicked();
    QCOMPARE(edit->text(), QString("Jump"));
    edit->setText("Duck");
    QTest::keyClick(edit, Qt::Key_Escape);
    QVERIFY(!m_click->noteEditor()->isVisible());
    QCOMPARE(m_click->note(), QString("Jump"));
}

void TestOvAuxiliaryKeyEditor::confirmKeeps()
{
    m_click->onNoteBtnClicked();
    auto *edit = child<QLineEdit>(m_click, "noteEdit");
    edit->setText("Jump");
    child<QPushButton>(m_click, "confirmButton")->click();
    QVERIFY(!m_click->noteEditor()->isVisible());
    QCOMPARE(m_click->note(), QString("Jump"));
    QCOMPARE(m_click->noteBubble()->findChild<QLabel *>()->text(), QString("Jump"));
    m_click->onNoteBtnClicked();
    edit->setText("Duck");
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(m_click->note(), QString("Duck"));
    m_manager->setRecording(false);
    QVERIFY(m_click->noteBubble()->isVisible());
}

void TestOvAuxiliaryKeyEditor::sensitivity()
{
    m_crosshair->setSensitivity(3.4);
    m_crosshair->onNoteBtnClicked();
    auto *spin = child<QDoubleSpinBox>(m_crosshair, "sensitivitySpin");
    QVERIFY(spin);
    QCOMPARE(spin->value(), 3.4);
    QCOMPARE(spin->minimum(), 1.0);
    QCOMPARE(spin->maximum(), 20.0);
    QCOMPARE(spin->singleStep(), 0.1);
    QCOMPARE(spin->decimals(), 1);
    QCOMPARE(spin->buttonSymbols(), QAbstractSpinBox::NoButtons);
    QCOMPARE(spin->size(), QSize(100, 20));
    spin->setValue(7.7);
    child<QPushButton>(m_crosshair, "closeButton")->click();
    QCOMPARE(spin->value(), 3.4);
    QCOMPARE(m_crosshair->sensitivity(), 3.4);
    spin->setValue(7.77);
    m_crosshair->noteEditor()->onConfirmBtnClicked();
    QCOMPARE(m_crosshair->sensitivity(), 7.8); // one decimal
}

void TestOvAuxiliaryKeyEditor::clampsTheSensitivity()
{
    m_crosshair->onNoteBtnClicked();
    auto *spin = child<QDoubleSpinBox>(m_crosshair, "sensitivitySpin");
    auto *text = spin->findChild<QLineEdit *>();
    text->setText("0.4");
    m_crosshair->noteEditor()->onConfirmBtnClicked();
    QCOMPARE(m_crosshair->sensitivity(), 1.0);
    text->setText("25");
    m_crosshair->noteEditor()->onConfirmBtnClicked();
    QVERIFY(m_crosshair->sensitivity() >= 1.0 && m_crosshair->sensitivity() <= 20.0);
    QCOMPARE(spin->value(), m_crosshair->sensitivity());
}

// What was not confirmed is discarded.
void TestOvAuxiliaryKeyEditor::closesWithTheEditor()
{
    m_click->onNoteBtnClicked();
    child<QLineEdit>(m_click, "noteEdit")->setText("Duck");
    m_manager->setRecording(false);
    QVERIFY(!m_click->noteEditor()->isVisible());
    QCOMPARE(m_click->note(), QString());
}

QTEST_MAIN(TestOvAuxiliaryKeyEditor)
#include "tst_ovauxiliarykeyeditor.moc"
