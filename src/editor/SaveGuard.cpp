#include "SaveGuard.h"

#include "Document.h"
#include "Prompt.h"

#include <QCoreApplication>
#include <QDir>

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("SaveGuard", text);
}

} // namespace

bool SaveGuard::settle(QWidget* parent, Document* document, const QString& filter)
{
    if (document == nullptr || !document->isModified())
        return true;
    const auto answer = Prompt::question(parent, tr("Unsaved changes"),
                                         tr("Save changes to %1?").arg(document->displayName()),
                                         QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                                         QMessageBox::Save);
    if (answer == QMessageBox::Discard)
        return true;
    if (answer != QMessageBox::Save)
        return false;
    return saveInPlace(parent, document, filter, QString());
}

bool SaveGuard::save(QWidget* parent, Document* document, const QString& path)
{
    const QString loss = document->saveLoss();
    if (!loss.isEmpty()) {
        const auto answer = Prompt::question(parent, tr("Save would change the file"),
                                             loss + QLatin1Char('\n') + tr("Save anyway?"),
                                             QMessageBox::Save | QMessageBox::Cancel, QMessageBox::Cancel);
        if (answer != QMessageBox::Save)
            return false;
    }
    QString error;
    if (document->save(path, error))
        return true;
    Prompt::message(parent, QMessageBox::Warning, tr("Save failed"),
                    tr("Could not save %1: %2").arg(QDir::toNativeSeparators(path), error));
    return false;
}

bool SaveGuard::saveAs(QWidget* parent, Document* document, const QString& filter, const QString& folder)
{
    const QString start = document->path().isEmpty() ? folder : document->path();
    const QString path = Prompt::saveFileName(parent, tr("Save As"), start, filter);
    if (path.isEmpty())
        return false;
    return save(parent, document, path);
}

bool SaveGuard::saveInPlace(QWidget* parent, Document* document, const QString& filter, const QString& folder)
{
    if (document->path().isEmpty())
        return saveAs(parent, document, filter, folder);
    return save(parent, document, document->path());
}
