#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPainterPath;
class QPushButton;

// Asks for the sharing code of a key-mapping scheme that a friend has shared. It only asks: whoever opened it
// imports the scheme when it is confirmed (see SchemeImporter) and closes it when that has succeeded, so that
// a code with a mistake in it can be corrected.
//
//     auto *dialog = new ShareConfigDlg(window);
//     connect(dialog, &ShareConfigDlg::sigConfirmBtnClicked, …); // there importer->importFrom(dialog)
//     dialog->openAt(button);
//
// GUI thread; child of its window. Made with new: it deletes itself when it is closed.
class ShareConfigDlg : public QDialog
{
    Q_OBJECT

public:
    explicit ShareConfigDlg(QWidget *parent = nullptr);
    ~ShareConfigDlg() override;

    // The code as it was typed.
    QString code() const;
    // While the code is being looked up it can be neither changed nor confirmed again.
    void setBusy(bool busy);
    // Opens the dialog at the position of a widget, but never off that widget's screen. Its window takes no
    // input until the dialog is closed.
    void openAt(const QWidget *opener);

    // Ends the dialog unconfirmed, as the button "Close", the Escape key and closing it do.
    void reject() override;

signals:
    // The dialog is left, and closes right after.
    void sigCancelBtnClicked();
    // The code is to be used; the dialog stays open.
    void sigConfirmBtnClicked();

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QPushButton *createButton(const QString &objectName, const QString &style);
    void createLayout();
    void setTexts();
    QPainterPath shape() const;

    QLabel *m_titleLabel; // children
    QLabel *m_hintLabel;
    QLabel *m_promptLabel;
    QLineEdit *m_codeEdit;
    QPushButton *m_closeButton;
    QPushButton *m_confirmButton;
};
