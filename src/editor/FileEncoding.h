#pragma once

#include "EncodingGuess.h"

#include <QObject>

class EncodingBox;
class EncodingStrip;
class Page;
class QTextCodec;

// A text page's encoding: the list to choose it from, the strip that says when the file does not read
// cleanly in it, and the choice remembered for each file. Choosing (in the list or on the strip)
// reads the open file again in the new encoding, after the page's usual question about unsaved
// changes; with no file open it sets the encoding of files opened without a remembered one.
class FileEncoding : public QObject
{
    Q_OBJECT

public:
    FileEncoding(Page* page, QTextCodec* byDefault);

    // The page places both in its layout.
    EncodingBox* box() const { return list; }
    EncodingStrip* strip() const { return warning; }

    // The encoding remembered for path, else the default.
    QTextCodec* codecFor(const QString& path) const;
    // After the page shows a document read in codec (null: none).
    void show(QTextCodec* codec, const arcanum::EncodingGuess::Findings& findings);

private:
    void choose(QTextCodec* codec);

    Page* page;
    QTextCodec* byDefault;
    QTextCodec* shown = nullptr;
    EncodingBox* list;
    EncodingStrip* warning;
};
