#pragma once

#include <QWidget>

#include <memory>

class Ui_HexWidget;

// A read-only hex view of a raw block: 20 bytes a row, and the file position of the selected byte.
class HexWidget : public QWidget
{
    Q_OBJECT

public:
    static constexpr int COLUMNS = 20;

    explicit HexWidget(QWidget* parent = nullptr);
    ~HexWidget() override;

    void setLabel(const QString& text);
    // base is the file position of data[0].
    void setData(const unsigned char* data, unsigned long size, unsigned int base);
    QString positionText() const;

private slots:
    void on_table_currentCellChanged(int row, int column, int previousRow, int previousColumn);

private:
    void fitHeight();

    std::unique_ptr<Ui_HexWidget> ui;
    unsigned long size = 0;
    unsigned int base = 0;
};
