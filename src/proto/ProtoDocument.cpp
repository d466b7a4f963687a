#include "ProtoDocument.h"

#include <QFile>

#include <iostream>
#include <sstream>

namespace {

std::string local(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

// The model reports on standard output; the document reports through its return values.
template <typename Work>
void quietly(Work work)
{
    std::ostringstream sink;
    std::streambuf* previous = std::cout.rdbuf(sink.rdbuf());
    work();
    std::cout.rdbuf(previous);
}

} // namespace

std::unique_ptr<ProtoDocument> ProtoDocument::fromBytes(const QString& path, const QByteArray& bytes, QString& error)
{
    std::unique_ptr<ProtoDocument> document(new ProtoDocument(path));
    document->restoreModel(bytes);
    if (document->model.isLoaded())
        return document;
    error = tr("%1 (at byte %2)")
                .arg(QString::fromStdString(document->model.loadFailure()))
                .arg(document->model.loadFailureOffset());
    return nullptr;
}

ProtoDocument::ProtoDocument(const QString& path)
    : Document(path)
{
}

bool ProtoDocument::serialize(QByteArray& bytes, QString& error) const
{
    const std::string written = model.toBytes();
    if (written.empty()) {
        error = tr("the prototype could not be written");
        return false;
    }
    bytes = QByteArray::fromStdString(written);
    return true;
}

void ProtoDocument::restoreModel(const QByteArray& bytes)
{
    quietly([&] { model.loadBytes(local(path()), bytes.constData(), std::size_t(bytes.size())); });
}
