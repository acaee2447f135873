#pragma once

#include <QPushButton>

// A button of the key-mapping editor that adds an auxiliary key: a picture of the kind of key above its name,
// which is wrapped, and smaller where it would not fit otherwise. It takes no keyboard focus.
//
// GUI thread; child of whoever shows it.
class KeyKindButton : public QPushButton
{
    Q_OBJECT

public:
    // `iconPath`: a resource path.
    explicit KeyKindButton(const QString &iconPath, QWidget *parent = nullptr);
    ~KeyKindButton() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
