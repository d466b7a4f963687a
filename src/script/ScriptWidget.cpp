#include "ScriptWidget.h"

ScriptWidget::ScriptWidget(QWidget* parent)
    : QWidget(parent)
{
}

bool ScriptWidget::loadScript(const QString& fullPath)
{
    path = fullPath;
    return false;
}
