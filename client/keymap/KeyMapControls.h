#pragma once

#include <QScrollArea>

class KeyKindButton;
class OvSlider;
class QLabel;
class QVBoxLayout;
class WrappingCheckBox;

// What the key-mapping editor has to work on a scheme: the buttons that add keys, and how keys look. It
// scrolls where there is not enough room for it.
//
// GUI thread; child of the editor, which connects its parts.
class KeyMapControls : public QScrollArea
{
    Q_OBJECT

public:
    explicit KeyMapControls(QWidget *parent = nullptr);
    ~KeyMapControls() override;

    // Add a key of a kind.
    KeyKindButton *clickButton() const { return m_clickButton; }
    KeyKindButton *walkingButton() const { return m_walkingButton; }
    KeyKindButton *crosshairButton() const { return m_crosshairButton; }
    // Opacity in percent, and the key size from 20 to 40.
    OvSlider *opacitySlider() const { return m_opacitySlider; }
    OvSlider *sizeSlider() const { return m_sizeSlider; }
    // Whether keys and their notes are seen in play.
    WrappingCheckBox *showKeysBox() const { return m_showKeysBox; }
    WrappingCheckBox *showNotesBox() const { return m_showNotesBox; }

    // Whether there is a scheme to work on.
    void setEditable(bool editable);
    // The room between the parts, in device-independent pixels.
    void setSpacing(int spacing);

protected:
    void changeEvent(QEvent *event) override;

private:
    void createParts();
    QWidget *createKeyKinds();
    QLayout *createSliders();
    void setTexts();

    QVBoxLayout *m_content = nullptr;
    QLabel *m_kindsLabel = nullptr; // children
    KeyKindButton *m_clickButton = nullptr;
    KeyKindButton *m_walkingButton = nullptr;
    KeyKindButton *m_crosshairButton = nullptr;
    QLabel *m_promptsLabel = nullptr;
    QLabel *m_opacityLabel = nullptr;
    OvSlider *m_opacitySlider = nullptr;
    QLabel *m_sizeLabel = nullptr;
    OvSlider *m_sizeSlider = nullptr;
    WrappingCheckBox *m_showKeysBox = nullptr;
    WrappingCheckBox *m_showNotesBox = nullptr;
};
