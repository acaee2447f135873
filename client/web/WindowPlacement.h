#pragma once

class QWidget;

// Centres a top-level widget in the available area of the primary screen, raises it and repaints it.
// GUI thread.
void centerOnScreen(QWidget *widget);
