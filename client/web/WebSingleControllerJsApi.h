#pragma once

#include "web/OvJsApi.h"

// What the page of a web device window can ask for besides OvJsApi's operations: where to save a picture.
//
// GUI thread; child of the window's web view.
class WebSingleControllerJsApi : public OvJsApi
{
    Q_OBJECT

public:
    explicit WebSingleControllerJsApi(QWebEngineView *webView);

    // Asks the user for a file. Result: {"savePath": path}, empty when the user cancels.
    Q_INVOKABLE void getSavePath(const Context &context);

signals:
    // The user has chosen a file: what the page saves next goes there.
    void sigSavePathChosen(const QString &path);
};
