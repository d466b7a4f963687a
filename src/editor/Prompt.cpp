#include "Prompt.h"

#include <QApplication>
#include <QColorDialog>
#include <QDialog>
#include <QFileDialog>

namespace {
Prompt::Answerer* currentAnswerer = nullptr;
}

void Prompt::setAnswerer(Answerer* answerer)
{
    currentAnswerer = answerer;
}

Prompt::Answerer* Prompt::answerer()
{
    return currentAnswerer;
}

QMessageBox::StandardButton Prompt::question(QWidget* parent, const QString& title, const QString& text,
                                             QMessageBox::StandardButtons buttons,
                                             QMessageBox::StandardButton defaultButton)
{
    if (currentAnswerer)
        return currentAnswerer->question(title, text, buttons, defaultButton);
    return QMessageBox::question(parent, title, text, buttons, defaultButton);
}

void Prompt::message(QWidget* parent, QMessageBox::Icon icon, const QString& title, const QString& text)
{
    if (currentAnswerer) {
        currentAnswerer->message(icon, title, text);
        return;
    }
    QMessageBox box(icon, title, text, QMessageBox::Ok, parent);
    box.exec();
}

QString Prompt::openFileName(QWidget* parent, const QString& title, const QString& dir, const QString& filter)
{
    if (currentAnswerer)
        return currentAnswerer->fileName(QStringLiteral("open"), title, dir, filter);
    return QFileDialog::getOpenFileName(parent, title, dir, filter);
}

QString Prompt::saveFileName(QWidget* parent, const QString& title, const QString& dir, const QString& filter)
{
    if (currentAnswerer)
        return currentAnswerer->fileName(QStringLiteral("save"), title, dir, filter);
    return QFileDialog::getSaveFileName(parent, title, dir, filter);
}

QString Prompt::existingDirectory(QWidget* parent, const QString& title, const QString& dir)
{
    if (currentAnswerer)
        return currentAnswerer->fileName(QStringLiteral("directory"), title, dir, QString());
    return QFileDialog::getExistingDirectory(parent, title, dir, QFileDialog::ShowDirsOnly);
}

QColor Prompt::color(QWidget* parent, const QColor& initial)
{
    if (currentAnswerer)
        return currentAnswerer->color(initial);
    return QColorDialog::getColor(initial, parent);
}

int Prompt::run(QDialog& dialog)
{
    if (currentAnswerer)
        return currentAnswerer->run(dialog);
    return dialog.exec();
}

bool yesNoDlg(const QString& title, const QString& text)
{
    return Prompt::question(QApplication::activeWindow(), title, text, QMessageBox::Yes | QMessageBox::No,
                            QMessageBox::No)
        == QMessageBox::Yes;
}
