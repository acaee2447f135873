#include "group/GroupWindow.h"

GroupWindow::GroupWindow(QWidget *parent)
    : OvWindowBase(parent)
{ }
