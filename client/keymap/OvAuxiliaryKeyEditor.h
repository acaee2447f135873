#pragma once

#include <QPointer>
#include <QWidget>

class OvAuxiliaryKey;
class QDoubleSpinBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

// The popup in which the user writes the note of one auxiliary key and, for the crosshair, sets the mouse
// sensitivity. A small window of its own that stays over the window of its key.
//
// GUI thread; owned by its key.
class OvAuxiliaryKeyEditor : public QWidget
{
    Q_OBJECT

public:
    // `key`: what it edits. Whether there is a sensitivity is for the key to say.
    OvAuxiliaryKeyEditor(OvAuxiliaryKey *key, bool hasSensitivity);
    ~OvAuxiliaryKeyEditor() override;

    // What is shown; the sensitivity does nothing where there is none.
    void setNoteText(const QString &text);
    void setSensitivity(double sensitivity);

    // Moves its upper left corner to a point in screen coordinates, and onto the screen if it would stand
    // over its edge.
    void moveTo(const QPoint &point);

public slots:
    // Discards what was changed: shows the values of the key again, and hides.
    void onCancelBtnClicked();
    // Gives the key what is shown, and hides.
    void onConfirmBtnClicked();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QPushButton *createButton(const QString &objectName, const QString &icon);
    void createSensitivity(QVBoxLayout *layout);
    void setTexts();

    OvAuxiliaryKey *m_key; // its owner
    QLabel *m_noteLabel; // children
    QLineEdit *m_noteEdit;
    QLabel *m_sensitivityLabel = nullptr; // crosshair only, like the next
    QDoubleSpinBox *m_sensitivitySpin = nullptr;
    QPushButton *m_closeButton;
    QPushButton *m_confirmButton;
};
