#pragma once

#include "Client.h"
#include "Service.h"
#include "UpdateFixture.h"

#include <QImage>
#include <QRect>
#include <QString>

// One run of the demo. Every step prints what it saw and saves NN-name.png; the first step that fails ends
// the run with a picture of the whole screen.
class DemoRun
{
public:
    explicit DemoRun(const QString &outputDir);

    // Whether every step succeeded.
    bool run();

private:
    inline static const QString mainWindowTitle = QStringLiteral("Orvane");

    void signIn();
    void openDevice();
    void paint();
    void writeNotes();
    void scrollList();
    void turn();
    void editKeys();
    void play();
    void showCamera();
    void captureDevice();
    void enterStandby();
    void closeDevice();
    void openSettings();
    void chooseStandbyTime();
    void showGroups();
    void openGroup();
    void playGroup();
    void promoteTile();
    void saveGroup();
    void changeLanguage();
    void openWebDevice();
    void capturePage();
    void closeWebDevice();
    void offerUpdate();
    void downloadUpdate();
    void deferUpdate();
    void updateAtExit();
    void checkLog();
    void waitForNoSession();

    // What the installer of the demo leaves when it runs.
    QString installerMark() const;
    // The devices with sessions, but for the one that has a window of its own.
    QStringList groupPads() const;
    static void clickInGroup(const QPoint &position);
    static void clickInMainWindow(const QPoint &position);
    // Taps an app's icon on the launcher and waits until the app is in front.
    void launch(const QString &app);
    // Screen position of a point of the device's screen, given in its 720 x 1280 pixels.
    QPoint onScreen(const QPoint &devicePoint) const;
    QRect videoArea() const;
    // The middle of a button of the window's menu bar, counted from the top.
    QPoint menuButton(int index) const;
    // Saves what a save dialog is opened for as the next step's picture.
    void saveAs(const QString &name, const QSize &size);
    // The file name of the next step's picture.
    QString pictureName(const QString &name);
    void save(const QString &name, const QImage &picture);
    static void say(const QString &text);

    QString m_outputDir;
    e2e::Service m_service;
    e2e::Client m_client;
    e2e::ReleaseFiles m_release;
    QString m_deviceName;
    QString m_pad;
    int m_step = 0;
};
