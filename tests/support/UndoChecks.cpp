#include "UndoChecks.h"

#include "Document.h"

#include <QTest>
#include <QUndoStack>

namespace {

QByteArray bytesOf(const Document& document)
{
    QByteArray bytes;
    QString error;
    if (!document.serialize(bytes, error))
        QTest::qFail(qPrintable(QStringLiteral("serialize failed: ") + error), __FILE__, __LINE__);
    return bytes;
}

} // namespace

bool checkUndoRedo(Document& document, const std::function<void()>& edit, int steps)
{
    QUndoStack* stack = document.undoStack();
    const QByteArray original = bytesOf(document);
    const int start = stack->index();
    edit();
    const QByteArray edited = bytesOf(document);
    if (stack->index() - start != steps) {
        QTest::qFail(qPrintable(QStringLiteral("the edit made %1 undo steps, expected %2")
                                    .arg(stack->index() - start)
                                    .arg(steps)),
                     __FILE__, __LINE__);
        return false;
    }
    if (steps > 0 && !document.isModified()) {
        QTest::qFail("an edited document does not say it is modified", __FILE__, __LINE__);
        return false;
    }
    while (stack->index() > start)
        stack->undo();
    if (bytesOf(document) != original || document.isModified() != (start != stack->cleanIndex())) {
        QTest::qFail("undoing every step does not give the original bytes back", __FILE__, __LINE__);
        return false;
    }
    while (stack->canRedo())
        stack->redo();
    if (bytesOf(document) != edited) {
        QTest::qFail("redoing every step does not give the edited bytes", __FILE__, __LINE__);
        return false;
    }
    return true;
}
