#pragma once

#include <QComboBox>
#include <QStringList>

class QTextCodec;

// The list of every encoding Qt offers, the game's code pages first, to read a text file in.
class EncodingBox : public QComboBox
{
    Q_OBJECT

public:
    explicit EncodingBox(QWidget* parent = nullptr);

    // The game's own code pages first, then every other codec once, by its canonical name, sorted.
    static const QStringList& encodingList();

    // Shows codec as the current choice without announcing it.
    void showCodec(QTextCodec* codec);

signals:
    // The user picked another encoding.
    void codecChosen(QTextCodec* codec);
};
