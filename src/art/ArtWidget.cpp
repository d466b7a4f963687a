#include "ArtWidget.h"

ArtWidget::ArtWidget(QWidget* parent)
    : QWidget(parent)
{
}

void ArtWidget::loadArt(const std::string& fullPath)
{
    path = fullPath;
}
