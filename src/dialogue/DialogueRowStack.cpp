#include "DialogueRowStack.h"

#include "DialogueTestsWidget.h"

#include <QBoxLayout>

#include <utility>

using arcanum::dlg::TestOrResultData;

DialogueRowStack::DialogueRowStack(QBoxLayout* layout_, const arcanum::dlg::TestOrResultTypes* types_,
                                   RemoveLogs logs_, Handlers handlers_)
    : layout(layout_)
    , types(types_)
    , logs(logs_)
    , handlers(std::move(handlers_))
{
}

DialogueTestsWidget* DialogueRowStack::insertAfter(int position, const std::optional<TestOrResultData>& data)
{
    qDebug("addTestOrResultWidget");
    if (position >= size()) {
        qDebug("count >= widgets.size()");
        return nullptr;
    }
    if (position < -1) {
        qDebug("count < -1");
        return nullptr;
    }
    QWidget* parent = layout->parentWidget();
    auto* row = data ? new DialogueTestsWidget(parent, position + 1, types, *data)
                     : new DialogueTestsWidget(parent, position + 1, types);
    rows.insert(position + 1, row);
    layout->insertWidget(position + 1, row);
    QObject::connect(row, &DialogueTestsWidget::plusButtonPressed, parent, handlers.plus);
    QObject::connect(row, &DialogueTestsWidget::minusButtonPressed, parent, handlers.minus);
    QObject::connect(row, &DialogueTestsWidget::valueEdited, parent, handlers.edited);
    renumber();
    return row;
}

bool DialogueRowStack::remove(int position)
{
    qDebug("%s", logs.removing);
    if (position < 0 || position >= size()) {
        qDebug("%s", logs.outOfRange);
        return false;
    }
    discard(rows.takeAt(position));
    renumber();
    return true;
}

void DialogueRowStack::clear()
{
    for (DialogueTestsWidget* row : std::as_const(rows))
        discard(row);
    rows.clear();
}

void DialogueRowStack::fill(const QVector<TestOrResultData>& records)
{
    clear();
    for (const TestOrResultData& record : records)
        insertAfter(size() - 1, record);
}

QVector<TestOrResultData> DialogueRowStack::values() const
{
    QVector<TestOrResultData> records;
    records.reserve(rows.size());
    for (const DialogueTestsWidget* row : rows)
        records << *row->getCalculatedValue();
    return records;
}

// A row may be removed from inside its own button's click, so it is deleted once that has returned.
void DialogueRowStack::discard(DialogueTestsWidget* row)
{
    row->blockSignals(true);
    layout->removeWidget(row);
    row->hide();
    row->deleteLater();
}

void DialogueRowStack::renumber()
{
    for (int i = 0; i < size(); ++i)
        rows.at(i)->setRowNumber(i);
}
