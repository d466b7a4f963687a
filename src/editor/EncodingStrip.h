#pragma once

#include "EncodingGuess.h"

#include <QFrame>

class QHBoxLayout;
class QLabel;
class QTextCodec;

// The strip over a text page when its file does not read cleanly in the chosen encoding: how many
// characters could not be read and where the first is, and a button for each encoding that reads the
// whole file, the most likely first. Hidden while the file reads cleanly.
class EncodingStrip : public QFrame
{
    Q_OBJECT

public:
    explicit EncodingStrip(QWidget* parent = nullptr);

    // codec: the encoding the file was read in; null (no file) hides the strip.
    void showFindings(QTextCodec* codec, const arcanum::EncodingGuess::Findings& findings);

signals:
    void codecChosen(QTextCodec* codec);

private:
    void clearSuggestions();

    QLabel* message = nullptr;
    QHBoxLayout* choices = nullptr;
};
