#include "DialogueEditWidget.h"

DialogueEditWidget::DialogueEditWidget(QWidget* parent)
    : QWidget(parent)
{
}
