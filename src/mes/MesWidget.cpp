#include "MesWidget.h"

MesWidget::MesWidget(QWidget* parent, QString /*encoding*/)
    : QWidget(parent)
{
}

void MesWidget::loadMes(const QString& fullPath)
{
    path = fullPath;
}
