#include "ScriptedAnswerer.h"

#include <QDialog>

ScriptedAnswerer::ScriptedAnswerer()
    : previous(Prompt::answerer())
{
    Prompt::setAnswerer(this);
}

ScriptedAnswerer::~ScriptedAnswerer()
{
    // An answerer made inside another one's scope hands the questions back to it.
    Prompt::setAnswerer(previous);
}

int ScriptedAnswerer::count(const QString& kind) const
{
    int n = 0;
    for (const Asked& a : asked)
        n += a.kind == kind ? 1 : 0;
    return n;
}

const ScriptedAnswerer::Asked* ScriptedAnswerer::last(const QString& kind) const
{
    for (auto it = asked.crbegin(); it != asked.crend(); ++it) {
        if (it->kind == kind)
            return &*it;
    }
    return nullptr;
}

QMessageBox::StandardButton ScriptedAnswerer::question(const QString& title, const QString& text,
                                                       QMessageBox::StandardButtons /*buttons*/,
                                                       QMessageBox::StandardButton defaultButton)
{
    asked.append({QStringLiteral("question"), title, text, defaultButton, QMessageBox::Question});
    return buttons.isEmpty() ? defaultButton : buttons.dequeue();
}

void ScriptedAnswerer::message(QMessageBox::Icon icon, const QString& title, const QString& text)
{
    asked.append({QStringLiteral("message"), title, text, QMessageBox::NoButton, icon});
}

QString ScriptedAnswerer::fileName(const QString& kind, const QString& title, const QString& dir,
                                   const QString& filter)
{
    asked.append({kind, title, dir + QLatin1Char('|') + filter});
    return fileNames.isEmpty() ? QString() : fileNames.dequeue();
}

QColor ScriptedAnswerer::color(const QColor& initial)
{
    asked.append({QStringLiteral("color"), QString(), initial.name()});
    return colors.isEmpty() ? QColor() : colors.dequeue();
}

int ScriptedAnswerer::run(QDialog& dialog)
{
    asked.append({QStringLiteral("dialog"), dialog.windowTitle(), dialog.objectName()});
    return dialogs.isEmpty() ? QDialog::Rejected : dialogs.dequeue()(dialog);
}
