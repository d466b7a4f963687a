#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class LineToolsWidget;
}

// Move up, delete and move down for one script line.
class LineToolsWidget : public QWidget
{
    Q_OBJECT

public:
    explicit LineToolsWidget(QWidget* parent = nullptr);
    ~LineToolsWidget() override;

signals:
    void up();
    void remove();
    void down();

private:
    std::unique_ptr<Ui::LineToolsWidget> ui;
};
