#pragma once

#include "widgets/OvComboBox.h"

class QPushButton;

// The choice of the key-mapping scheme. Each row carries the scheme's identifier; the row of a scheme has
// buttons to rename, share, copy and delete it. It takes no keyboard focus, and the wheel does not change it
// by chance.
//
// GUI thread; child of the editor.
class SchemeBox : public OvComboBox
{
    Q_OBJECT

public:
    // The widgets of a scheme's row; they live as long as the row.
    struct Row
    {
        OvComboBoxEditableItem *item = nullptr;
        QPushButton *editButton = nullptr;
        QPushButton *shareButton = nullptr;
        QPushButton *copyButton = nullptr;
        QPushButton *deleteButton = nullptr;
    };
    // A name that is being typed.
    struct Renaming
    {
        QString mapId; // empty: none
        QString text;
    };

    explicit SchemeBox(QWidget *parent = nullptr);
    ~SchemeBox() override;

    // Appends the row of a scheme.
    Row addScheme(const QString &mapId, const QString &name);
    // Appends the row that stands for no scheme: its identifier is empty, and there is nothing to do with it.
    void addNoScheme(const QString &text);
    // The identifier of a row's scheme; empty where there is none.
    QString mapIdAt(int row) const;
    // The row of a scheme; -1 if there is none. An empty identifier has none.
    int rowOf(const QString &mapId) const;
    // The row that one of its buttons belongs to, or that the object is itself; null if there is none.
    static OvComboBoxEditableItem *rowWidgetOf(QObject *buttonOrRow);
    static QString mapIdOf(const OvComboBoxEditableItem *row);

    // What the user is typing, to be gone on with by resume() after the rows have been made anew.
    Renaming renaming() const;
    void resume(const Renaming &renaming);
    // Whether the list is open.
    bool isOpen() const;

protected:
    void wheelEvent(QWheelEvent *event) override;

private:
    QPushButton *addButton(OvComboBoxEditableItem *row, const char *iconPath, const QString &text);
};
