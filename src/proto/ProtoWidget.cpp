#include "ProtoWidget.h"

ProtoWidget::ProtoWidget(QWidget* parent)
    : QWidget(parent)
{
}

bool ProtoWidget::loadProto(const std::string& fullPath)
{
    path = fullPath;
    return true;
}
