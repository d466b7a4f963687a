#include "MesDocument.h"

#include "TextDecoding.h"

#include <QFile>
#include <QTextCodec>

using arcanum::Mesfile;

namespace {
const int LISTED_PROBLEMS = 3;
}

std::unique_ptr<MesDocument> MesDocument::fromBytes(const QString& path, const QByteArray& bytes, QTextCodec* codec,
                                                    QString& error)
{
    std::unique_ptr<Mesfile> model(Mesfile::getInstance(path));
    model->setFilename(path);
    if (!bytes.isEmpty() && !model->loadBytes(bytes, codec)) {
        error = QObject::tr("the file could not be read");
        return nullptr;
    }
    return std::unique_ptr<MesDocument>(new MesDocument(path, std::move(model), codec, bytes));
}

MesDocument::MesDocument(const QString& path, std::unique_ptr<Mesfile> model, QTextCodec* codec,
                         const QByteArray& bytes)
    : Document(path)
    , mesfile(std::move(model))
    , textCodec(codec)
    , lossyLines(arcanum::TextDecoding::lossyLines(codec, bytes))
    , findings(arcanum::EncodingGuess::examine(codec, bytes))
{
}

int MesDocument::columnCount() const
{
    return int(mesfile->getItemCount()) + 2;
}

QString MesDocument::cell(int entry, int column) const
{
    const Mesfile::Entry* found = mesfile->getEntryAt(entry);
    if (found == nullptr)
        return QString();
    if (column == 0)
        return QString::number(found->getMesIndex());
    if (column == columnCount() - 1)
        return found->getComment();
    return found->getItemAt(unsigned(column - 1));
}

bool MesDocument::isEditable(int entry, int column) const
{
    const Mesfile::Entry* found = mesfile->getEntryAt(entry);
    // A line that could not be read is written back as read, so an edit of its cells would be lost.
    return found != nullptr && found->isValid() && column > 0;
}

void MesDocument::applyCell(int entry, int column, const QString& text)
{
    Mesfile::Entry* found = mesfile->getEntryAt(entry);
    if (found == nullptr || column <= 0)
        return;
    if (column == columnCount() - 1)
        found->setComment(text);
    else
        found->setItemAt(unsigned(column - 1), text);
    editedEntries.insert(entry);
    emit cellChanged(entry, column);
    emit changed();
}

void MesDocument::applyHeader(const QString& text)
{
    mesfile->setHeader(text);
    headerEdited = true;
    emit headerChanged();
    emit changed();
}

bool MesDocument::serialize(QByteArray& bytes, QString& /*error*/) const
{
    bytes = mesfile->toBytes(textCodec);
    return true;
}

int MesDocument::entryAtLine(int line) const
{
    int found = -1;
    for (int i = 0; i < mesfile->getEntryCount(); ++i) {
        const int start = mesfile->getEntryAt(i)->getSourceLine();
        if (start > line)
            break;
        found = i;
    }
    return found;
}

QString MesDocument::saveLoss() const
{
    int untouched = 0;
    for (int line : lossyLines) {
        const int entry = entryAtLine(line);
        if (entry < 0 ? !headerEdited : !editedEntries.contains(entry))
            ++untouched;
    }
    if (untouched == 0)
        return QString();
    const QString lines = untouched == 1 ? tr("1 line") : tr("%1 lines").arg(untouched);
    return tr("Saving in %1 would change %2 that were not edited: the file does not read cleanly "
              "in this encoding (first: line %3). Choose another encoding to keep them.")
        .arg(QString::fromLatin1(textCodec->name()), lines)
        .arg(lossyLines.first());
}

QString MesDocument::damage() const
{
    QStringList problems;
    int invalid = 0;
    for (int i = 0; i < mesfile->getEntryCount(); ++i) {
        const Mesfile::Entry* entry = mesfile->getEntryAt(i);
        if (entry->isValid())
            continue;
        if (++invalid <= LISTED_PROBLEMS)
            problems.append(tr("entry %1 (line %2): %3")
                                .arg(i + 1)
                                .arg(entry->getSourceLine())
                                .arg(entry->getValidationError()));
    }
    if (invalid > LISTED_PROBLEMS)
        problems.append(tr("and %1 more").arg(invalid - LISTED_PROBLEMS));
    if (!problems.isEmpty())
        problems.first().prepend(invalid == 1 ? tr("1 entry cannot be read and is kept as it is: ")
                                              : tr("%1 entries cannot be read and are kept as they are: ").arg(invalid));
    // What does not read in the chosen encoding the page's own strip shows, with the encodings that do.
    return problems.join(QStringLiteral("; "));
}
