#pragma once

#include <QObject>
#include <QString>

class QTranslator;

// Switches the language of the native user interface. The web front end translates itself and hands over the
// short code of the language that the user picked there.
//
// GUI thread; the process has one, made on first use and kept to its end.
class TranslateManager : public QObject
{
    Q_OBJECT

public:
    static TranslateManager *instance();

    // Where the compiled translation files (.qm) are looked for; "res/translations/orvane" in the program's
    // directory unless it is set.
    void setTranslationDir(const QString &dir);
    QString translationDir() const;

public slots:
    // Loads and installs the translation for the front end's language code, such as "en" or "cn". Every
    // widget is told by a language-change event. Without a file for the code the interface shows its source
    // texts.
    void onLanguegeChanged(const QString &locale);

private:
    TranslateManager();
    ~TranslateManager() override;

    QString m_translationDir; // empty: the default
    QTranslator *m_translator = nullptr; // child, made by the first change
};
