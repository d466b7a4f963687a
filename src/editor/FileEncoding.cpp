#include "FileEncoding.h"

#include "Document.h"
#include "EncodingBox.h"
#include "EncodingStrip.h"
#include "Page.h"
#include "gui.h"

#include <QTextCodec>

FileEncoding::FileEncoding(Page* page, QTextCodec* byDefault)
    : QObject(page)
    , page(page)
    , byDefault(byDefault)
    , list(new EncodingBox(page))
    , warning(new EncodingStrip(page))
{
    list->setObjectName(QStringLiteral("encodingSelect"));
    list->showCodec(byDefault);
    connect(list, &EncodingBox::codecChosen, this, &FileEncoding::choose);
    connect(warning, &EncodingStrip::codecChosen, this, &FileEncoding::choose);
}

QTextCodec* FileEncoding::codecFor(const QString& path) const
{
    const QByteArray remembered = path.isEmpty() ? QByteArray() : gui::encodingOf(path);
    QTextCodec* codec = remembered.isEmpty() ? nullptr : QTextCodec::codecForName(remembered);
    return codec != nullptr ? codec : byDefault;
}

void FileEncoding::show(QTextCodec* codec, const arcanum::EncodingGuess::Findings& findings)
{
    shown = codec;
    list->showCodec(codec != nullptr ? codec : byDefault);
    warning->showFindings(codec, findings);
    // A copy saved under another name is in the same encoding, and opens in it again.
    if (Document* document = page->document(); document != nullptr && codec != nullptr && codec != byDefault)
        connect(document, &Document::pathChanged, this, [codec](const QString& path) {
            gui::rememberEncoding(path, codec->name());
        });
}

void FileEncoding::choose(QTextCodec* codec)
{
    Document* document = page->document();
    if (document == nullptr || document->path().isEmpty()) {
        if (document == nullptr)
            byDefault = codec;
        list->showCodec(document == nullptr ? byDefault : shown);
        return;
    }
    if (codec == shown)
        return;
    const QString path = document->path();
    const QByteArray previous = gui::encodingOf(path);
    gui::rememberEncoding(path, codec->name());
    if (!page->openFile(path)) {
        gui::rememberEncoding(path, previous);
        list->showCodec(shown);
    }
}
