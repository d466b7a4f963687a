#pragma once

#include <QString>

class QPlainTextEdit;

// A text box of a line form that remembers the text it was filled with. A text box shows some
// characters differently than a line stores them (a lone carriage return, for one), so a text the
// user did not touch must not be read back from the box.
class DlgTextBox
{
public:
    explicit DlgTextBox(QPlainTextEdit* edit);

    void show(const QString& text);
    // What the box holds now went into the line: later changes are measured from here.
    void markApplied();
    // The user changed the text since it was shown.
    bool isChanged() const;
    // The text as a line stores it: lines joined by "\n", no-break spaces kept.
    QString text() const;

private:
    QPlainTextEdit* edit;
    QString shown;
};
