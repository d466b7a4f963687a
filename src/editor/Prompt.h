#pragma once

#include <QColor>
#include <QMessageBox>
#include <QString>

class QDialog;
class QWidget;

// Every modal question, message box, chooser and dialog of the editor runs through here,
// so that tests can answer them without entering a modal event loop.
class Prompt
{
public:
    // Stands in for the user while installed; each call gets what the real dialog would have shown.
    class Answerer
    {
    public:
        virtual ~Answerer() = default;
        virtual QMessageBox::StandardButton question(const QString& title, const QString& text,
                                                     QMessageBox::StandardButtons buttons,
                                                     QMessageBox::StandardButton defaultButton) = 0;
        virtual void message(QMessageBox::Icon icon, const QString& title, const QString& text) = 0;
        // kind is "open", "save" or "directory"; an empty answer means cancelled.
        virtual QString fileName(const QString& kind, const QString& title, const QString& dir,
                                 const QString& filter) = 0;
        // An invalid colour means cancelled.
        virtual QColor color(const QColor& initial) = 0;
        // May fill the dialog's controls; returns the dialog's result code.
        virtual int run(QDialog& dialog) = 0;
    };

    static void setAnswerer(Answerer* answerer);
    static Answerer* answerer();

    static QMessageBox::StandardButton question(QWidget* parent, const QString& title, const QString& text,
                                                QMessageBox::StandardButtons buttons,
                                                QMessageBox::StandardButton defaultButton);
    static void message(QWidget* parent, QMessageBox::Icon icon, const QString& title, const QString& text);
    static QString openFileName(QWidget* parent, const QString& title, const QString& dir, const QString& filter);
    static QString saveFileName(QWidget* parent, const QString& title, const QString& dir, const QString& filter);
    static QString existingDirectory(QWidget* parent, const QString& title, const QString& dir);
    static QColor color(QWidget* parent, const QColor& initial);
    static int run(QDialog& dialog);
};

// Yes/No question with No as the default; true for Yes.
bool yesNoDlg(const QString& title, const QString& text);
