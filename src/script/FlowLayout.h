#pragma once

#include <QLayout>
#include <QList>

// Places its items left to right like words in a paragraph, starting a new row where the next item
// would pass the right edge; its height therefore depends on its width.
class FlowLayout : public QLayout
{
public:
    explicit FlowLayout(QWidget* parent = nullptr, int spacing = 4);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override;
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    QSize minimumSize() const override;
    QSize sizeHint() const override;
    void setGeometry(const QRect& rect) override;
    void invalidate() override;

private:
    // Lays the items out in rect (placing them only when place is set) and returns the height used.
    int doLayout(const QRect& rect, bool place) const;
    int gap(Qt::Orientation orientation) const;

    QList<QLayoutItem*> items;
    // Layouts above ask for the same width many times over; long scripts have hundreds of rows.
    mutable int cachedWidth = -1;
    mutable int cachedHeight = 0;
};
