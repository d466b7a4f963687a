#pragma once

#include "DialogueCatalogue.h"

#include <QList>
#include <QVector>

#include <functional>
#include <optional>

class DialogueTestsWidget;
class QBoxLayout;

// The rows of one list of tests or results in a line form, in display order. Rows carry their
// position as row number, renumbered on every change, so a row's plus and minus buttons always
// name the row they sit on.
class DialogueRowStack
{
public:
    // What the form does when a row asks for a row below it, asks to go, or has a value edited.
    struct Handlers
    {
        std::function<void(int)> plus;
        std::function<void(int)> minus;
        std::function<void()> edited;
    };
    // The log lines of removing, which name the list.
    struct RemoveLogs
    {
        const char* removing;
        const char* outOfRange;
    };

    DialogueRowStack(QBoxLayout* layout, const arcanum::dlg::TestOrResultTypes* types, RemoveLogs logs,
                     Handlers handlers);

    // A new row at position + 1 (so -1 puts it on top) showing data, or the first opcode with both
    // values 0. Nullptr, and nothing added, when position is neither a row nor -1.
    DialogueTestsWidget* insertAfter(int position,
                                     const std::optional<arcanum::dlg::TestOrResultData>& data = std::nullopt);
    // False when position is not a row.
    bool remove(int position);
    void clear();
    // Shows records, one row each, replacing every row.
    void fill(const QVector<arcanum::dlg::TestOrResultData>& records);
    QVector<arcanum::dlg::TestOrResultData> values() const;

    int size() const { return static_cast<int>(rows.size()); }
    DialogueTestsWidget* at(int position) const { return rows.value(position); }

private:
    void discard(DialogueTestsWidget* row);
    void renumber();

    QBoxLayout* layout;
    const arcanum::dlg::TestOrResultTypes* types;
    RemoveLogs logs;
    Handlers handlers;
    QList<DialogueTestsWidget*> rows; // owned by the layout's widget
};
