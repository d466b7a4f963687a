#include "Page.h"

#include "Document.h"
#include "Prompt.h"
#include "SaveGuard.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

Page::Page(QWidget* parent)
    : QWidget(parent)
{
}

Page::~Page() = default;

std::unique_ptr<Document> Page::load(const QString& path, QString& error) const
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
        return nullptr;
    }
    return fromBytes(path, file.readAll(), error);
}

bool Page::openFile(const QString& path)
{
    if (!settle())
        return false;
    QString error;
    std::unique_ptr<Document> loaded = load(path, error);
    if (!loaded) {
        Prompt::message(this, QMessageBox::Warning, tr("Cannot open file"),
                        tr("Could not open %1: %2").arg(QDir::toNativeSeparators(path), error));
        return false;
    }
    setDocument(std::move(loaded));
    return true;
}

bool Page::settle()
{
    if (!commitPending())
        return false;
    return !confirmAbandon || SaveGuard::settle(this, document(), fileFilter());
}

void Page::setDocument(std::unique_ptr<Document> document)
{
    // The old document goes only after the page stopped showing it and the window let go of its stack.
    std::unique_ptr<Document> old = std::move(shown);
    shown = std::move(document);
    showDocument();
    emit documentReplaced(shown.get());
}

bool Page::save()
{
    if (document() == nullptr)
        return false;
    if (!commitPending())
        return false;
    const QString path = document()->path();
    if (!document()->origin().isEmpty()) {
        if (Prompt::question(this, tr("Save"),
                             tr("%1 comes from %2. Saving writes it as a loose file in %3, which then overrides the "
                                "archived copy. Save?")
                                 .arg(document()->displayName(), document()->origin(), document()->overrideFolder()),
                             QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes)
            != QMessageBox::Yes)
            return false;
        // A loose file there is someone's work: never replaced without asking, whatever the settings say.
        if (QFileInfo::exists(path)
            && Prompt::question(this, tr("Save"), tr("Overwrite %1?").arg(QDir::toNativeSeparators(path)),
                                QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
                   != QMessageBox::Yes)
            return false;
        QDir().mkpath(QFileInfo(path).absolutePath());
        return SaveGuard::saveInPlace(this, document(), fileFilter(), dialogFolder());
    }
    if (confirmOverwrite && !path.isEmpty() && QFileInfo::exists(path)
        && Prompt::question(this, tr("Save"), tr("Overwrite %1?").arg(document()->displayName()),
                            QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
               != QMessageBox::Yes)
        return false;
    return SaveGuard::saveInPlace(this, document(), fileFilter(), dialogFolder());
}

bool Page::saveAs()
{
    if (document() == nullptr)
        return false;
    if (!commitPending())
        return false;
    return SaveGuard::saveAs(this, document(), fileFilter(), dialogFolder());
}

void Page::browse()
{
    const QString path = Prompt::openFileName(this, tr("Open"), dialogFolder(), fileFilter());
    if (!path.isEmpty())
        openFile(path);
}

QString Page::dialogFolder() const
{
    if (document() != nullptr && !document()->path().isEmpty())
        return QFileInfo(document()->path()).absolutePath();
    return startFolder;
}

void Page::setFramed()
{
    framed = true;
    for (QWidget* control : fileControls())
        control->hide();
}
