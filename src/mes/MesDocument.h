#pragma once

#include "Document.h"
#include "EncodingGuess.h"
#include "Mesfile.h"

#include <QList>
#include <QSet>

#include <memory>

class QTextCodec;

// An open message file (or a dialogue file read as a table) in one encoding. Cells are addressed by the
// entry's position in the file and a column: 0 the number, 1 … items, the last the comment.
class MesDocument : public Document
{
    Q_OBJECT

public:
    // Null and the reason when the file cannot be read at all.
    static std::unique_ptr<MesDocument> fromBytes(const QString& path, const QByteArray& bytes, QTextCodec* codec,
                                                  QString& error);

    const arcanum::Mesfile& model() const { return *mesfile; }
    QTextCodec* codec() const { return textCodec; }
    // What did not read in that encoding, and the encodings that would read the file.
    const arcanum::EncodingGuess::Findings& encodingFindings() const { return findings; }
    int columnCount() const;
    QString cell(int entry, int column) const;
    bool isEditable(int entry, int column) const;

    // Applied by commands only: they announce the change.
    void applyCell(int entry, int column, const QString& text);
    void applyHeader(const QString& text);

    bool serialize(QByteArray& bytes, QString& error) const override;
    QString saveLoss() const override;
    QString damage() const override;

signals:
    void cellChanged(int entry, int column);
    void headerChanged();

private:
    MesDocument(const QString& path, std::unique_ptr<arcanum::Mesfile> model, QTextCodec* codec,
                const QByteArray& bytes);
    int entryAtLine(int line) const;

    std::unique_ptr<arcanum::Mesfile> mesfile;
    QTextCodec* textCodec;
    // Lines whose bytes a read and write in this encoding would change, and the entries edited since.
    QList<int> lossyLines;
    arcanum::EncodingGuess::Findings findings;
    QSet<int> editedEntries;
    bool headerEdited = false;
};
