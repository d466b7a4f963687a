#include "LineToolsWidget.h"

#include "ui_LineToolsWidget.h"

LineToolsWidget::LineToolsWidget(QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::LineToolsWidget>())
{
    ui->setupUi(this);
    connect(ui->buttonUp, &QToolButton::clicked, this, &LineToolsWidget::up);
    connect(ui->buttonDelete, &QToolButton::clicked, this, &LineToolsWidget::remove);
    connect(ui->buttonDown, &QToolButton::clicked, this, &LineToolsWidget::down);
}

LineToolsWidget::~LineToolsWidget() = default;
