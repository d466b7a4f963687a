#pragma once

#include <QWidget>

// Placeholder page until the dialogue editor lands.
class DialogueEditWidget : public QWidget
{
    Q_OBJECT

public:
    explicit DialogueEditWidget(QWidget* parent = nullptr);
};
