#pragma once

#include "Prompt.h"

#include <QList>
#include <QQueue>

#include <functional>

// Answers the editor's questions and dialogs in place of a user, and remembers what was asked.
class ScriptedAnswerer : public Prompt::Answerer
{
public:
    struct Asked
    {
        QString kind; // "question", "message", "open", "save", "directory", "color", "dialog"
        QString title;
        QString text;
        QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
        QMessageBox::Icon icon = QMessageBox::NoIcon;
    };

    ScriptedAnswerer();  // installs itself
    ~ScriptedAnswerer() override; // puts back the answerer it replaced

    // Answers are taken in order; when a queue is empty the question gets its default button,
    // a chooser is cancelled and a dialog is rejected.
    QQueue<QMessageBox::StandardButton> buttons;
    QQueue<QString> fileNames;
    QQueue<QColor> colors;
    QQueue<std::function<int(QDialog&)>> dialogs;
    QList<Asked> asked;

    int count(const QString& kind) const;
    const Asked* last(const QString& kind) const;

    QMessageBox::StandardButton question(const QString& title, const QString& text,
                                         QMessageBox::StandardButtons buttons,
                                         QMessageBox::StandardButton defaultButton) override;
    void message(QMessageBox::Icon icon, const QString& title, const QString& text) override;
    QString fileName(const QString& kind, const QString& title, const QString& dir, const QString& filter) override;
    QColor color(const QColor& initial) override;
    int run(QDialog& dialog) override;

private:
    Prompt::Answerer* previous = nullptr;
};
